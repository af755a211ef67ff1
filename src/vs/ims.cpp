/// IMS media quality, and handover thresholds.
#include "vs/vs_request.h"

int VornVsClient::setImsAudioQualityThreshold(const RadioImsAudioQualityThreshold& threshold, void* userData,
                                              RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetImsAudioQualityThreshold);
    request->addVornTlv(256, sizeof threshold, &threshold);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setAdaptiveHandoverThreshold(const RadioAdaptiveHandoverThreshold& threshold,
                                               void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetAdaptiveHandoverThreshold);
    request->addVornTlv(256, sizeof threshold, &threshold);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setImsRtpInfo(const RadioImsRtpInfo& info, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetImsRtpInfo);
    request->addVornTlv(256, sizeof info, &info);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setImsRtpThreshold(const RadioImsRtpThresholdInfo& info, void* userData,
                                     RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetImsRtpThreshold);
    request->addVornTlv(256, sizeof info, &info);
    return send(request, userData, cb, processVoidResponseMsg);
}
