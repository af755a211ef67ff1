/// Which cells the modem camps on, and how it looks for them.
#include "at/at_answer.h"
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

#include <algorithm>
#include <span>

using at::kTag;
using mindroid::Parcel;

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

constexpr int kQrxlvminLte = 13; ///< other numbers than elsewhere
constexpr int kQrxlvminNr = 20;

/// Reads the last `wanted` of exactly `parts` pieces, which must be numbers.
bool readLevels(Parcel& answer, size_t parts, size_t wanted, const char* error, int32_t* values)
{
    const at::Pieces pieces = at::nextPieces(answer);
    if (pieces.size() != parts) {
        zorLogE(kTag, "%s", error);
        return false;
    }
    return std::all_of(pieces.end() - static_cast<ptrdiff_t>(wanted), pieces.end(),
                       [&](std::string_view piece) {
                           const auto value = at::toNumber<int32_t>(piece);
                           *values++ = value.value_or(0);
                           return value.has_value();
                       });
}

bool onLteLevels(Parcel& answer, RadioApisResultType& record)
{
    int32_t q[3] = {};
    if (!readLevels(answer, 5, 3, "invalid param lte, split error!", q)) {
        return false;
    }
    zorLogD(kTag, "%s: lte qrxlvminRsp rat:%d, is: %d,%d,%d", "getQrxlvminCfg", kQrxlvminLte, q[0], q[1],
            q[2]);
    record.rsp.qrxlvmin.rat = kQrxlvminLte;
    std::ranges::copy(q, record.rsp.qrxlvmin.values);
    return true;
}

