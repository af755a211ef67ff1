/// Requests that are answered with the modem's verdict only.
#include "support/request_rows.h"
#include "vs/vorn_vs_client.h"

#include <gtest/gtest.h>

using namespace test;

namespace {

using Row = RequestRow;

Row plain(const char* name, int (*function)(int, void*, RadioRequestCallback), uint16_t id)
{
    return setter(name, function, id, {int32(256, -3)}, -3);
}

Row plain(const char* name, int (*function)(int, int, void*, RadioRequestCallback), uint16_t id)
{
    return setter(name, function, id, int32s(256, {1, -2}), 1, -2);
}

/// A record that lies in the message as it is.
template <typename Record>
Row block(const char* name, int (*function)(const Record&, void*, RadioRequestCallback), uint16_t id,
          size_t size)
{
    return setter(name, function, id, {raw(256, counting(size))}, recordOf<Record>(counting(size)));
}

Row redirect(int on, uint8_t sent)
{
    return setter("setRedirectOptSetting", &VornVsClient::setRedirectOptSetting, 99,
                  {uint8(256, 5), text(258, "SBP_CONTINUOUS_4G5_REDIRECTION_FAILURE"), uint8(259, sent)}, 4,
                  7, on, 1, 1, 1);
}

Row attach(int on, uint8_t sent)
{
    constexpr char kName[] = "SBP_MODIFY_NON_DATA_SIM_GMM_ATTACH_PRIORITY_TO_LOW_MSPM_PRIORITY";
    return setter("setAttachPriority", &VornVsClient::setAttachPriority, 99,
                  {uint8(256, 5), text(258, kName), uint8(259, sent)}, 0, 2, on, 0, 1);
}

/// Claims one entry more in each of its lists than they hold.
Row loadAtom()
{
    RadioLoadAtomApplicationType application{.id = 5, .version = 6, .stringCount = 17, .valueCount = 33};
    std::memcpy(application.strings[0], "one", 3);
    std::memset(application.strings[15], 'x', 64);
    application.values[31] = -7;
    std::ranges::copy(counting(284), application.block);
    std::vector<Bytes> strings(16);
    strings[0] = {'o', 'n', 'e'};
    strings[15] = Bytes(64, 'x');
    std::vector<int32_t> values(32);
    values[31] = -7;
    return setter(
        "loadAtomApplication", radioLoadAtomApplication, 0x3815,
        {int32(256, 5), int32(258, 6), array(257, strings), numbers(259, values), raw(260, counting(284))},
        application);
}

Row hyperUplink()
{
    Fields fields = int32s(256, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    for (const Field& field : int32s(272, {11, 12, 13, 14, 15, 16})) {
        fields.push_back(field);
    }
    fields.push_back(numbers<int32_t>(278, {21, 22}));
    fields.push_back(numbers<int32_t>(279, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    const RadioHyperUplinkParasType paras{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16},
                                          {2, {21, 22, 23}},
                                          {11, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}};
    return setter("setHyperUplinkParas", radioSetHyperUplinkParas, 0x3833, fields, paras);
}

Row atomStatus(const RadioAtomInfoType& info)
{
    const Bytes bytes = packed(info);
    return setter("setAtomStatus", radioSetAtomStatus, 0x3859,
                  {int32(256, 1), int32(257, 2), int32(258, 3),
                   raw(259, {bytes.begin(), bytes.begin() + 324}),
                   raw(260, {bytes.begin() + 324, bytes.end()})},
                  1, 2, 3, info);
}

/// Bytes that count on from record to record.
std::vector<Bytes> records(size_t size, size_t count)
{
    std::vector<Bytes> records;
    for (size_t i = 0; i < count; ++i) {
        records.push_back(counting(size, static_cast<uint8_t>(i * size + 1)));
    }
    return records;
}

std::vector<Row> rows()
{
    static int values[20] = {1, -2, 3};
    static Bytes bytes = counting(5);
    constexpr uint8_t kModes[] = {1, 2, 3, 254};
    return {
        plain("sendScreenState", radioSendScreenState, 0x3801),
        plain("setSyncWithAp", radioSetSyncWithAp, 0x380D),
        plain("unloadAtomApplication", radioUnloadAtomApplication, 0x3817),
        plain("setFeatureState", radioSetFeatureState, 0x381B),
        plain("stopMetricsCollect", radioStopMetricsCollect, 0x3829),
        plain("setHyperUplinkMode", radioSetHyperUplinkMode, 0x382D),
        plain("setSceneMode", radioSetSceneMode, 0x382F),
        plain("setQoeScore", radioSetQoeScore, 0x3831),
        plain("setSarRegionCode", radioSetSarRegionCode, 0x383F),
        plain("setPowerBoostState", radioSetPowerBoostState, 0x383F),
        plain("setAolState", radioSetAolState, 0x3840),
        plain("setMtplLimitState", radioSetMtplLimitState, 0x3841),
        plain("setAntFixState", radioSetAntFixState, 0x3842),
        plain("setAntBlockState", radioSetAntBlockState, 0x3843),
        plain("rollbackNetworkAction", radioRollbackNetworkAction, 0x3873),
        plain("setSarState", radioSetSarState, 0x3895),
        plain("setSarDsiState", radioSetSarDsiState, 0x3897),
        plain("setRtSarMode", radioSetRtSarMode, 0x389B),
        block("setModemIndicationPolicy", radioSetModemIndicationPolicy, 0x3837, 1588),
        block("setImsAudioQualityThreshold", radioSetImsAudioQualityThreshold, 0x385B, 88),
        block("setAdaptiveHandoverThreshold", radioSetAdaptiveHandoverThreshold, 0x385D, 24),
        block("setImsRtpInfo", radioSetImsRtpInfo, 0x3867, 8),
        block("setImsRtpThreshold", radioSetImsRtpThreshold, 0x3869, 36),
        block("setSmartIdleCfg", radioSetSmartIdleCfg, 0x386B, 20),
        block("sendRfIccClatKpi", radioSendRfIccClatKpi, 0x387B, 167),
        block("sendRfIccDeviceErr", radioSendRfIccDeviceErr, 0x387F, 33),
        setter("setPowerSavingState", radioSetPowerSavingState, 0x3807,
               int32s(256, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), UAIINFO{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
        setter("dispatchCase", radioDispatchCase, 0x3809, int32s(256, {-1, 2, 3, 4}), 0xFFFFFFFFu, 2, 3, 4),
        setter("setDiagnoseConfig", radioSetDiagnoseConfig, 0x380B,
               {uint32(256, 7), numbers<int32_t>(257, {1, -2, 3})}, 7u, values, 3u),
        setter("setVeyraConfigPolicy", radioSetVeyraConfigPolicy, 0x380F,
               int32s(256, {1, 2, 3, 4, 5, 6, 7, 8}), VeyraConfigPolicy{{1, 2, 3, 4, 5, 6, 7, 8}}),
        setter("setSidoIssueConfig", radioSetSidoIssueConfig, 0x3811,
               {numbers(256, std::vector<int32_t>(std::begin(values), std::end(values)))}, values, 20u),
        setter("startMetricsCollect", radioStartMetricsCollect, 0x3827,
               {int32(256, 8), numbers<int32_t>(257, {1, -2})}, 8, values, 2u),
        setter("setSiteCellInfo", radioSetSiteCellInfo, 0x3835, {raw(256, counting(524))}, 9,
               recordOf<RadioSiteCellInfoType>(counting(524))),
        setter("setAntForceStateByRat", radioSetAntForceStateByRat, 0x3844, {uint8(256, 2), uint8(257, 2)}, 2,
               1),
        setter("antenna off", radioSetAntForceStateByRat, 0x3844, {uint8(256, 3), uint8(257, 1)}, 3, 0),
        setter("setQosReportPeriod", radioSetQosReportPeriod, 0x3861, {int32(256, 7)}, 0x500000007L),
        setter("setQosConfig", radioSetQosConfig, 0x3863, {uint8(256, 255), raw(257, bytes)}, int8_t{-1},
               bytes.data(), 5u),
        setter("sendRfIccModeState", radioSendRfIccModeState, 0x387D,
               {uint8(256, 1), uint8(257, 2), uint8(258, 3), uint8(259, 254)}, kModes[0], kModes[1],
               kModes[2], kModes[3]),
        setter("setTxPathFilter", radiosetTxPathFilter, 0x3881,
               {uint8(256, 253), uint32(257, 66), uint32(258, 2)}, int8_t{-3}, 66, 2),
        setter("hplmnBgSearch", radioHplmnBgSearch, 0x11B1, {uint16(256, 7)},
               RadioHplmnBgSearchInfoType{1, 2, 65543}),
        redirect(9, 1),
        redirect(0, 0),
        attach(256, 1),
        attach(0, 0),
        loadAtom(),
        hyperUplink(),
        atomStatus({2, {{11, 12}, {13, 14}, {15, 16}}, 1, {{17, 18}, {19, 20}}}),
        setter("setIndicationConfig", radioSetIndicationConfig, 0x385F,
               {int32(256, 4), array(257, records(5, 64))}, 4,
               recordOf<RadioIndicationConfigListType>(joined({packed(65), counting(320)}))),
        setter("sendScoreInfo", radioSendScoreInfo, 0x386F, {array(256, records(32, 16))},
               recordOf<RadioScoreInfoListType>(joined({packed(17), counting(512)}))),
    };
}

LogLines lines()
{
    LogLines lines = {
        {"sendScreenState", {"sendScreenState - enter. slotId=2 screenState=-3"}},
        {"setSyncWithAp", {entered("radioSetSyncWithAp"), "setSyncWithAp - enter  "}},
        {"setFeatureState",
         {entered("radioSetFeatureState"), "setFeatureState enter", "setFeatureState cb enter"}},
        {"setSarState", {"setSarState - enter, source=1, state=-2"}},
        {"setSarDsiState", {"setSarDsiState - enter, state=-3"}},
        {"setRtSarMode", {"setRtSarMode - enter, mode=-3"}},
        {"setModemIndicationPolicy",
         {"setModemIndicationPolicy - enter. slotId=2", "setModemIndicationPolicy cb enter"}},
        {"setSmartIdleCfg",
         {"setSmartIdleCfg - enter", "smart_idle_config , type:67305985, nr_t:134678021, nr_c:202050057"}},
        {"sendRfIccClatKpi", {"sendRfIccClatKpi - enter", "freq:67305985, num:5, subPolicy:6"}},
        {"setPowerSavingState",
         {"setPowerSavingState - enter. setPowerSavingState type=2 op=3 dl=4 ul=5 delay=6 cnt=7"}},
        {"dispatchCase",
         {"D VornApis: radioDispatchCase: enter", "dispatchCase - enter",
          "dispatchCase: case=-1 param1=2 param2=3 param3=4"}},
        {"setSidoIssueConfig",
         {entered("radioSetSidoIssueConfig"), "setSidoIssueConfig - enter",
          "operator() - setSidoIssueConfig response  "}},
        {"setAntForceStateByRat", {"setAntForceStateByRat - enter. slotId=2, rat=2, tas:On,"}},
        {"antenna off", {"setAntForceStateByRat - enter. slotId=2, rat=3, tas:Off,"}},
        {"setTxPathFilter", {"setTxPathFilter - enter, rat=-3, band=66, mode=2"}},
        {"hplmnBgSearch", {entered("radioHplmnBgSearch"), "hplmnBgSearch - enter, repeat_interval=65543"}},
        {"setAtomStatus",
         {"setAtomStatus - enter", "id:1, status:2, subPolicy:3", "atom_mask_config i:0, id:11, mask:12",
          "atom_mask_config i:1, id:13, mask:14", "atom_param_config i:0, id:17, mask:18"}},
    };
    for (const std::string name :
         {"setHyperUplinkMode", "setSceneMode", "setQoeScore", "setSarRegionCode", "setPowerBoostState",
          "setAolState", "setMtplLimitState", "setAntFixState", "setAntBlockState"}) {
        lines[name] = {name + " - enter", name + " - cb enter"};
    }
    return lines;
}

} // namespace

TEST(VsRequests, SendTheirMessageAndEndOnce)
{
    std::vector<Row> all = rows();
    all.push_back(atomStatus({.maskCount = 0xFFFFFFFF, .parameterCount = 5}));
    checkRows(all, "VornVsClient", lines());
}
