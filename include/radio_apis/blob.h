/// @file
/// Bytes that the modem defines and the library only carries.
#pragma once

#include <cstdint>

/// `length` bytes of `data` were carried; more than `capacity` are cut.
template <uint32_t capacity>
struct RadioBlob {
    uint32_t length;        ///< bytes of `data` that count
    uint8_t data[capacity]; ///< the bytes
};
