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
    RADIO_OPERATION_MODE_OFF = 0,   ///< radio off, as every value whose low three bits are not 4
    RADIO_OPERATION_MODE_ONLINE = 4 ///< radio on, as every value whose low three bits are 4
};

/// Levels of functionality (3GPP TS 27.007, +CFUN).
enum RadioFunctionality : uint32_t {
    RADIO_FUNCTIONALITY_MINIMUM = 0,  ///< minimum functionality, with the radio off
    RADIO_FUNCTIONALITY_FULL = 1,     ///< full functionality
    RADIO_FUNCTIONALITY_RADIO_OFF = 4 ///< radio off, transmitter and receiver
};

/// Result of radioGetOperationMode: the level of functionality.
struct RadioOperationMode {
    uint32_t failure; ///< always 0, since the callback's result tells a failure \failure
    uint32_t mode;    ///< level of functionality \values{RadioFunctionality}; others as the modem has them
};

extern "C" {

/// Switches the radio on or off, and looks whether the modem has done so. The command is +EFUN=3 or +EFUN=0; the
/// library looks 500 ms later, and if need be once more after another 500 ms.
///
/// @param mode  whether the radio is to be on
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
