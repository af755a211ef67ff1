/// @file
/// Specific absorption rate: what limits transmit power near a body.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetSarDsiState.
struct RadioSarDsiState {
    int32_t state; ///< device state index, as last set; 0 when the modem does not say
};

extern "C" {

/// Sets the state of one source of SAR decisions.
///
/// @param source    which source, passed through
/// @param state     its state, passed through
/// @param userData  handed to `callback`
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetSarState(int source, int state, void* userData, RadioRequestCallback callback);

/// Sets the device state index that chooses the SAR table.
///
/// @param state     the index, passed through
/// @param userData  handed to `callback`
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetSarDsiState(int state, void* userData, RadioRequestCallback callback);

/// The device state index.
///
/// @param userData  handed to `callback`
/// @param callback  called once with RADIO_APIS_SUCCESS, whatever the modem said, and `rsp.sarDsiState`
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioGetSarDsiState(void* userData, RadioRequestCallback callback);

/// Switches real-time SAR.
///
/// @param mode      the mode, passed through
/// @param userData  handed to `callback`
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetRtSarMode(int mode, void* userData, RadioRequestCallback callback);

/// Tells the modem the region whose SAR limits hold. The modem gets the same message as from
/// radioSetPowerBoostState: it can't tell the two apart.
///
/// @param regionCode  the region's code, passed through
/// @param userData  handed to `callback`
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetSarRegionCode(int regionCode, void* userData, RadioRequestCallback callback);

/// Connects the SAR sensor.
///
/// @param userData  handed to `callback`
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem accepted the command, else with
///                  RADIO_APIS_FAILURE, each with an empty record; or with the modem's failure and no record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioConnectSarSensor(void* userData, RadioRequestCallback callback);

/// Disconnects the SAR sensor; otherwise as radioConnectSarSensor.
RADIO_API int radioDisconnectSarSensor(void* userData, RadioRequestCallback callback);

/// Chooses a channel of the SAR sensor.
///
/// @param channel   as the modem numbers it
/// @param userData  handed to `callback`
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem accepted the command, else with
///                  RADIO_APIS_FAILURE, each with an empty record; or with the modem's failure and no record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetSarSensorChannel(int channel, void* userData, RadioRequestCallback callback);

/// What the SAR sensor says.
///
/// @param userData  handed to `callback`
/// @param callback  called once with RADIO_APIS_SUCCESS and `rsp.atValues`; with RADIO_APIS_FAILURE and a zeroed
///                  record when the modem refused or answered no field; or with the modem's failure and no record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioGetSarSnsData(void* userData, RadioRequestCallback callback);

} // extern "C"
