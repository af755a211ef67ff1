#include "api/registry.h"
#include "radio_apis/rtp_redundancy.h"

int radioGetImsRtpRedunCapability(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::getImsRtpRedunCapability, userData, callback);
}

int radioGetImsRtpRedunPublicKey(const RadioImsRtpRedunKeyInfoType& info, void* userData,
                                 RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::getImsRtpRedunPublicKey, info, userData, callback);
}

int radioSetImsRtpRedunRemotePublicKey(const RadioImsRtpRedunPublicKeyInfoType& info, void* userData,
                                       RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::setImsRtpRedunRemotePublicKey, info, userData, callback);
}

int radioSetImsRtpRedunControlInfo(const RadioImsRtpRedunControlInfoType& info, void* userData,
                                   RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::setImsRtpRedunControlInfo, info, userData, callback);
}

int radioSyncImsRtpRedunDataPathConfig(const RadioImsRtpRedunDataPathConfigType& info, void* userData,
                                       RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::syncImsRtpRedunDataPathConfig, info, userData, callback);
}
