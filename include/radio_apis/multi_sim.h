/// @file
/// \domain{Several SIM cards}
///
/// Several SIM cards in use at once.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetMsimSubModeState: how the modem serves several SIM cards.
struct RadioMsimSubModeState {
    uint32_t failure; ///< whether the modem reported a failure: 1, otherwise 0 \failure
    uint32_t subMode; ///< way to serve several SIM cards, as the modem numbers it \range{0 to 255}
    uint32_t state;   ///< state of that way, as the modem numbers it \range{0 to 255}
};

extern "C" {

/// How the modem serves several SIM cards at the moment.
///
/// \fills{msimSubModeState}
/// \sent
RADIO_API int radioGetMsimSubModeState(void* userData, RadioRequestCallback callback);

/// Sets from which level on the modem prefers to serve both SIM cards at once (DSDA). With rat 4 the modem
/// counts in quarters: thresholds are sent multiplied by 4, and only -8192 to 8191 fit the 16 bits that are sent.
///
/// @param rat      radio access technology, as the modem numbers it: 4 or 7 \range{4 to 7}; others are refused
/// @param thresh1  first threshold \range{-32768 to 32767}; with rat 4 it is sent multiplied by 4
/// @param thresh2  second threshold \range{-32768 to 32767}; with rat 4 it is sent multiplied by 4
/// \verdict
/// \sentor{2 for another rat}
RADIO_API int radioSetDsdaPreferCustThresh(int rat, int thresh1, int thresh2, void* userData,
                                           RadioRequestCallback callback);

/// Sets how the modem is to serve several SIM cards.
///
/// @param mode  way to serve several SIM cards, as the modem numbers it
/// \command
/// \sent
RADIO_API int radioSetMsimSubModePref(int mode, void* userData, RadioRequestCallback callback);

} // extern "C"
