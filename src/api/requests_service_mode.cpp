#include "api/registry.h"
#include "radio_apis/service_mode.h"

int radioGetServiceMode(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getServiceMode, userData, callback);
}

int radioSetServiceMode(int mode, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setServiceMode, mode, userData, callback);
}

int radioSetCentricMode(int mode, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setCentricMode, mode, userData, callback);
}

int radioGetCentricMode(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getCentricMode, userData, callback);
}
