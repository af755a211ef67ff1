/// @file
/// \domain{Service mode}
///
/// Service domain and usage of the device (3GPP TS 27.007, +CEMODE; TS 24.301).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetServiceMode.
struct RadioServiceMode {
    int32_t serviceMode; ///< UE mode of operation: 0 PS mode 2, 1 CS/PS mode 1, 2 CS/PS mode 2, 3 PS mode 1
};

/// Result of radioGetCentricMode.
struct RadioCentricMode {
    int32_t centricMode; ///< what the usage is centred on, as the modem numbers it: voice or data
};

extern "C" {

/// The UE mode of operation.
///
/// \asks{serviceModeInfo, the answer carried no mode}
/// \sent
RADIO_API int radioGetServiceMode(void* userData, RadioRequestCallback callback);

/// Sets the UE mode of operation. The modem's radio is switched off for that (+CFUN=0) and, when the modem took the
/// mode, on again (+CFUN=1). After a failure the radio may be off: radioSetOperationMode with
/// RADIO_OPERATION_MODE_ONLINE switches it on, radioGetOperationMode tells how it is.
///
/// @param mode  as in RadioServiceMode
/// \commands
/// \started
RADIO_API int radioSetServiceMode(int mode, void* userData, RadioRequestCallback callback);

/// Sets what the usage is centred on (3GPP TS 27.007, +CEUS). The radio is switched off and on as by
/// radioSetServiceMode, and may be off after a failure.
///
/// @param mode  as in RadioCentricMode
/// \commands
/// \started
RADIO_API int radioSetCentricMode(int mode, void* userData, RadioRequestCallback callback);

/// What the usage is centred on.
///
/// \asks{centricModeInfo, the answer carried no mode}
/// \sent
RADIO_API int radioGetCentricMode(void* userData, RadioRequestCallback callback);

} // extern "C"
