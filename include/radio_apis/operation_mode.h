/// @file
/// \domain{Operation mode}
///
/// Operation mode of the modem (3GPP TS 27.007, +CFUN).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// What radioSetOperationMode is to do; only the low three bits count. These are not the numbers that
/// radioGetOperationMode answers with: there 4 means that the radio is off.
enum RADIO_OPERATION_MODE_TYPE : int32_t {
    RADIO_OPERATION_MODE_OFF = 0,   ///< as every value whose low three bits are not 4
    RADIO_OPERATION_MODE_ONLINE = 4 ///< radio on; as every value whose low three bits are 4
};

/// Result of radioGetOperationMode.
struct RadioOperationMode {
    uint32_t failure; ///< always 0: a failure of the modem is the callback's result
    uint32_t mode;    ///< 0 minimum, 1 full functionality, 4 radio off; others as the modem numbers them
};

extern "C" {

/// Switches the radio on or off (+EFUN=3 or +EFUN=0), waits 500 ms and looks whether the modem has done so; once
/// more after another 500 ms.
///
/// @param mode  see the enumeration
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem has done so, else with RADIO_APIS_FAILURE; the
///                  record is empty
/// \started
RADIO_API int radioSetOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData,
                                    RadioRequestCallback callback);

/// The level of functionality (3GPP TS 27.007, +CFUN).
///
/// \asks{operationMode, the answer carried no mode}
/// \sent
RADIO_API int radioGetOperationMode(void* userData, RadioRequestCallback callback);

/// Restarts the modem.
///
/// \command
/// \sent
RADIO_API int radioRequireModemReboot(void* userData, RadioRequestCallback callback);

} // extern "C"
