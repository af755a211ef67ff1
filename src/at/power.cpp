/// Power saving switches and fast dormancy.
#include "at/at_answer.h"
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

using at::kTag;

int VornAtClient::setPowerSavingState(const UAIINFO& info, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. setPowerSavingState type=%d op=%d dl=%d ul=%d delay=%d cnt=%d,cgType=%d",
            __func__, info.type, info.op, info.dl, info.ul, info.delay, info.cnt, info.cgType);
    const auto switchTo = [](const char* name, int value) {
        return std::string(AtText<128>("AT+ESBP=5,\"%s\",%d", name, value));
    };
    switch (info.cgType) {
    case 1:
        return sendSetters({switchTo("SBP_R16_WUS", info.op),
                            switchTo("SBP_NR_MIMO_LAYER_REDUCTION", info.dl),
                            switchTo("SBP_ENHANCED_SKIP_UPLINK_TX_DYNAMIC", info.ul),
                            switchTo("SBP_NR_RELEASE_PREFERENCE_ASSISTANCE_INFO", info.delay),
                            switchTo("SBP_NR_REL16_UAI_POWER_SAVING", info.cnt)},
                           userData, cb);
    case 2:
        return sendSetters(
            {switchTo("SBP_ENABLE_MODEM_IVSR", info.op), switchTo("SBP_R13_DOS_ENHANCE", info.dl)}, userData,
            cb);
    case 3:
        return sendSetter(AtText<128>("AT+ESBP=5,\"SBP_CUSTOM_QRXLEVMIN_ADJ_NR\",%d", info.op), userData, cb);
    case 4:
        return sendSetter(AtText<128>("AT+ESBP=5,\"SBP_GMSS_NO_SIM_SKIP_LTE_NR_SEARCH\",%d", info.op),
                          userData, cb);
    case 5:
        // The one switch with operation 6.
        return sendSetter(AtText<128>("AT+ESBP=6,\"SBP_SAF_ASSISTANT_LOW_POWER_CONTROL\",%d", info.op),
                          userData, cb);
    default:
        zorLogE(kTag, "setPowerSavingState: invalid cgType: %d", info.cgType);
        return RADIO_APIS_FAILURE;
    }
}

int VornAtClient::updateDcdcSleepState(int state, void* userData, RadioRequestCallback cb)
{
    const int isSleep = state & 1;
    const int isRxFollowTx = state >> 1 & 1;
    const int is100k = state >> 2 & 1;
    const int isRq4120 = state >> 3 & 1;
    zorLogD(kTag, "VornAtClient::updateDcdcSleepState state=%d", state);
    zorLogD(kTag,
            "VornAtClient::updateDcdcSleepState is_sleep=%d  is_rx_follow_tx=%d is_100k=%d is_rq4120=%d ",
            isSleep, isRxFollowTx, is100k, isRq4120);
    if (isRq4120 == 0) {
        return sendSetter(AtText<128>("AT+EGMC=1,\"etm_set_hfp_fpwm\",%d,1", isSleep | 2), userData, cb);
    }
    // The chip's function command counts sleep the other way round than the command above.
    std::vector<std::string> commands;
    if (isRxFollowTx != 0) {
        commands.emplace_back(AtText<128>("AT+EGMC=1,\"etm_function_cmd\",%d,65535", isSleep ^ 3));
    }
    if (is100k != 0) {
        commands.emplace_back(AtText<128>("AT+EGMC=1,\"etm_set_hfp_fpwm\",%d", isSleep));
    }
    if (commands.empty()) {
        zorLogE(kTag, "Invalid state for RQ4120: both is_rx_follow_tx and is_100k are false");
        return RADIO_APIS_FAILURE;
    }
    return sendSetters(commands, userData, cb);
}

int VornAtClient::sendFastDormancy(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d", __func__, mInstance);
    return sendSetter("AT+ESCRI", userData, cb);
}

int VornAtClient::setPSConformanceMode(int value1, int value2, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<32>("AT+EPCT=%d,%d", value1, value2), userData, cb);
}

int VornAtClient::queryFastDormancyMode(void* userData, RadioRequestCallback cb)
{
    return sendQuery("AT+EPCT?", userData, cb, at::severalValues(0));
}

int VornAtClient::queryLegacyFastDormancyMode(void* userData, RadioRequestCallback cb)
{
    return sendQuery("AT+ESBP=7,\"SBP_DISABLE_PRE_R8_FD_SCRI\"", userData, cb, at::severalValues(0));
}
