/// What the device tells the modem about itself.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// For requests whose answer is no more than the modem's verdict.
struct RadioModemVerdict {
    uint32_t failure; ///< 1 when the modem reported a failure, otherwise 0
};

extern "C" {

/// Tells the modem whether the screen is on.
///
/// @param screenState  0: off, 1: on; passed through
/// @param callback     called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSendScreenState(int screenState, void* userData, RadioRequestCallback callback);

/// Tells the modem how the device is moving.
///
/// @param microMotionState  the motion detector's state, passed through
/// @param multiplier        its multiplier, passed through
/// @param callback          called once with RADIO_APIS_SUCCESS, whatever the modem said, and
/// `rsp.microMotion`, whose
///                          `failure` tells of the modem's failure
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetMicroMotionState(int microMotionState, int multiplier, void* userData,
                                       RadioRequestCallback callback);

} // extern "C"
