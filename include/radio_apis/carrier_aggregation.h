/// @file
/// \domain{Carrier aggregation}
///
/// Carrier aggregation, bandwidth parts and dynamic spectrum sharing (3GPP TS 36.300, TS 38.300).
#pragma once

#include "radio_apis/rat.h"
#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetNrcaConfig and radioReadNRCAConfig: whether carrier aggregation of NR is on.
struct RadioNrcaConfig {
    uint8_t nrcaState; ///< carrier aggregation \values{0: off, 1: on}; the low 8 bits of the modem's number
};

/// Result of radioGetBwpConfig: whether bandwidth parts of NR are on.
struct RadioBwpConfig {
    uint8_t bwpState; ///< bandwidth parts \values{0: off, 1: on}; the low 8 bits of the modem's number
};

/// Result of radioGetCaStatus: whether carrier aggregation is on.
struct RadioCaStatus {
    int32_t caStatus; ///< carrier aggregation \values{0: off, 1: on}
};

/// Result of radioReadDssConfig: the band table of dynamic spectrum sharing.
struct RadioDssConfig {
    int32_t value; ///< band table of dynamic spectrum sharing, as the modem defines it
};

/// Lists of the band combinations of NR, standalone (SA) or next to LTE (NSA).
enum RadioBandCombinationList : int32_t {
    RADIO_BAND_COMBINATIONS_WHITE_NSA = 2, ///< \label{white NSA}: the only ones that NSA may use
    RADIO_BAND_COMBINATIONS_WHITE_SA = 4,  ///< \label{white SA}: the only ones that SA may use
    RADIO_BAND_COMBINATIONS_BLACK_SA = 5   ///< \label{black SA}: those that SA may not use
};

extern "C" {

/// Switches carrier aggregation.
///
/// @param rat     radio access technology \values{RADIO_RAT_LTE, RADIO_RAT_NR}
/// @param enable  whether it is on
/// \command
/// \sent{as for another rat}
RADIO_API int radioSetCaStatus(int rat, bool enable, void* userData, RadioRequestCallback callback);

/// Whether carrier aggregation is on.
///
/// @param rat  radio access technology \values{RADIO_RAT_LTE, RADIO_RAT_NR}
/// \asksnumber{caInfo}
/// \sent{as for another rat}
RADIO_API int radioGetCaStatus(int rat, void* userData, RadioRequestCallback callback);

/// Switches carrier aggregation of NR.
///
/// @param value    whether it is on \values{0: off, 1: on}
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

/// Whether carrier aggregation of NR is on, the same as radioGetNrcaConfig.
///
/// \asksnumber{nrcaConfig}
/// \sent
RADIO_API int radioReadNRCAConfig(void* userData, RadioRequestCallback callback);

/// Switches bandwidth parts of NR.
///
/// @param value    whether they are on \values{0: off, 1: on}
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
/// @param list  band combinations, as the modem writes them \range{0 to 236}; with more bytes the command is cut at its
///              end without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetWhiteSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback);

/// Sets the band combinations that standalone NR may not use.
///
/// @param list  band combinations, as the modem writes them \range{0 to 236}; with more bytes the command is cut at its
///              end without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetBlackSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback);

/// Sets the only band combinations that NR next to LTE may use.
///
/// @param list  band combinations, as the modem writes them \range{0 to 236}; with more bytes the command is cut at its
///              end without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetWhiteNSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback);

/// Empties one of the lists of band combinations.
///
/// @param list  list to be emptied \values{RadioBandCombinationList}; any other number is sent, too
/// \command
/// \sent
RADIO_API int radioResetSANSAWhiteList(int list, void* userData, RadioRequestCallback callback);

/// Sets the band table of dynamic spectrum sharing.
///
/// @param value  band table of dynamic spectrum sharing, as the modem defines it
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

/// Sets the bands of user capabilities in 5G. With more than 236 bytes in both texts together the command is cut at its
/// end without a word.
///
/// @param lteBands  bands of LTE, as the modem writes them \range{0 to 236}
/// @param nrBands   bands of NR, as the modem writes them \range{0 to 236}
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetUst5gUCBandConfig(const char* lteBands, const char* nrBands, void* userData,
                                        RadioRequestCallback callback);

/// Sets user capabilities in 5G (not supported by the library).
///
/// @param value1  first value of the capabilities \unused
/// @param value2  second value of the capabilities \unused
/// @param value3  third value of the capabilities \unused
/// \unsupported
RADIO_API int radioSetUst5gUCConfig(unsigned char value1, unsigned char value2, unsigned char value3,
                                    void* userData, RadioRequestCallback callback);

} // extern "C"
