/// @file
/// \domain{Specific absorption rate}
///
/// Specific absorption rate (SAR): what limits the transmit power near a body, and the sensor that notices one.
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
/// @param source  source of SAR decisions, as the modem numbers it
/// @param state   state of the source, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetSarState(int source, int state, void* userData, RadioRequestCallback callback);

/// Sets the device state index, which chooses the SAR table.
///
/// @param state  device state index, as the modem numbers it
/// \verdict
/// \sent
RADIO_API int radioSetSarDsiState(int state, void* userData, RadioRequestCallback callback);

/// The device state index, which chooses the SAR table.
///
/// \fills{sarDsiState}
/// \sent
RADIO_API int radioGetSarDsiState(void* userData, RadioRequestCallback callback);

/// Switches real-time SAR.
///
/// @param mode  mode of real-time SAR, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetRtSarMode(int mode, void* userData, RadioRequestCallback callback);

/// Tells the modem the region whose SAR limits apply. The modem gets the same message as from
/// radioSetPowerBoostState: it can't tell the two apart.
///
/// @param regionCode  code of the region, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetSarRegionCode(int regionCode, void* userData, RadioRequestCallback callback);

/// Connects the SAR sensor.
///
/// \command
/// \sent
RADIO_API int radioConnectSarSensor(void* userData, RadioRequestCallback callback);

/// Disconnects the SAR sensor.
///
/// \command
/// \sent
RADIO_API int radioDisconnectSarSensor(void* userData, RadioRequestCallback callback);

/// Chooses a channel of the SAR sensor.
///
/// @param channel  channel of the sensor, as the modem numbers it
/// \command
/// \sent
RADIO_API int radioSetSarSensorChannel(int channel, void* userData, RadioRequestCallback callback);

/// The readings of the SAR sensor.
///
/// \asks{atValues, the modem refused or answered no field}
/// \sent
RADIO_API int radioGetSarSnsData(void* userData, RadioRequestCallback callback);

} // extern "C"
