#include "api/registry.h"
#include "radio_apis/power.h"

int radioSetPowerSavingState(const UAIINFO& info, void* userData, RadioRequestCallback callback)
{
    constexpr int kAtCommands = 600;
    if (info.type == kAtCommands) {
        return forward(__func__, &VornAtClient::setPowerSavingState, info, userData, callback);
    }
    return forward(__func__, &VornVsClient::setPowerSavingState, info, userData, callback);
}

int radioSetSmartIdleCfg(const RadioSmartIdleInfoType& info, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setSmartIdleCfg, info, userData, callback);
}

int radioSetPowerBoostState(int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::setPowerBoostState, state, userData, callback);
}

int radioGetPowerStatistics(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getPowerStatistics, userData, callback);
}

int radioGetModemHeapList(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornVsClient::getModemHeapList, userData, callback);
}

int radioSetFastDormancyTimer(int index, int timer, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornRadioClient::setFastDormancyTimer, index, timer, userData, callback);
}

int radioUpdateDcdcSleepState(int state, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::updateDcdcSleepState, state, userData, callback);
}

int radioSendFastDormancy(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::sendFastDormancy, userData, callback);
}

int radioSetPSConformanceMode(int value1, int value2, void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::setPSConformanceMode, value1, value2, userData, callback);
}

int radioQueryFastDormancyMode(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::queryFastDormancyMode, userData, callback);
}

int radioQueryLegacyFastDormancyMode(void* userData, RadioRequestCallback callback)
{
    return forward(__func__, &VornAtClient::queryLegacyFastDormancyMode, userData, callback);
}
