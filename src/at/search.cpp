/// How the modem searches for networks, and which technology it prefers.
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

#include <span>

using at::kTag;

namespace {

/// The switches of the search for one technology.
struct BackgroundSearch {
    std::span<const char* const> search;
    std::span<const char* const> ignoreNeighbourList;
};

constexpr const char* kSearchLte[] = {"SBP_BG_SEARCH_3G4_FDD", "SBP_BG_SEARCH_3G4_TDD",
                                      "SBP_BG_SEARCH_2G4_FDD", "SBP_BG_SEARCH_2G4_TDD"};
constexpr const char* kIgnoreForLte[] = {"SBP_IGNORE_W_SIB19_NBR_FREQ_BG_SEARCH_3G4",
                                         "SBP_GAS_IGNORE_LTE_NBR_FREQ_FOR_LTE_BG_SRCH"};
constexpr const char* kSearchNr[] = {"SBP_BG_SEARCH_4G5", "SBP_BG_SEARCH_3G5_FDD", "SBP_BG_SEARCH_3G5_TDD",
                                     "SBP_BG_SEARCH_2G5_FDD", "SBP_BG_SEARCH_2G5_TDD"};
constexpr const char* kIgnoreForNr[] = {"SBP_IGNORE_L_SIB24_NBR_FREQ_BG_SEARCH_4G5"};

constexpr BackgroundSearch kSearchedByRat[] = {{kSearchNr, kIgnoreForNr}, {kSearchLte, kIgnoreForLte}};

/// A switch's text, by whether it is on.
const char* byState(int enable, const char* on, const char* off)
{
    return enable != 0 ? on : off;
}

} // namespace

int VornAtClient::setBackgroundSearch(int rat, bool ignoreNeighbourList, bool enable, void* userData,
                                      RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: setBackgroundSearch ENTER", __func__);
    if (rat != 0 && rat != 1) {
        zorLogE(kTag, "unknown rat!");
        return RADIO_APIS_FAILURE;
    }
    std::vector<std::string> commands;
    const auto add = [&](std::span<const char* const> names, bool value) {
        for (const char* name : names) {
            commands.emplace_back(AtText<256>("AT+ESBP=5,\"%s\",%d,1", name, value ? 1 : 0));
        }
    };
    // To ignore the neighbour list without searching means nothing; that chain stays empty.
    if (enable || !ignoreNeighbourList) {
        add(kSearchedByRat[rat].search, enable);
        add(kSearchedByRat[rat].ignoreNeighbourList, ignoreNeighbourList);
    }
    return sendSetters(commands, userData, cb);
}

int VornAtClient::setOosCfg(const RadioOosCfgInfo& info, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "setOosCfg: ENTER");
    zorLogD(kTag, "setOosCfg: option=%d, enable=%d", info.option, info.enable);
    const auto send = [&](const char* command) {
        const int result = sendSetter(command, userData, cb);
        zorLogD(kTag, "setOosCfg: result: %d", result);
        return result;
    };
    switch (info.option) {
    case 1: {
        // The recovery timers of 23 phases, of which whole groups share a value.
        const int a = info.p7;
        const int b = info.p8;
        const int c = info.p9;
        const int d = info.p10;
        const int e = info.p11;
        const AtText<256> command(
            "AT+ERSCFG=%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d", a, a, b, b, b,
            b, c, c, c, c, c, c, d, d, d, d, d, d, d, e, e, e, e);
        zorLogD(kTag, "setOosCfg: nwsel_oos_cfg_strcmd: %s", static_cast<const char*>(command));
        return send(command);
    }
    case 2: {
        const AtText<256> command("AT+ESRVREC=%d,%d,%d,,%d,%d", info.p1, info.p2, info.p3, info.p5, info.p6);
        zorLogD(kTag, "setOosCfg: nwsel_gmss_oos_strcmd: %s", static_cast<const char*>(command));
        return send(command);
    }
    case 3:
        return send(byState(info.enable, "AT+ESBP=5,\"SBP_INACTIVE_MODE_SERVICE_RECOVERY_GMSS_CONTROL\",1",
                            "AT+ESBP=5,\"SBP_INACTIVE_MODE_SERVICE_RECOVERY_GMSS_CONTROL\",0"));
    case 4:
        return send(byState(info.enable, "AT+ESBP=5,\"SBP_INACTIVE_MODE_SERVICE_RECOVERY\",1",
                            "AT+ESBP=5,\"SBP_INACTIVE_MODE_SERVICE_RECOVERY\",0"));
    case 5:
        return send(AtText<256>("AT+ESRVREC=,,,%d", info.p4));
    default:
        zorLogE(kTag, "setOosCfg: invalid option: %d", info.option);
        zorLogE(kTag, "setOosCfg: result: %d", RADIO_APIS_FAILURE);
        return RADIO_APIS_FAILURE;
    }
}

int VornAtClient::clearStoredFrequency(int option, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: ENTER: %d", __func__, option);
    return sendSetters({"AT+EGCMD=6,0,\"RRM_CLEAN_SCSI\"", "AT+EGCMD=6,0,\"ERRC_CLEAR_STORED_INFO\"",
                        "AT+EPLMNFREQ=0,4", "AT+EPLMNFREQ=0,128"},
                       userData, cb);
}

int VornAtClient::setRatScan(int* rats, int count, void* userData, RadioRequestCallback cb)
{
    // The modem's list always has four technologies: 4 LTE, 128 NR, 2 UMTS, 1 GSM.
    constexpr int kLte = 4;
    constexpr int kNr = 5;
    const int first = rats != nullptr && count > 0 ? rats[0] : -1;
    if (first == kLte && (count == 3 || count == 4)) {
        return sendSetter("AT+EPRATL=4,4,128,2,1", userData, cb);
    }
    if (first == kNr && count == 4) {
        return sendSetter("AT+EPRATL=4,128,4,2,1", userData, cb);
    }
    zorLogE(kTag, "%s: unknown order, count:%d", __func__, count);
    return RADIO_APIS_FAILURE;
}

int VornAtClient::performRetHighRat(int rat, int, void* userData, RadioRequestCallback cb)
{
    constexpr int kLte = 4;
    constexpr int kNr = 5;
    if (rat != kLte && rat != kNr) {
        zorLogE(kTag, "%s: unknown rat, rat:%d", __func__, rat);
        return RADIO_APIS_FAILURE;
    }
    return sendSetter(rat == kLte ? "AT+ERETLTE" : "AT+ERETNR", userData, cb);
}

int VornAtClient::setRedirectOptSetting(int value, int, int, int, int, int, void* userData,
                                        RadioRequestCallback cb)
{
    return sendSetter(AtText<128>("AT+ESBP=5,\"SBP_CONTINUOUS_4G5_REDIRECTION_FAILURE\",%d", value), userData,
                      cb);
}

int VornAtClient::setAttachPriority(int value, int, int, int, int, void* userData, RadioRequestCallback cb)
{
    return sendSetter(
        AtText<128>("AT+ESBP = 5,\"SBP_MODIFY_NON_DATA_SIM_GMM_ATTACH_PRIORITY_TO_LOW_MSPM_PRIORITY\",%d",
                    value),
        userData, cb);
}
