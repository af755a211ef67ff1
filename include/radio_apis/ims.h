/// IMS media quality, and handover thresholds.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// When the audio quality of an IMS call is reported: values as the modem defines them. As on the wire.
struct RadioImsAudioQualityThreshold {
    int32_t values[22];
};
static_assert(sizeof(RadioImsAudioQualityThreshold) == 88);

/// When the modem prefers another cell: values as it defines them. As on the wire.
struct RadioAdaptiveHandoverThreshold {
    int32_t values[6];
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
    int32_t values[9];
};
static_assert(sizeof(RadioImsRtpThresholdInfo) == 36);

extern "C" {

/// Sets when audio quality is reported.
///
/// @param threshold sent as it is
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetImsAudioQualityThreshold(const RadioImsAudioQualityThreshold& threshold, void* userData,
                                               RadioRequestCallback callback);

/// Sets when the modem prefers another cell.
///
/// @param threshold sent as it is
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetAdaptiveHandoverThreshold(const RadioAdaptiveHandoverThreshold& threshold,
                                                void* userData, RadioRequestCallback callback);

/// Tells the modem of an RTP session.
///
/// @param info      sent as it is
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetImsRtpInfo(const RadioImsRtpInfo& info, void* userData, RadioRequestCallback callback);

/// Sets when RTP quality is reported.
///
/// @param info      sent as it is
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetImsRtpThreshold(const RadioImsRtpThresholdInfo& info, void* userData,
                                      RadioRequestCallback callback);

} // extern "C"
