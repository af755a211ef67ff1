#include "api/registry.h"
#include "radio_apis/rf.h"

int radioSetAsdivFixPosition(int featureId, int index, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setAsdivFixPosition, featureId, index, userData, callback);
}

int radioSetTasForceIdxByRat(int rat, int index, int state, int mode, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setTasForceIdxByRat, rat, index, state, mode, userData, callback);
}

int radioSetMaxTxPower(int rat, int band, int power, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setMaxTxPower, rat, band, power, userData, callback);
}

int radioSetRfTxInfo(const RFTXINFO& info, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setRfTxInfo, info, userData, callback);
}

int radioGetTxAdc(const TXADCINFO& info, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getTxAdc, info, userData, callback);
}

int radioSetRfTxPower(const RFTXINFO& info, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setRfTxPower, info, userData, callback);
}

int radioSetComboRfTxInfo(const std::vector<RFTXINFO>& infos, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setComboRfTxInfo, infos, userData, callback);
}

int radioSetAtcTableInit(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setAtcTableInit, userData, callback);
}

int radiosetAtcTableDeInit(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setAtcTableDeInit, userData, callback);
}
