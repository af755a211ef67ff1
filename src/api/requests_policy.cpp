#include "api/registry.h"
#include "radio_apis/policy.h"

int radioSetModemIndicationPolicy(const RadioPolicyConfigListType& policies, void* userData,
                                  RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setModemIndicationPolicy, policies, userData, callback);
}

int radioGetModemIndicationPolicy(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getModemIndicationPolicy, userData, callback);
}

int radioGetIndicationReportRecords(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getIndicationReportRecords, userData, callback);
}

int radioSetIndicationConfig(int type, const RadioIndicationConfigListType& configs, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setIndicationConfig, type, configs, userData, callback);
}
