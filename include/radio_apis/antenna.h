/// @file
/// \domain{Antennas and transmitters}
///
/// Antennas, transmitters and transmit power limits.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxTxCarkitBytes = 512; ///< bytes of the longest answer

/// Result of radioGetTxCarkit: the numbers of a band's transmitters.
struct RadioTxCarkit {
    uint32_t failure;                     ///< whether the modem reported a failure, 1 or 0 \failure
    uint32_t length;                      ///< number of bytes in `data`; more than 512 are cut
    uint8_t data[kRadioMaxTxCarkitBytes]; ///< transmitters, as the modem numbers them \countedby{length}
};

extern "C" {

/// Sets the state of the antenna optimisation logic.
///
/// @param state  state of the antenna optimisation logic, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetAolState(int state, void* userData, RadioRequestCallback callback);

/// Switches the limit to the maximum transmit power level.
///
/// @param state  state of the limit, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetMtplLimitState(int state, void* userData, RadioRequestCallback callback);

/// Fixes the antenna in use, or releases it.
///
/// @param state  whether the antenna is fixed, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetAntFixState(int state, void* userData, RadioRequestCallback callback);

/// Blocks an antenna, or releases it.
///
/// @param state  whether an antenna is blocked, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetAntBlockState(int state, void* userData, RadioRequestCallback callback);

/// Switches forced antenna selection for one radio access technology.
///
/// @param rat    radio access technology, as the modem numbers it \range{0 to 4} \values{4: NR}; for NR an AT command
///               is sent, for the others a message
/// @param state  state of forced antenna selection \values{0: off, 1: on}; for NR the number itself is sent, for the
///               others the low 8 bits of the number + 1
/// \user
/// @param callback  for rats 0 to 3 called once with the modem's verdict and, on success, an empty record. For rat 4
///                  called once with RADIO_APIS_SUCCESS when the modem accepted the command, else with
///                  RADIO_APIS_FAILURE, each with an empty record; or with the modem's failure and no record
/// @return 0 when handed to the modem; 1 for another rat, even without an initialised instance, or when refused
///         otherwise
RADIO_API int radioSetAntForceStateByRat(int rat, int state, void* userData, RadioRequestCallback callback);

/// Blocks a band for the transmit path search.
///
/// @param rat   radio access technology, as the modem numbers it
/// @param band  operating band
/// @param mode  kind of block, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radiosetTxPathFilter(signed char rat, int band, int mode, void* userData,
                                   RadioRequestCallback callback);

/// The numbers of the transmitters of a band, as a car kit's booster needs them.
///
/// @param radioTech  radio access technology: 6 and 7 are one kind to the modem, 2 and 5 another; it does not know the
///                   others
/// @param uiBand     number of the band \range{0 to 65535}; the low 16 bits are sent
/// @param subband    part of the band; not sent \unused
/// @param option     reserved \unused
/// \fills{txCarkit}
/// \sent
RADIO_API int radioGetTxCarkit(int radioTech, int uiBand, int subband, int option, void* userData,
                               RadioRequestCallback callback);

/// Chooses the scenario of the antenna optimisation logic.
///
/// @param scenario  scenario, as the modem numbers it
/// \command
/// \sent
RADIO_API int radioSetAolScenario(int scenario, void* userData, RadioRequestCallback callback);

} // extern "C"
