#include "api/registry.h"
#include "radio_apis/packet_route.h"

int radioGetDataActPacketRoute(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::getDataActPacketRoute, userData, callback);
}

int radioGetDataIfupPacketRoute(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::getDataIfupPacketRoute, userData, callback);
}
