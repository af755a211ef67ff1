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

int radioGetImsUssdEnabled(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getImsUssdEnabled, userData, callback);
}

int radioSetCiwlanUiSwitch(bool enable, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setCiwlanUiSwitch, enable, userData, callback);
}

int radioSetCarrierOmacpFqdn(const char* fqdn, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setCarrierOmacpFqdn, fqdn, userData, callback);
}
