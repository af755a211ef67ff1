#include "api/registry.h"
#include "radio_apis/metrics.h"

int radioStartMetricsCollect(int type, int* ids, unsigned int count, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::startMetricsCollect, type, ids, count, userData, callback);
}

int radioStopMetricsCollect(int type, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::stopMetricsCollect, type, userData, callback);
}

int radioGetMetricsData(int type, int option, int state, int* ids, unsigned int count, void* userData,
                        RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getMetricsData, type, option, state, ids, count, userData,
                   callback);
}

int radioGetNecData(int type, const unsigned char* data, unsigned int length, void* userData,
                    RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornVsClient::getNecData, type, data, length, userData, callback);
}

int radioGetModemProtocolInfo(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getModemProtocolInfo, userData, callback);
}

int radioSetVeyraConfigPolicy(VeyraConfigPolicy policy, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setVeyraConfigPolicy, policy, userData, callback);
}
