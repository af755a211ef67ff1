/// @file
/// Bytes that the modem defines and the library only carries.
#pragma once

#include <cstdint>

/// Bytes that the modem defines; more than `capacity` are cut.
template <uint32_t capacity>
struct RadioBlob {
    uint32_t length;        ///< number of bytes in `data`
    uint8_t data[capacity]; ///< the bytes, as the modem defines them \countedby{length}
};
