/// @file
/// \domain{Carrier aggregation}
///
/// Carrier aggregation, bandwidth parts and dynamic spectrum sharing (3GPP TS 36.300, TS 38.300).
#pragma once

#include "radio_apis/rat.h"
#include "radio_apis/result.h"

#include <cstdint>

/// The modem's lists of band combinations.
enum RadioBandCombinationList : int32_t {
    RADIO_BAND_COMBINATIONS_WHITE_NSA = 2, ///< \label{white NSA}: the only ones that NR next to LTE may use
    RADIO_BAND_COMBINATIONS_WHITE_SA = 4,  ///< \label{white SA}: the only ones that standalone NR may use
    RADIO_BAND_COMBINATIONS_BLACK_SA = 5   ///< \label{black SA}: those that standalone NR may not use
};

/// Result of radioGetNrcaConfig and radioReadNRCAConfig.
struct RadioNrcaConfig {
    /// whether carrier aggregation of NR is on \values{0: off, 1: on}; the low 8 bits of the modem's number
    uint8_t nrcaState;
};

/// Result of radioGetBwpConfig.
struct RadioBwpConfig {
    /// whether bandwidth parts of NR are on \values{0: off, 1: on}; the low 8 bits of the modem's number
    uint8_t bwpState;
};

/// Result of radioGetCaStatus.
struct RadioCaStatus {
    int32_t caStatus; ///< whether carrier aggregation is on \values{0: off, 1: on}
};

/// Result of radioReadDssConfig.
struct RadioDssConfig {
    int32_t value; ///< band table of dynamic spectrum sharing, as the modem numbers it
};

extern "C" {

/// Switches carrier aggregation of one radio access technology.
///
/// @param rat     radio access technology \range{4 to 5} \values{RADIO_RAT_LTE, RADIO_RAT_NR}
/// @param enable  whether carrier aggregation is on
/// \command
/// \sent{as for another rat}
RADIO_API int radioSetCaStatus(int rat, bool enable, void* userData, RadioRequestCallback callback);

/// Whether carrier aggregation of one radio access technology is on.
///
/// @param rat  radio access technology \range{4 to 5} \values{RADIO_RAT_LTE, RADIO_RAT_NR}
/// \asksnumber{caInfo}
/// \sent{as for another rat}
RADIO_API int radioGetCaStatus(int rat, void* userData, RadioRequestCallback callback);

/// Switches carrier aggregation of NR.
///
/// @param value    whether carrier aggregation of NR is on \values{0: off, 1: on}
/// @param reserve  reserved \unused
/// \command
/// \sent
RADIO_API int radioSetNrcaConfig(unsigned char value, unsigned char reserve, void* userData,
                                 RadioRequestCallback callback);

/// Whether carrier aggregation of NR is on.
///
/// \asksnumber{nrcaConfig}
/// \sent
RADIO_API int radioGetNrcaConfig(void* userData, RadioRequestCallback callback);

/// Whether carrier aggregation of NR is on; the same as radioGetNrcaConfig.
///
/// \asksnumber{nrcaConfig}
/// \sent
RADIO_API int radioReadNRCAConfig(void* userData, RadioRequestCallback callback);

/// Switches bandwidth parts of NR.
///
/// @param value    whether bandwidth parts of NR are on \values{0: off, 1: on}
/// @param reserve  reserved \unused
/// \command
/// \sent
RADIO_API int radioSetBwpConfig(unsigned char value, unsigned char reserve, void* userData,
                                RadioRequestCallback callback);

/// Whether bandwidth parts of NR are on.
///
/// \asksnumber{bwpConfig}
/// \sent
RADIO_API int radioGetBwpConfig(void* userData, RadioRequestCallback callback);

/// Sets the only band combinations that standalone NR may use.
///
/// @param list  band combinations, as the modem writes them \range{0 to 236}; a longer command is cut at its end
///              without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetWhiteSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback);

/// Sets the band combinations that standalone NR may not use.
///
/// @param list  band combinations, as the modem writes them \range{0 to 236}; a longer command is cut at its end
///              without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetBlackSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback);

/// Sets the only band combinations that NR next to LTE may use.
///
/// @param list  band combinations, as the modem writes them \range{0 to 236}; a longer command is cut at its end
///              without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetWhiteNSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback);

/// Empties one of the modem's lists of band combinations.
///
/// @param list  list of band combinations \values{RadioBandCombinationList}; any other number is sent, too
/// \command
/// \sent
RADIO_API int radioResetSANSAWhiteList(int list, void* userData, RadioRequestCallback callback);

/// Sets the band table of dynamic spectrum sharing.
///
/// @param value  band table, as the modem numbers it
/// \command
/// \sent
RADIO_API int radioSetDssConfig(int value, void* userData, RadioRequestCallback callback);

/// Sets what else the modem does about dynamic spectrum sharing.
///
/// @param value  additional control of dynamic spectrum sharing, as the modem defines it
/// \command
/// \sent
RADIO_API int radioSetDssAdditionalConfig(int value, void* userData, RadioRequestCallback callback);

/// The band table of dynamic spectrum sharing.
///
/// \asksnumber{dssConfig}
/// \sent
RADIO_API int radioReadDssConfig(void* userData, RadioRequestCallback callback);

/// Sets the bands of user capabilities in 5G. The command has room for 236 characters of bands, LTE and NR
/// together; with more it is cut at its end without a word.
///
/// @param lteBands  LTE bands, as the modem writes them \range{0 to 236}; together with `nrBands` at most 236
/// @param nrBands   NR bands, as the modem writes them \range{0 to 236}; together with `lteBands` at most 236
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetUst5gUCBandConfig(const char* lteBands, const char* nrBands, void* userData,
                                        RadioRequestCallback callback);

/// Not supported: sets user capabilities in 5G.
///
/// @param value1  first value of the user capabilities \unused
/// @param value2  second value of the user capabilities \unused
/// @param value3  third value of the user capabilities \unused
/// \unsupported
RADIO_API int radioSetUst5gUCConfig(unsigned char value1, unsigned char value2, unsigned char value3,
                                    void* userData, RadioRequestCallback callback);

} // extern "C"
