/// @file
/// \domain{Carrier aggregation}
///
/// Carrier aggregation, bandwidth parts and dynamic spectrum sharing (3GPP TS 36.300, TS 38.300).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetNrcaConfig and radioReadNRCAConfig.
struct RadioNrcaConfig {
    uint8_t nrcaState; ///< 0 off, 1 on; the low 8 bits of the modem's number
};

/// Result of radioGetBwpConfig.
struct RadioBwpConfig {
    uint8_t bwpState; ///< 0 off, 1 on; the low 8 bits of the modem's number
};

/// Result of radioGetCaStatus.
struct RadioCaStatus {
    int32_t caStatus; ///< 0 off, 1 on
};

/// Result of radioReadDssConfig.
struct RadioDssConfig {
    int32_t value; ///< as the modem defines it
};

extern "C" {

/// Switches carrier aggregation.
///
/// @param rat     4: LTE, 5: NR
/// @param enable  on or off
/// \command
/// \sent{as for another rat}
RADIO_API int radioSetCaStatus(int rat, bool enable, void* userData, RadioRequestCallback callback);

/// Whether carrier aggregation is on.
///
/// @param rat  4: LTE, 5: NR
/// \asksnumber{caInfo}
/// \sent{as for another rat}
RADIO_API int radioGetCaStatus(int rat, void* userData, RadioRequestCallback callback);

/// Switches carrier aggregation of NR.
///
/// @param value    0 off, 1 on
/// @param reserve  not sent
/// \command
/// \sent
RADIO_API int radioSetNrcaConfig(unsigned char value, unsigned char reserve, void* userData,
                                 RadioRequestCallback callback);

/// Whether carrier aggregation of NR is on.
///
/// \asksnumber{nrcaConfig}
/// \sent
RADIO_API int radioGetNrcaConfig(void* userData, RadioRequestCallback callback);

/// The same as radioGetNrcaConfig.
///
/// \asksnumber{nrcaConfig}
/// \sent
RADIO_API int radioReadNRCAConfig(void* userData, RadioRequestCallback callback);

/// Switches bandwidth parts of NR.
///
/// @param value    0 off, 1 on
/// @param reserve  not sent
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
/// @param list  the band combinations as the modem writes them, at most 236 bytes: with more the command is cut at
///              its end without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetWhiteSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback);

/// Sets the band combinations that standalone NR may not use.
///
/// @param list  as for radioSetWhiteSANRCAConfig
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetBlackSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback);

/// Sets the only band combinations that NR next to LTE may use.
///
/// @param list  as for radioSetWhiteSANRCAConfig
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetWhiteNSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback);

/// Empties one of the lists.
///
/// @param list  2: the only ones next to LTE; 4: the only ones of standalone NR; 5: those it may not use. Any other
///              number is sent, too
/// \command
/// \sent
RADIO_API int radioResetSANSAWhiteList(int list, void* userData, RadioRequestCallback callback);

/// Sets the band table of dynamic spectrum sharing.
///
/// @param value  as the modem defines it
/// \command
/// \sent
RADIO_API int radioSetDssConfig(int value, void* userData, RadioRequestCallback callback);

/// Sets what else the modem does about dynamic spectrum sharing.
///
/// @param value  as the modem defines it
/// \command
/// \sent
RADIO_API int radioSetDssAdditionalConfig(int value, void* userData, RadioRequestCallback callback);

/// The band table of dynamic spectrum sharing.
///
/// \asksnumber{dssConfig}
/// \sent
RADIO_API int radioReadDssConfig(void* userData, RadioRequestCallback callback);

/// Sets the bands of user capabilities in 5G.
///
/// @param lteBands  as the modem writes them
/// @param nrBands   likewise. Both together at most 236 bytes: with more the command is cut at its end without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetUst5gUCBandConfig(const char* lteBands, const char* nrBands, void* userData,
                                        RadioRequestCallback callback);

/// Not supported.
///
/// \unsupported
RADIO_API int radioSetUst5gUCConfig(unsigned char value1, unsigned char value2, unsigned char value3,
                                    void* userData, RadioRequestCallback callback);

} // extern "C"
