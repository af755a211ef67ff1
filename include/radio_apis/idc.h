/// @file
/// \domain{In-device coexistence}
///
/// In-device coexistence (3GPP TS 36.300): the modem next to radios that disturb it.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>
#include <vector>

inline constexpr unsigned kRadioMaxIdcOffsets = 20; ///< of one request

/// One entry of the offset table, as the modem defines it.
struct RadioIdcOffsetConfig {
    int32_t f0; ///< its low 8 bits are sent
    int32_t f1; ///< sent as it is
    int32_t f2; ///< sent as it is
    int32_t f3; ///< its low 16 bits are sent
};
static_assert(sizeof(RadioIdcOffsetConfig) == 16);

extern "C" {

/// Sets the offsets that keep the modem off disturbed frequencies.
///
/// @param rat      radio access technology as the modem numbers it, 4 or 7
/// @param offset   the common offset; its low 16 bits are sent
/// @param configs  the table; the first 20 entries are sent, further ones are not
/// \verdict
/// \sentor{2 for another rat}
RADIO_API int radioSetIdcOffset(int rat, int offset, const std::vector<RadioIdcOffsetConfig>& configs,
                                void* userData, RadioRequestCallback callback);

} // extern "C"
