#include "api/registry.h"
#include "radio_apis/carrier_aggregation.h"

int radioSetCaStatus(int rat, bool enable, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setCaStatus, rat, enable, userData, callback);
}

int radioGetCaStatus(int rat, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getCaStatus, rat, userData, callback);
}

int radioSetNrcaConfig(unsigned char value, unsigned char reserve, void* userData,
                       RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setNrcaConfig, value, reserve, userData, callback);
}

int radioGetNrcaConfig(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getNrcaConfig, userData, callback);
}

int radioReadNRCAConfig(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::readNRCAConfig, userData, callback);
}

int radioSetBwpConfig(unsigned char value, unsigned char reserve, void* userData,
                      RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setBwpConfig, value, reserve, userData, callback);
}

int radioGetBwpConfig(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getBwpConfig, userData, callback);
}

int radioSetWhiteSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setWhiteSANRCAConfig, list, userData, callback);
}

int radioSetBlackSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setBlackSANRCAConfig, list, userData, callback);
}

int radioSetWhiteNSANRCAConfig(const char* list, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setWhiteNSANRCAConfig, list, userData, callback);
}

int radioResetSANSAWhiteList(int list, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::resetSANSAWhiteList, list, userData, callback);
}

int radioSetDssConfig(int value, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setDssConfig, value, userData, callback);
}

int radioSetDssAdditionalConfig(int value, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setDssAdditionalConfig, value, userData, callback);
}

int radioReadDssConfig(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::readDssConfig, userData, callback);
}

int radioSetUst5gUCBandConfig(const char* lteBands, const char* nrBands, void* userData,
                              RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setUst5gUCBandConfig, lteBands, nrBands, userData, callback);
}

int radioSetUst5gUCConfig(unsigned char value1, unsigned char value2, unsigned char value3, void* userData,
                          RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setUst5gUCConfig, value1, value2, value3, userData, callback);
}
