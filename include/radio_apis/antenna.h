/// @file
/// \domain{Antennas and transmitters}
///
/// Antennas, transmitters and transmit power limits.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxTxCarkitBytes = 512; ///< bytes of the longest answer

/// Result of radioGetTxCarkit.
struct RadioTxCarkit {
    uint32_t failure;                     ///< 1 when the modem reported a failure, otherwise 0
    uint32_t length;                      ///< bytes of `data`; more are cut
    uint8_t data[kRadioMaxTxCarkitBytes]; ///< the transmitters' numbers as the modem gives them
};

extern "C" {

/// Sets the state of the antenna optimisation logic.
///
/// @param state  passed through
/// \verdict
/// \sent
RADIO_API int radioSetAolState(int state, void* userData, RadioRequestCallback callback);

/// Switches the limit to the maximum transmit power level.
///
/// @param state  passed through
/// \verdict
/// \sent
RADIO_API int radioSetMtplLimitState(int state, void* userData, RadioRequestCallback callback);

/// Fixes the antenna in use, or releases it.
///
/// @param state  passed through
/// \verdict
/// \sent
RADIO_API int radioSetAntFixState(int state, void* userData, RadioRequestCallback callback);

/// Blocks an antenna, or releases it.
///
/// @param state  passed through
/// \verdict
/// \sent
RADIO_API int radioSetAntBlockState(int state, void* userData, RadioRequestCallback callback);

/// Switches forced antenna selection for one radio access technology.
///
/// @param rat    0 to 3, sent as a message; 4 (NR), sent as an AT command; others are refused
/// @param state  as the modem defines it: for rats 0 to 3 the low 8 bits of `state` + 1 are sent, for rat 4 the
///               number itself
/// \user
/// @param callback  for rats 0 to 3 called once with the modem's verdict and, on success, an empty record. For rat 4
///                  called once with RADIO_APIS_SUCCESS when the modem accepted the command, else with
///                  RADIO_APIS_FAILURE, each with an empty record; or with the modem's failure and no record
/// @return 0 when handed to the modem; 1 for another rat, even without an initialised instance, or when refused
///         otherwise
RADIO_API int radioSetAntForceStateByRat(int rat, int state, void* userData, RadioRequestCallback callback);

/// Blocks a band for the transmit path search.
///
/// @param rat   radio access technology, passed through
/// @param band  operating band
/// @param mode  passed through
/// \verdict
/// \sent
RADIO_API int radiosetTxPathFilter(signed char rat, int band, int mode, void* userData,
                                   RadioRequestCallback callback);

/// The numbers of the transmitters of a band, as a car kit's booster needs them.
///
/// @param radioTech  radio access technology: 6 and 7 are one kind to the modem, 2 and 5 another, all others are
///                   unknown to it
/// @param uiBand     the band's number; its low 16 bits are sent
/// @param subband    not sent
/// @param option     not sent
/// \fills{txCarkit}
/// \sent
RADIO_API int radioGetTxCarkit(int radioTech, int uiBand, int subband, int option, void* userData,
                               RadioRequestCallback callback);

/// Chooses the scenario of the antenna optimisation logic.
///
/// @param scenario  as the modem numbers it
/// \command
/// \sent
RADIO_API int radioSetAolScenario(int scenario, void* userData, RadioRequestCallback callback);

} // extern "C"
