/// @file
/// \domain{IMS media}
///
/// IMS media quality, and handover thresholds.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// When the audio quality of an IMS call is reported: values as the modem defines them. As on the wire.
struct RadioImsAudioQualityThreshold {
    int32_t values[22]; ///< sent in this order
};
static_assert(sizeof(RadioImsAudioQualityThreshold) == 88);

/// When the modem prefers another cell: values as it defines them. As on the wire.
struct RadioAdaptiveHandoverThreshold {
    int32_t values[6]; ///< sent in this order
};
static_assert(sizeof(RadioAdaptiveHandoverThreshold) == 24);

/// An RTP session. As on the wire.
struct RadioImsRtpInfo {
    int32_t id;    ///< the call's identifier
    int32_t state; ///< passed through
};
static_assert(sizeof(RadioImsRtpInfo) == 8);

/// When the quality of an RTP session is reported: values as the modem defines them. As on the wire.
struct RadioImsRtpThresholdInfo {
    int32_t values[9]; ///< sent in this order
};
static_assert(sizeof(RadioImsRtpThresholdInfo) == 36);

/// Result of radioGetImsUssdEnabled.
struct RadioImsUssd {
    int32_t enabled; ///< 0 off, 1 on
};

extern "C" {

/// Sets when audio quality is reported.
///
/// @param threshold  sent as it is
/// \verdict
/// \sent
RADIO_API int radioSetImsAudioQualityThreshold(const RadioImsAudioQualityThreshold& threshold, void* userData,
                                               RadioRequestCallback callback);

/// Sets when the modem prefers another cell.
///
/// @param threshold  sent as it is
/// \verdict
/// \sent
RADIO_API int radioSetAdaptiveHandoverThreshold(const RadioAdaptiveHandoverThreshold& threshold,
                                                void* userData, RadioRequestCallback callback);

/// Tells the modem of an RTP session.
///
/// @param info  sent as it is
/// \verdict
/// \sent
RADIO_API int radioSetImsRtpInfo(const RadioImsRtpInfo& info, void* userData, RadioRequestCallback callback);

/// Sets when RTP quality is reported.
///
/// @param info  sent as it is
/// \verdict
/// \sent
RADIO_API int radioSetImsRtpThreshold(const RadioImsRtpThresholdInfo& info, void* userData,
                                      RadioRequestCallback callback);

/// Whether supplementary services go over IMS (USSI, 3GPP TS 24.390).
///
/// \asksnumber{imsUssd}
/// \sent
RADIO_API int radioGetImsUssdEnabled(void* userData, RadioRequestCallback callback);

/// Switches calls over Wi-Fi while roaming between cellular and Wi-Fi. On, it takes two commands, of which the
/// second one's answer is told.
///
/// @param enable  on or off
/// \command
/// \sent
RADIO_API int radioSetCiwlanUiSwitch(bool enable, void* userData, RadioRequestCallback callback);

/// Names the gateway of calls over Wi-Fi (ePDG, 3GPP TS 23.003).
///
/// @param fqdn  its name, at most 224 bytes: with more the command is cut at its end without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetCarrierOmacpFqdn(const char* fqdn, void* userData, RadioRequestCallback callback);

} // extern "C"
