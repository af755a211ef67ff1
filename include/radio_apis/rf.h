/// @file
/// \domain{Radio frequency control}
///
/// Radio frequency control.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>
#include <vector>

/// A transmitter setting. Requests with it are refused: its members are never read.
struct RFTXINFO {
    int32_t rat;     ///< radio access technology
    int32_t band;    ///< operating band
    int32_t channel; ///< ARFCN
    int32_t power;   ///< dBm
    int32_t antenna; ///< transmit path
};

/// A transmitter reading. Requests with it are refused: its members are never read.
struct TXADCINFO {
    int32_t rat;     ///< radio access technology
    int32_t antenna; ///< transmit path
};

extern "C" {

/// Fixes the antennas of one RF feature to one of its positions: runs the AT commands that the device's RF
/// feature file lists for them, one after the other.
///
/// @param featureId  a feature of the file
/// @param index      one of its positions
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem accepted all commands, else with
///                  RADIO_APIS_FAILURE; the record is empty
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

/// Transmit antenna of test benches.
///
/// \unsupported
RADIO_API int radioSetTasForceIdxByRat(int rat, int index, int state, int mode, void* userData,
                                       RadioRequestCallback callback);
/// Highest transmit power of test benches.
///
/// \unsupported
RADIO_API int radioSetMaxTxPower(int rat, int band, int power, void* userData, RadioRequestCallback callback);
/// Transmitter settings of test benches.
///
/// \unsupported
RADIO_API int radioSetRfTxInfo(const RFTXINFO& info, void* userData, RadioRequestCallback callback);
/// Transmitter readings of test benches.
///
/// \unsupported
RADIO_API int radioGetTxAdc(const TXADCINFO& info, void* userData, RadioRequestCallback callback);
/// Transmit power of test benches.
///
/// \unsupported
RADIO_API int radioSetRfTxPower(const RFTXINFO& info, void* userData, RadioRequestCallback callback);
/// Several transmitter settings of test benches.
///
/// \unsupported
RADIO_API int radioSetComboRfTxInfo(const std::vector<RFTXINFO>& infos, void* userData,
                                    RadioRequestCallback callback);

} // extern "C"
