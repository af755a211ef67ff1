#include "api/registry.h"
#include "radio_apis/qos.h"

int radioSetQosReportPeriod(long period, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setQosReportPeriod, period, userData, callback);
}

int radioSetQosConfig(signed char type, unsigned char* data, unsigned int length, void* userData,
                      RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setQosConfig, type, data, length, userData, callback);
}

int radioGetQosData(int type, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getQosData, type, userData, callback);
}
