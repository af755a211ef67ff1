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
    RADIO_OPERATION_MODE_OFF = 0,   ///< radio off; as every value whose low three bits are not 4
    RADIO_OPERATION_MODE_ONLINE = 4 ///< radio on; as every value whose low three bits are 4
};

/// Levels of functionality that the modem answers with (3GPP TS 27.007, +CFUN); others are the modem's own.
enum RadioFunctionality : int32_t {
    RADIO_FUNCTIONALITY_MINIMUM = 0,  ///< minimum functionality
    RADIO_FUNCTIONALITY_FULL = 1,     ///< full functionality
    RADIO_FUNCTIONALITY_RADIO_OFF = 4 ///< \label{radio off}: neither sends nor receives
};

/// Result of radioGetOperationMode: the level of functionality.
struct RadioOperationMode {
    uint32_t failure; ///< always 0: a failure of the modem is the callback's result \unused
    uint32_t mode;    ///< level of functionality \values{RadioFunctionality}
};

extern "C" {

/// Switches the radio on or off, and looks whether the modem has done so. It sends +EFUN=3 or +EFUN=0, looks after
/// 500 ms, and when the modem has not, once more after another 500 ms.
///
/// @param mode  whether the radio is on; only the low three bits count
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem has done so, else with RADIO_APIS_FAILURE; the
///                  record is empty
/// \started
RADIO_API int radioSetOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData,
                                    RadioRequestCallback callback);

/// The modem's level of functionality (3GPP TS 27.007, +CFUN).
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
