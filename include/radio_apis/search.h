/// How the modem searches for networks (3GPP TS 23.122).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// A background search for the home PLMN.
struct RadioHplmnBgSearchInfoType {
    int32_t enable;         ///< not sent
    int32_t option;         ///< not sent
    int32_t repeatInterval; ///< time between two searches as the modem counts it; the low 16 bits are sent
};

extern "C" {

/// Sets how often the modem searches for the home PLMN.
///
/// @param info      see the record
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioHplmnBgSearch(const RadioHplmnBgSearchInfoType& info, void* userData,
                                 RadioRequestCallback callback);

} // extern "C"