bool onNrLevels(Parcel& answer, RadioApisResultType& record)
{
    int32_t q[6] = {};
    if (!readLevels(answer, 7, 6, "invalid param nr, split error!", q)) {
        return false;
    }
    zorLogD(kTag, "%s : qrxlvminRsp nr rat:%d, is: %d,%d,%d,%d,%d,%d", "getQrxlvminCfg", kQrxlvminNr, q[0],
            q[1], q[2], q[3], q[4], q[5]);
    record.rsp.qrxlvmin.rat = kQrxlvminNr;
    std::ranges::copy(q, record.rsp.qrxlvmin.values);
    return true;
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

int VornAtClient::setQrxlvminCfg(const RadioQrxlvminCfgInfo& info, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: ENTER", __func__);
    const auto send = [&](const char* command) {
        const int result = sendSetter(command, userData, cb);
        zorLogD(kTag, "setQrxlvminCfg: result: %d", result);
        return result;
    };
    const int enable = info.enable != 0 ? 1 : 0;
    switch (info.option) {
    case 11: {
        const AtText<256> command("AT+EGMC=1,\"customize_q_rxlv_min\",1,%d,%d,%d", info.q1, info.q2, info.q3);
        zorLogD(kTag, "%s: ENTER: lte_qrxlvmin_cfg_strcmd %s", __func__, static_cast<const char*>(command));
        return send(command);
    }
    case 12: {
        const AtText<256> command("AT+EGMC=1,\"EGMC_NRRC_CAMP_ON_CRITERIA\",%d,%d,%d,%d,%d,%d", info.q4,
                                  info.q5, info.q6, info.q7, info.q8, info.q9);
        zorLogD(kTag, "%s: ENTER: nr_qrxlvmin_cfg_strcmd %s", __func__, static_cast<const char*>(command));
        return send(command);
    }
    case 13:
        return send(AtText<256>("AT+ESBP=5,\"SBP_CUSTOM_QRXLEVL_QQUAL\",%d", enable));
    case 14:
        return send(AtText<256>("AT+ESBP=5,\"SBP_NRRC_CAMP_ON_CRITERIA\",%d", enable));
    default:
        zorLogE(kTag, "setQrxlvminCfg: invalid option: %d", info.option);
        zorLogE(kTag, "setQrxlvminCfg: result: %d", RADIO_APIS_FAILURE);
        return RADIO_APIS_FAILURE;
    }
}

int VornAtClient::getQrxlvminCfg(int rat, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: ENTER, rat:%d", __func__, rat);
    switch (rat) {
    case kQrxlvminLte:
        return sendAtCommandRspRawStr("AT+EGMC=0,\"customize_q_rxlv_min\"", userData, cb,
                                      mindroid::make<AtResponseCallback>(at::ifAccepted(onLteLevels)));
    case kQrxlvminNr:
        return sendAtCommandRspRawStr("AT+EGMC=0,\"EGMC_NRRC_CAMP_ON_CRITERIA\"", userData, cb,
                                      mindroid::make<AtResponseCallback>(at::ifAccepted(onNrLevels)));
    default:
        zorLogE(kTag, "%s: unknown rat, rat:%d", __func__, rat);
        return RADIO_APIS_FAILURE;
    }
}

int VornAtClient::setArrearageCfg(const RadioArrearageCfgInfo& info, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: ENTER", __func__);
    const auto send = [&](const char* command) {
        zorLogD(kTag, "%s: ENTER: arrearage_at_strcmd: %s", "setArrearageCfg", command);
        const int result = sendSetter(command, userData, cb);
        zorLogD(kTag, "setArrearageCfg: result: %d", result);
        return result;
    };
    const auto& a = info.a;
    switch (info.option) {
    case 11:
    case 12:
    case 15:
    case 16:
        return send(AtText<256>("AT+EDMFAPP=20000,100,\"%d\"", info.option));
    case 13:
        return send(AtText<256>("AT+EDMFAPP=20000,100,\"%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d\"",
                                info.option, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9],
                                a[10], a[11], a[12], a[13], a[14]));
    case 14:
        return send(AtText<256>("AT+EDMFAPP=20000,100,\"%d,%d,%d,%d,%d,%d,%d,%d,%d,%d\"", info.option, a[5],
                                a[6], a[7], a[8], a[9], a[10], a[11], a[12], a[13]));
    case 17:
        return send(AtText<256>("AT+EDMFAPP=20000,100,\"%d,%d,%d,%d,%d,%d,%d\"", info.option, a[15], a[16],
                                a[17], a[18], a[19], a[20]));
    case 18:
        return send(
            AtText<256>("AT+ESBP=5,\"SBP_SIM_ARREARAGE_MECHANISM_ENABLE\",%d", info.enable != 0 ? 1 : 0));
    default:
        zorLogE(kTag, "setArrearageCfg: invalid option: %d", info.option);
        zorLogE(kTag, "setArrearageCfg: result: %d", RADIO_APIS_FAILURE);
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

int VornAtClient::lockCellAndBand(RadioLockCellInfoType info, void* userData, RadioRequestCallback cb)
{
    constexpr unsigned kLockTypes = 0b111001;
    const auto type = static_cast<unsigned>(info.lockType);
    if (type >= 6 || (kLockTypes >> type & 1) == 0 || static_cast<unsigned>(info.bandIndicator) >= 2) {
        zorLogE(kTag, "%s: invalid lock type %d or band indicator %d", __func__, info.lockType,
                info.bandIndicator);
        return RADIO_APIS_FAILURE;
    }
    const char* suffix = info.mode == 1 ? ",0" : info.mode == 2 ? ",3" : "";
    return sendSetter(AtText<64>("AT+EMMCHLCK=1,%d,%d,%d,%d%s", info.lockType, info.bandIndicator, info.arfcn,
                                 info.pci, suffix),
                      userData, cb);
}

int VornAtClient::unlockCellAndBand(int, void* userData, RadioRequestCallback cb)
{
    return sendSetter("AT+EMMCHLCK=0", userData, cb);
}

int VornAtClient::enableCellBarring(unsigned char value, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<128>("AT+ESBP=5,\"SBP_ENABLE_CELL_BARRING_FOR_ALL_RLF\",%d", value), userData,
                      cb);
}

int VornAtClient::setPingpongBarSetting(int type, int barTime, int period, int hitCnt, int reserve,
                                        void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "VornAtClient::setPingpongBarSetting type=%d,barTime=%d,period=%d,hitCnt=%d,reserve=%d",
            type, barTime, period, hitCnt, reserve);
    const auto bits = static_cast<unsigned>(type);
    if (bits > 3) {
        zorLogE(kTag, "%s: invalid type: %d", __func__, type);
        return RADIO_APIS_FAILURE;
    }
    std::vector<std::string> commands;
    if (bits != 0) {
        commands.emplace_back(
            AtText<128>("AT+EGMC=1,\"irat_ping_pong_bar_setting\",%d,%d,%d", barTime, period, hitCnt));
    }
    commands.emplace_back(AtText<128>("AT+ESBP=5,\"SBP_ENABLE_PINGPONG_BAR_LTE\",%u", bits & 1));
    commands.emplace_back(AtText<128>("AT+ESBP=5,\"SBP_ENABLE_PINGPONG_BAR_NR\",%u", bits >> 1));
    return sendSetters(commands, userData, cb);
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
