#include "api/registry.h"
#include "radio_apis/ims.h"

int radioSetImsAudioQualityThreshold(const RadioImsAudioQualityThreshold& threshold, void* userData,
                                     RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setImsAudioQualityThreshold, threshold, userData, callback);
}

int radioSetAdaptiveHandoverThreshold(const RadioAdaptiveHandoverThreshold& threshold, void* userData,
                                      RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setAdaptiveHandoverThreshold, threshold, userData, callback);
}

int radioSetImsRtpInfo(const RadioImsRtpInfo& info, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setImsRtpInfo, info, userData, callback);
}

int radioSetImsRtpThreshold(const RadioImsRtpThresholdInfo& info, void* userData,
                            RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setImsRtpThreshold, info, userData, callback);
}
