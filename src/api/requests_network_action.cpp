#include "api/registry.h"
#include "radio_apis/network_action.h"

int radioSendNetworkAction(const RadioActionConfigType& action, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::sendNetworkAction, action, userData, callback);
}

int radioRollbackNetworkAction(int id, int option, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::rollbackNetworkAction, id, option, userData, callback);
}

int radioGetNetworkActionState(int id, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getNetworkActionState, id, userData, callback);
}
