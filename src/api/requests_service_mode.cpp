#include "api/registry.h"
#include "radio_apis/service_mode.h"

int radioGetServiceMode(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getServiceMode, userData, callback);
}
