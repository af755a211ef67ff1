/// @file
/// \domain{IMS media}
///
/// IMS media quality, and handover thresholds.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// When the audio quality of an IMS call is reported. As on the wire.
struct RadioImsAudioQualityThreshold {
    int32_t values[22]; ///< thresholds of audio quality, as the modem defines them; sent in this order
};
static_assert(sizeof(RadioImsAudioQualityThreshold) == 88);

/// When the modem prefers another cell. As on the wire.
struct RadioAdaptiveHandoverThreshold {
    int32_t values[6]; ///< thresholds of handover, as the modem defines them; sent in this order
};
static_assert(sizeof(RadioAdaptiveHandoverThreshold) == 24);

/// An RTP session of an IMS call. As on the wire.
struct RadioImsRtpInfo {
    int32_t id;    ///< identifier of the call
    int32_t state; ///< state of the session, as the modem defines it
};
static_assert(sizeof(RadioImsRtpInfo) == 8);

/// When the quality of an RTP session is reported. As on the wire.
struct RadioImsRtpThresholdInfo {
    int32_t values[9]; ///< thresholds of RTP quality, as the modem defines them; sent in this order
};
static_assert(sizeof(RadioImsRtpThresholdInfo) == 36);

/// Result of radioGetImsUssdEnabled: whether supplementary services go over IMS.
struct RadioImsUssd {
    int32_t enabled; ///< whether supplementary services go over IMS \values{0: off, 1: on}
};

extern "C" {

/// Sets when the audio quality of an IMS call is reported.
///
/// @param threshold  thresholds of audio quality; sent as they are
/// \verdict
/// \sent
RADIO_API int radioSetImsAudioQualityThreshold(const RadioImsAudioQualityThreshold& threshold, void* userData,
                                               RadioRequestCallback callback);

/// Sets when the modem prefers another cell.
///
/// @param threshold  thresholds of handover; sent as they are
/// \verdict
/// \sent
RADIO_API int radioSetAdaptiveHandoverThreshold(const RadioAdaptiveHandoverThreshold& threshold,
                                                void* userData, RadioRequestCallback callback);

/// Tells the modem of an RTP session of an IMS call.
///
/// @param info  the RTP session; sent as it is
/// \verdict
/// \sent
RADIO_API int radioSetImsRtpInfo(const RadioImsRtpInfo& info, void* userData, RadioRequestCallback callback);

/// Sets when the quality of an RTP session is reported.
///
/// @param info  thresholds of RTP quality; sent as they are
/// \verdict
/// \sent
RADIO_API int radioSetImsRtpThreshold(const RadioImsRtpThresholdInfo& info, void* userData,
                                      RadioRequestCallback callback);

/// Whether supplementary services go over IMS (USSI, 3GPP TS 24.390).
///
/// \asksnumber{imsUssd}
/// \sent
RADIO_API int radioGetImsUssdEnabled(void* userData, RadioRequestCallback callback);

/// Switches calls over Wi-Fi while roaming between cellular and Wi-Fi. Switching on takes two commands; the
/// callback is told the answer to the second one only.
///
/// @param enable  whether calls over Wi-Fi are on
/// \command
/// \sent
RADIO_API int radioSetCiwlanUiSwitch(bool enable, void* userData, RadioRequestCallback callback);

/// Names the gateway of calls over Wi-Fi (ePDG, 3GPP TS 23.003).
///
/// @param fqdn  fully qualified domain name of the gateway \range{0 to 224}; with more bytes the command is
///              cut at its end without a word
/// \command
/// \sent{as for null, or a control character or double quote in the text}
RADIO_API int radioSetCarrierOmacpFqdn(const char* fqdn, void* userData, RadioRequestCallback callback);

} // extern "C"
