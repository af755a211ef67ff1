/// Service domain and usage of the device (3GPP TS 27.007, +CEMODE; TS 24.301).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetServiceMode.
struct RadioServiceMode {
    int32_t serviceMode; ///< UE mode of operation: 0 PS mode 2, 1 CS/PS mode 1, 2 CS/PS mode 2, 3 PS mode 1
};

extern "C" {

/// The UE mode of operation.
///
/// @param callback  called once with RADIO_APIS_SUCCESS and `rsp.serviceModeInfo`, or with RADIO_APIS_FAILURE
///                  and a zeroed record when the answer carried no mode, or with the modem's failure and no
///                  record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioGetServiceMode(void* userData, RadioRequestCallback callback);

} // extern "C"
