/// @file
/// \domain{Radio frequency control}
///
/// Radio frequency control, as test benches use it.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>
#include <vector>

/// A transmitter setting. No request that takes it is supported: its members are never read.
struct RFTXINFO {
    int32_t rat;     ///< radio access technology \unused
    int32_t band;    ///< operating band \unused
    int32_t channel; ///< ARFCN of the channel \unused
    int32_t power;   ///< transmit power \unit{dBm} \unused
    int32_t antenna; ///< transmit path \unused
};

/// Which transmitter is read. No request that takes it is supported: its members are never read.
struct TXADCINFO {
    int32_t rat;     ///< radio access technology \unused
    int32_t antenna; ///< transmit path \unused
};

extern "C" {

/// Fixes the antennas of one RF feature to one of its positions. Runs the AT commands that the device's RF feature
/// file lists for them, one after the other.
///
/// @param featureId  number of a feature of the RF feature file
/// @param index      number of one of the feature's positions
/// \commands
/// \started{1 when refused, as when the file lists no command for this position or one with a control character in
///     it}
RADIO_API int radioSetAsdivFixPosition(int featureId, int index, void* userData,
                                       RadioRequestCallback callback);

/// Enters the modem's RF test tables.
///
/// \command
/// \sent
RADIO_API int radioSetAtcTableInit(void* userData, RadioRequestCallback callback);

/// Leaves the modem's RF test tables.
///
/// \command
/// \sent
RADIO_API int radiosetAtcTableDeInit(void* userData, RadioRequestCallback callback);

/// Forces a transmit antenna (not supported by the library).
///
/// @param rat    radio access technology \unused
/// @param index  number of the antenna \unused
/// @param state  whether the antenna is forced \unused
/// @param mode   how the antenna is forced \unused
/// \unsupported
RADIO_API int radioSetTasForceIdxByRat(int rat, int index, int state, int mode, void* userData,
                                       RadioRequestCallback callback);

/// Limits the transmit power (not supported by the library).
///
/// @param rat    radio access technology \unused
/// @param band   operating band \unused
/// @param power  highest transmit power \unit{dBm} \unused
/// \unsupported
RADIO_API int radioSetMaxTxPower(int rat, int band, int power, void* userData, RadioRequestCallback callback);

/// Sets up a transmitter (not supported by the library).
///
/// @param info  setting of the transmitter \unused
/// \unsupported
RADIO_API int radioSetRfTxInfo(const RFTXINFO& info, void* userData, RadioRequestCallback callback);

/// Reads a transmitter's converter (not supported by the library).
///
/// @param info  which transmitter \unused
/// \unsupported
RADIO_API int radioGetTxAdc(const TXADCINFO& info, void* userData, RadioRequestCallback callback);

/// Sets a transmitter's power (not supported by the library).
///
/// @param info  setting of the transmitter \unused
/// \unsupported
RADIO_API int radioSetRfTxPower(const RFTXINFO& info, void* userData, RadioRequestCallback callback);

/// Sets up several transmitters (not supported by the library).
///
/// @param infos  settings of the transmitters \unused
/// \unsupported
RADIO_API int radioSetComboRfTxInfo(const std::vector<RFTXINFO>& infos, void* userData,
                                    RadioRequestCallback callback);

} // extern "C"
