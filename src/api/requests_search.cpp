#include "api/registry.h"
#include "radio_apis/search.h"

int radioHplmnBgSearch(const RadioHplmnBgSearchInfoType& info, void* userData, RadioRequestCallback callback)
{
    logInstance(__func__);
    return forward(__func__, &VornVsClient::hplmnBgSearch, info, userData, callback);
}

int radioPerformPlmnUnblock(RadioPlmnBlockInfo info, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::performPlmnUnblock, info, userData, callback);
}

int radioClearForbiddenTai(int option, int mcc, int mnc, bool mncThreeDigits, int code, int type,
                           void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::clearForbiddenTai, option, mcc, mnc, mncThreeDigits, code,
                   type, userData, callback);
}

int radioConfigCellBarringParam(unsigned int threshold, unsigned int watchPeriod, unsigned int barringTime,
                                void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::configCellBarringParam, threshold, watchPeriod, barringTime,
                   userData, callback);
}

int radioSetOosCfg(const RadioOosCfgInfo& info, void* userData, RadioRequestCallback callback)
{
    constexpr int kSniffer = 100;
    zorLogE(kApiTag, "%s : radioSetOosCfg tlssubid %d", __func__, static_cast<int>(tlssubid));
    if (info.option == kSniffer) {
        return forward(__func__, &VornRadioClient::setOosSnifferCfg, info, userData, callback);
    }
    return forward(__func__, &VornAtClient::setOosCfg, info, userData, callback);
}
