#include "api/registry.h"
#include "radio_apis/sim.h"

int radioGetSimTrayStatus(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getSimTrayStatus, userData, callback);
}

int radioSetCarrierLockBlob(const unsigned char* data, unsigned int length, void* userData,
                            RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setSmlBlob, data, length, userData, callback);
}

int radioSetCarrierLockStatus(const unsigned char* data, unsigned int length, void* userData,
                              RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setSmlStatus, data, length, userData, callback);
}

int radioGetCarrierLockStatus(const unsigned char* data, unsigned int length, void* userData,
                              RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getSmlStatus, data, length, userData, callback);
}

int radioSetRegionLockBlob(const unsigned char* data, unsigned int length, void* userData,
                           RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setRlkBlob, data, length, userData, callback);
}

int radioSetRegionLockStatus(const unsigned char* data, unsigned int length, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setRlkStatus, data, length, userData, callback);
}

int radioGetRegionLockStatus(const unsigned char* data, unsigned int length, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getRlkStatus, data, length, userData, callback);
}

int radioRequestIccSimAuthentication(const RadioUimAuthenticateReqInfo& info, void* userData,
                                     RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::requestIccSimAuthentication, info, userData, callback);
}

int radioSetUimPowerUp(void* userData, RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornRadioClient::setUimPowerUp, userData, callback);
}

int radioSetUimPowerDown(void* userData, RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornRadioClient::setUimPowerDown, userData, callback);
}

int radioGetSimCardType(int option, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getSimCardType, option, userData, callback);
}

int radioGetSimlockCategoryData(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getSimlockCategoryData, userData, callback);
}

int radioGetSimlockLockStatus(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getSimlockLockStatus, userData, callback);
}
