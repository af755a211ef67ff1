#include "api/registry.h"
#include "radio_apis/rf_icc.h"

int radioGetRfIccInfo(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getRfIccInfo, userData, callback);
}

int radioSendRfIccClatKpi(const RfIccClatKpi& kpi, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::sendRfIccClatKpi, kpi, userData, callback);
}

int radioSendRfIccModeState(unsigned char mode1, unsigned char mode2, unsigned char mode3,
                            unsigned char mode4, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::sendRfIccModeState, mode1, mode2, mode3, mode4, userData,
                   callback);
}

int radioSendRfIccDeviceErr(const RfIccDeviceErr& error, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::sendRfIccDeviceErr, error, userData, callback);
}
