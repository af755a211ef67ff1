/// @file
/// \domain{Service mode}
///
/// Service domain and usage of the device (3GPP TS 27.007, +CEMODE; TS 24.301).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// UE modes of operation (3GPP TS 27.007, +CEMODE): which services the device registers for, packet-switched (PS)
/// or circuit-switched (CS), and what its usage is centred on.
enum RadioUeMode : int32_t {
    RADIO_UE_MODE_PS2 = 0,   ///< \label{PS2}: PS mode 2, packet-switched services only, data centric
    RADIO_UE_MODE_CSPS1 = 1, ///< \label{CSPS1}: CS/PS mode 1, both kinds of services, voice centric
    RADIO_UE_MODE_CSPS2 = 2, ///< \label{CSPS2}: CS/PS mode 2, both kinds of services, data centric
    RADIO_UE_MODE_PS1 = 3    ///< \label{PS1}: PS mode 1, packet-switched services only, voice centric
};

/// What the usage of the device is centred on (3GPP TS 27.007, +CEUS).
enum RadioUsage : int32_t {
    RADIO_USAGE_VOICE = 0, ///< voice centric: the device looks for a network that carries calls
    RADIO_USAGE_DATA = 1   ///< data centric: the device stays where data is carried, even without calls
};

/// Result of radioGetServiceMode.
struct RadioServiceMode {
    int32_t serviceMode; ///< UE mode of operation \values{RadioUeMode}
};

/// Result of radioGetCentricMode.
struct RadioCentricMode {
    int32_t centricMode; ///< what the usage is centred on \values{RadioUsage}
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
/// @param mode  UE mode of operation \values{RadioUeMode}
/// \commands
/// \started
RADIO_API int radioSetServiceMode(int mode, void* userData, RadioRequestCallback callback);

/// Sets what the usage is centred on (3GPP TS 27.007, +CEUS). The radio is switched off and on as by
/// radioSetServiceMode, and may be off after a failure.
///
/// @param mode  what the usage is centred on \values{RadioUsage}
/// \commands
/// \started
RADIO_API int radioSetCentricMode(int mode, void* userData, RadioRequestCallback callback);

/// What the usage is centred on (3GPP TS 27.007, +CEUS).
///
/// \asks{centricModeInfo, the answer carried no mode}
/// \sent
RADIO_API int radioGetCentricMode(void* userData, RadioRequestCallback callback);

} // extern "C"
