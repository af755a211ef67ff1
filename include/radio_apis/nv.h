/// @file
/// \domain{NV items}
///
/// Non-volatile items of the modem.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxNvBytes = 20480; ///< bytes of the longest item

/// Result of radioReadNv.
struct RadioNvItem {
    uint32_t failure;               ///< 1 when the modem reported a failure, otherwise 0
    uint16_t dataLen;               ///< number of bytes in `data`; more are cut
    uint8_t data[kRadioMaxNvBytes]; ///< the first `dataLen` bytes count
};

extern "C" {

/// Reads one item.
///
/// @param id     the item's number
/// @param index  which of its records
/// \fills{nvItemData}
/// \sent
RADIO_API int radioReadNv(int id, signed char index, void* userData, RadioRequestCallback callback);

/// Writes one item.
///
/// @param id       the item's number
/// @param index    which of its records
/// @param data     the new contents, copied before this returns; not null
/// @param dataLen  their number, at most 20480 bytes
/// \fills{nvWrite}
/// \sentor{11 for a null `data` or too many bytes}
RADIO_API int radioWriteNv(int id, signed char index, const unsigned char* data, unsigned int dataLen,
                           void* userData, RadioRequestCallback callback);

} // extern "C"
