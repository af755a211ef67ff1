/// @file
/// \domain{NV items}
///
/// Non-volatile items of the modem.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxNvBytes = 20480; ///< bytes in the longest item

/// Result of radioReadNv: the contents of one item.
struct RadioNvItem {
    uint32_t failure;               ///< whether the modem reported a failure: 1, otherwise 0 \failure
    uint16_t dataLen;               ///< number of bytes in `data`; a longer item is cut
    uint8_t data[kRadioMaxNvBytes]; ///< contents of the item \countedby{dataLen} \confidential
};

extern "C" {

/// Reads one NV item.
///
/// @param id     number of the item
/// @param index  number of the record in the item
/// \fills{nvItemData}
/// \sent
RADIO_API int radioReadNv(int id, signed char index, void* userData, RadioRequestCallback callback);

/// Writes one NV item.
///
/// @param id       number of the item
/// @param index    number of the record in the item
/// @param data     new contents of the item \range{0 to 20480} \countedby{dataLen} \confidential; never null, copied
///                 before this returns
/// @param dataLen  number of bytes in `data`
/// \fills{nvWrite}
/// \sentor{11 for a null `data` or too many bytes}
RADIO_API int radioWriteNv(int id, signed char index, const unsigned char* data, unsigned int dataLen,
                           void* userData, RadioRequestCallback callback);

} // extern "C"
