#include "api/registry.h"
#include "radio_apis/device_state.h"
#include "radio_apis/sar.h"
#include "radio_apis/service_mode.h"

int radioSendScreenState(int screenState, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::sendScreenState, screenState, userData, callback);
}

int radioSetMicroMotionState(int microMotionState, int multiplier, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setMicroMotionState, microMotionState, multiplier, userData,
                   callback);
}

int radioSetSarState(int source, int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setSarState, source, state, userData, callback);
}

int radioGetServiceMode(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getServiceMode, userData, callback);
}
