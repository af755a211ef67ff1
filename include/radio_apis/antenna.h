/// Antennas and transmit power limits.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

extern "C" {

/// Sets the state of the antenna optimisation logic.
///
/// @param state     passed through
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetAolState(int state, void* userData, RadioRequestCallback callback);

/// Switches the limit to the maximum transmit power level.
///
/// @param state     passed through
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetMtplLimitState(int state, void* userData, RadioRequestCallback callback);

/// Fixes the antenna in use, or releases it.
///
/// @param state     passed through
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetAntFixState(int state, void* userData, RadioRequestCallback callback);

/// Blocks an antenna, or releases it.
///
/// @param state     passed through
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetAntBlockState(int state, void* userData, RadioRequestCallback callback);

/// Switches forced antenna selection for one radio access technology.
///
/// @param rat       0 to 3, sent as a message; 4 (NR), sent as an AT command; others are refused
/// @param state     0: off, 1: on
/// @param callback  called once with the modem's verdict; for rats 0 to 3 the record is null when that is a
/// failure, for
///                  rat 4 it is empty in any case where the modem answered the command
/// @return 0 when handed to the modem; 1 for another rat, even without an initialised instance, or when
/// refused otherwise
RADIO_API int radioSetAntForceStateByRat(int rat, int state, void* userData, RadioRequestCallback callback);

/// Blocks a band for the transmit path search.
///
/// @param rat       radio access technology, passed through
/// @param band      operating band
/// @param mode      passed through
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radiosetTxPathFilter(signed char rat, int band, int mode, void* userData,
                                   RadioRequestCallback callback);

} // extern "C"
