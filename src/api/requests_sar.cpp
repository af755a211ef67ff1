#include "api/registry.h"
#include "radio_apis/sar.h"

int radioSetSarState(int source, int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setSarState, source, state, userData, callback);
}

int radioSetSarDsiState(int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setSarDsiState, state, userData, callback);
}

int radioGetSarDsiState(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getSarDsiState, userData, callback);
}

int radioSetRtSarMode(int mode, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setRtSarMode, mode, userData, callback);
}

int radioSetSarRegionCode(int regionCode, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setSarRegionCode, regionCode, userData, callback);
}

int radioConnectSarSensor(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::connectSarSensor, userData, callback);
}

int radioDisconnectSarSensor(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::disconnectSarSensor, userData, callback);
}

int radioSetSarSensorChannel(int channel, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setSarSensorChannel, channel, userData, callback);
}

int radioGetSarSnsData(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getSarSnsData, userData, callback);
}
