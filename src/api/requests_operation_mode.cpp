#include "api/registry.h"
#include "radio_apis/operation_mode.h"

int radioSetOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setOperationMode, mode, userData, callback);
}

int radioGetOperationMode(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getOperationMode, userData, callback);
}

int radioRequireModemReboot(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::requireModemReboot, userData, callback);
}
