/// @file
/// \domain{In-device coexistence}
///
/// In-device coexistence (3GPP TS 36.300): the modem next to radios that disturb it.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>
#include <vector>

inline constexpr unsigned kRadioMaxIdcOffsets = 20; ///< offsets in one request

/// One entry of the table of offsets.
struct RadioIdcOffsetConfig {
    int32_t f0; ///< first value, as the modem defines it \range{0 to 255}; the low 8 bits are sent
    int32_t f1; ///< second value, as the modem defines it
    int32_t f2; ///< third value, as the modem defines it
    int32_t f3; ///< fourth value, as the modem defines it \range{0 to 65535}; the low 16 bits are sent
};
static_assert(sizeof(RadioIdcOffsetConfig) == 16);

extern "C" {

/// Sets the offsets that keep the modem off disturbed frequencies.
///
/// @param rat      radio access technology, as the modem numbers it: 4 or 7 \range{4 to 7}; others are refused
/// @param offset   common offset, as the modem counts it \range{-32768 to 32767}; the low 16 bits are sent
/// @param configs  table of offsets \range{0 to 20}; further entries are not sent
/// \verdict
/// \sentor{2 for another rat}
RADIO_API int radioSetIdcOffset(int rat, int offset, const std::vector<RadioIdcOffsetConfig>& configs,
                                void* userData, RadioRequestCallback callback);

} // extern "C"
