#include "api/registry.h"
#include "radio_apis/camping.h"

int radioSetBackgroundSearch(int rat, bool ignoreNeighbourList, bool enable, void* userData,
                             RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setBackgroundSearch, rat, ignoreNeighbourList, enable, userData,
                   callback);
}

int radioSetQrxlvminCfg(const RadioQrxlvminCfgInfo& info, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setQrxlvminCfg, info, userData, callback);
}

int radioGetQrxlvminCfg(int rat, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::getQrxlvminCfg, rat, userData, callback);
}

int radioSetArrearageCfg(const RadioArrearageCfgInfo& info, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setArrearageCfg, info, userData, callback);
}

int radioClearStoredFrequency(int option, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::clearStoredFrequency, option, userData, callback);
}

int radioSetRatScan(int* rats, int count, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setRatScan, rats, count, userData, callback);
}

int radioLockCellAndBand(RadioLockCellInfoType info, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::lockCellAndBand, info, userData, callback);
}

int radioUnlockCellAndBand(int option, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::unlockCellAndBand, option, userData, callback);
}

int radioEnableCellBarring(unsigned char value, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::enableCellBarring, value, userData, callback);
}

int radioSetPingpongBarSetting(int type, int barTime, int period, int hitCnt, int reserve, void* userData,
                               RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setPingpongBarSetting, type, barTime, period, hitCnt, reserve,
                   userData, callback);
}

int radioPerformRetHighRat(int rat, int reserve, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::performRetHighRat, rat, reserve, userData, callback);
}

int radioSetRedirectOptSetting(int value, int value2, int value3, int value4, int value5, int value6,
                               void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setRedirectOptSetting, value, value2, value3, value4, value5,
                   value6, userData, callback);
}

int radioSetAttachPriority(int value, int value2, int value3, int value4, int value5, void* userData,
                           RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setAttachPriority, value, value2, value3, value4, value5,
                   userData, callback);
}
