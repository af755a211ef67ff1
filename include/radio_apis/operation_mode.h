/// @file
/// Operation mode of the modem (3GPP TS 27.007, +CFUN).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// What the modem is wanted to do; only the low three bits count.
enum RADIO_OPERATION_MODE_TYPE : int32_t {
    RADIO_OPERATION_MODE_OFF = 0,   ///< as every value whose low three bits are not 4
    RADIO_OPERATION_MODE_ONLINE = 4 ///< as every value whose low three bits are 4
};

/// The operation mode.
struct RadioOperationMode {
    uint32_t failure; ///< 1 when the modem reported a failure, otherwise 0
    uint32_t mode;    ///< as the modem numbers it
};

extern "C" {

/// Sets the operation mode, waits 500 ms and looks whether the modem has it; once more after another 500 ms.
///
/// @param mode      see the enumeration
/// @param userData  handed to `callback`
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem has the mode, else with
///                  RADIO_APIS_FAILURE; the record is empty
/// @return 0 once started, also when the modem then can't be reached
RADIO_API int radioSetOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData,
                                    RadioRequestCallback callback);

/// The level of functionality (3GPP TS 27.007, +CFUN): 0 minimum, 1 full, 4 radio off.
///
/// @param userData  handed to `callback`
/// @param callback  called once with RADIO_APIS_SUCCESS and `rsp.operationMode`, or with RADIO_APIS_FAILURE and a
///                  zeroed record when the answer carried no mode, or with the modem's failure and no record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioGetOperationMode(void* userData, RadioRequestCallback callback);

/// Restarts the modem.
///
/// @param userData  handed to `callback`
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem accepted the command, else with
///                  RADIO_APIS_FAILURE, each with an empty record; or with the modem's failure and no record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioRequireModemReboot(void* userData, RadioRequestCallback callback);

} // extern "C"
