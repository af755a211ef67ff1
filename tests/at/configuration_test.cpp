#include "at_fixture.h"

using namespace test;
using namespace std::chrono_literals;

namespace {

using Commands = std::vector<std::string>;
using Configuration = AtTest;

/// The commands as a chain sends them.
Commands chained(Commands commands)
{
    for (std::string& command : commands) {
        command += "\r\n";
    }
    return commands;
}

Call ratScan(std::vector<int> rats)
{
    return [=](void* user, RadioRequestCallback cb) mutable {
        return radioSetRatScan(rats.data(), static_cast<int>(rats.size()), user, cb);
    };
}

RadioArrearageCfgInfo arrearage(int option)
{
    RadioArrearageCfgInfo info{.option = option, .enable = 7};
    for (int i = 0; i < 21; ++i) {
        info.a[i] = i - 1;
    }
    return info;
}

constexpr RadioQrxlvminCfgInfo qrxlvmin(int option, int enable = 0)
{
    return {enable, option, 1, -2, 3, 4, 5, 6, 7, 8, -9};
}

constexpr RadioOosCfgInfo outOfService(int option, int enable = 0)
{
    return {enable, option, 1, 2, 3, 4, 5, 6, 1, 2, 3, 4, 5};
}

const Commands kSearchLte = {"BG_SEARCH_3G4_FDD",
                             "BG_SEARCH_3G4_TDD",
                             "BG_SEARCH_2G4_FDD",
                             "BG_SEARCH_2G4_TDD",
                             "IGNORE_W_SIB19_NBR_FREQ_BG_SEARCH_3G4",
                             "GAS_IGNORE_LTE_NBR_FREQ_FOR_LTE_BG_SRCH"};
const Commands kSearchNr = {"BG_SEARCH_4G5",     "BG_SEARCH_3G5_FDD",
                            "BG_SEARCH_3G5_TDD", "BG_SEARCH_2G5_FDD",
                            "BG_SEARCH_2G5_TDD", "IGNORE_L_SIB24_NBR_FREQ_BG_SEARCH_4G5"};

Commands searching(Commands names, const char* search, const char* ignore)
{
    for (std::string& name : names) {
        const bool ignores = name.find("IGNORE") != std::string::npos;
        name = "AT+ESBP=5,\"SBP_" + name + "\"," + (ignores ? ignore : search) + ",1";
    }
    return chained(names);
}

const std::string kLong(300, 'x');

const std::vector<std::pair<Call, Commands>>& settings()
{
    const auto power = [](int group) {
        return call(radioSetPowerSavingState, UAIINFO{group, 600, -1, 2, 3, 4, 5, 8, 9, 10});
    };
    const auto lock = [](int type, int mode) {
        return call(radioLockCellAndBand, RadioLockCellInfoType{type, 1, 627264, 101, mode});
    };
    static const std::vector<std::pair<Call, Commands>> rows = {
        {call(radioSetServiceMode, 2), chained({"AT+CFUN=0", "AT+CEMODE=2", "AT+CFUN=1"})},
        {call(radioSetCentricMode, -1), chained({"AT+CFUN=0", "AT+CEUS=-1", "AT+CFUN=1"})},
        {call(radioRequireModemReboot), {"AT+CFUN=1,1"}},
        {power(1), chained({R"(AT+ESBP=5,"SBP_R16_WUS",-1)", R"(AT+ESBP=5,"SBP_NR_MIMO_LAYER_REDUCTION",2)",
                            R"(AT+ESBP=5,"SBP_ENHANCED_SKIP_UPLINK_TX_DYNAMIC",3)",
                            R"(AT+ESBP=5,"SBP_NR_RELEASE_PREFERENCE_ASSISTANCE_INFO",4)",
                            R"(AT+ESBP=5,"SBP_NR_REL16_UAI_POWER_SAVING",5)"})},
        {power(2),
         chained({R"(AT+ESBP=5,"SBP_ENABLE_MODEM_IVSR",-1)", R"(AT+ESBP=5,"SBP_R13_DOS_ENHANCE",2)"})},
        {power(3), {R"(AT+ESBP=5,"SBP_CUSTOM_QRXLEVMIN_ADJ_NR",-1)"}},
        {power(4), {R"(AT+ESBP=5,"SBP_GMSS_NO_SIM_SKIP_LTE_NR_SEARCH",-1)"}},
        {power(5), {R"(AT+ESBP=6,"SBP_SAF_ASSISTANT_LOW_POWER_CONTROL",-1)"}},
        {call(radioUpdateDcdcSleepState, 1), {R"(AT+EGMC=1,"etm_set_hfp_fpwm",3,1)"}},
        {call(radioUpdateDcdcSleepState, 15),
         chained({R"(AT+EGMC=1,"etm_function_cmd",2,65535)", R"(AT+EGMC=1,"etm_set_hfp_fpwm",1)"})},
        {call(radioUpdateDcdcSleepState, 12), chained({R"(AT+EGMC=1,"etm_set_hfp_fpwm",0)"})},
        {call(radioUpdateDcdcSleepState, 10), chained({R"(AT+EGMC=1,"etm_function_cmd",3,65535)"})},
        {call(radioSendFastDormancy), {"AT+ESCRI"}},
        {call(radioSetPSConformanceMode, 1, -2), {"AT+EPCT=1,-2"}},
        {call(radioSetMsimSubModePref, 2), {R"(AT+ESBP=5,"SBP_DSDA",2)"}},
        {call(radioSetBackgroundSearch, 1, false, true), searching(kSearchLte, "1", "0")},
        {call(radioSetBackgroundSearch, 1, false, false), searching(kSearchLte, "0", "0")},
        {call(radioSetBackgroundSearch, 1, true, true), searching(kSearchLte, "1", "1")},
        {call(radioSetBackgroundSearch, 0, false, true), searching(kSearchNr, "1", "0")},
        {call(radioSetBackgroundSearch, 0, false, false), searching(kSearchNr, "0", "0")},
        {call(radioSetBackgroundSearch, 0, true, true), searching(kSearchNr, "1", "1")},
        {call(radioSetOosCfg, outOfService(1)), {"AT+ERSCFG=1,1,2,2,2,2,3,3,3,3,3,3,4,4,4,4,4,4,4,5,5,5,5"}},
        {call(radioSetOosCfg, outOfService(2)), {"AT+ESRVREC=1,2,3,,5,6"}},
        {call(radioSetOosCfg, outOfService(3, 9)),
         {R"(AT+ESBP=5,"SBP_INACTIVE_MODE_SERVICE_RECOVERY_GMSS_CONTROL",1)"}},
        {call(radioSetOosCfg, outOfService(3)),
         {R"(AT+ESBP=5,"SBP_INACTIVE_MODE_SERVICE_RECOVERY_GMSS_CONTROL",0)"}},
        {call(radioSetOosCfg, outOfService(4, -1)), {R"(AT+ESBP=5,"SBP_INACTIVE_MODE_SERVICE_RECOVERY",1)"}},
        {call(radioSetOosCfg, outOfService(4)), {R"(AT+ESBP=5,"SBP_INACTIVE_MODE_SERVICE_RECOVERY",0)"}},
        {call(radioSetOosCfg, outOfService(5)), {"AT+ESRVREC=,,,4"}},
        {call(radioClearStoredFrequency, 3),
         chained({R"(AT+EGCMD=6,0,"RRM_CLEAN_SCSI")", R"(AT+EGCMD=6,0,"ERRC_CLEAR_STORED_INFO")",
                  "AT+EPLMNFREQ=0,4", "AT+EPLMNFREQ=0,128"})},
        {ratScan({4, 1, 0}), {"AT+EPRATL=4,4,128,2,1"}},
        {ratScan({4, 5, 1, 0}), {"AT+EPRATL=4,4,128,2,1"}},
        {ratScan({5, 4, 1, 0}), {"AT+EPRATL=4,128,4,2,1"}},
        {call(radioPerformRetHighRat, 4, 1), {"AT+ERETLTE"}},
        {call(radioPerformRetHighRat, 5, 1), {"AT+ERETNR"}},
        {call(radioSetRedirectOptSetting, 1, 2, 3, 4, 5, 6),
         {R"(AT+ESBP=5,"SBP_CONTINUOUS_4G5_REDIRECTION_FAILURE",1)"}},
        {call(radioSetAttachPriority, 1, 2, 3, 4, 5),
         {R"(AT+ESBP = 5,"SBP_MODIFY_NON_DATA_SIM_GMM_ATTACH_PRIORITY_TO_LOW_MSPM_PRIORITY",1)"}},
        {call(radioSetAntForceStateByRat, 4, 1), {R"(AT+EGMC = 1,"NrTas_onoff",1)"}},
        {call(radioSetQrxlvminCfg, qrxlvmin(11)), {R"(AT+EGMC=1,"customize_q_rxlv_min",1,1,-2,3)"}},
        {call(radioSetQrxlvminCfg, qrxlvmin(12)), {R"(AT+EGMC=1,"EGMC_NRRC_CAMP_ON_CRITERIA",4,5,6,7,8,-9)"}},
        {call(radioSetQrxlvminCfg, qrxlvmin(13, -1)), {R"(AT+ESBP=5,"SBP_CUSTOM_QRXLEVL_QQUAL",1)"}},
        {call(radioSetQrxlvminCfg, qrxlvmin(14)), {R"(AT+ESBP=5,"SBP_NRRC_CAMP_ON_CRITERIA",0)"}},
        {call(radioSetArrearageCfg, arrearage(11)), {R"(AT+EDMFAPP=20000,100,"11")"}},
        {call(radioSetArrearageCfg, arrearage(13)),
         {R"(AT+EDMFAPP=20000,100,"13,-1,0,1,2,3,4,5,6,7,8,9,10,11,12,13")"}},
        {call(radioSetArrearageCfg, arrearage(14)), {R"(AT+EDMFAPP=20000,100,"14,4,5,6,7,8,9,10,11,12")"}},
        {call(radioSetArrearageCfg, arrearage(16)), {R"(AT+EDMFAPP=20000,100,"16")"}},
        {call(radioSetArrearageCfg, arrearage(17)), {R"(AT+EDMFAPP=20000,100,"17,14,15,16,17,18,19")"}},
        {call(radioSetArrearageCfg, arrearage(18)), {R"(AT+ESBP=5,"SBP_SIM_ARREARAGE_MECHANISM_ENABLE",1)"}},
        {lock(0, 1), {"AT+EMMCHLCK=1,0,1,627264,101,0"}},
        {lock(3, 2), {"AT+EMMCHLCK=1,3,1,627264,101,3"}},
        {lock(5, 3), {"AT+EMMCHLCK=1,5,1,627264,101"}},
        {call(radioUnlockCellAndBand, 7), {"AT+EMMCHLCK=0"}},
        {call(radioEnableCellBarring, uint8_t{255}),
         {R"(AT+ESBP=5,"SBP_ENABLE_CELL_BARRING_FOR_ALL_RLF",255)"}},
        {call(radioSetPingpongBarSetting, 0, 1, 2, 3, 4),
         chained({R"(AT+ESBP=5,"SBP_ENABLE_PINGPONG_BAR_LTE",0)",
                  R"(AT+ESBP=5,"SBP_ENABLE_PINGPONG_BAR_NR",0)"})},
        {call(radioSetPingpongBarSetting, 2, 7, 8, 9, 4),
         chained({R"(AT+EGMC=1,"irat_ping_pong_bar_setting",7,8,9)",
                  R"(AT+ESBP=5,"SBP_ENABLE_PINGPONG_BAR_LTE",0)",
                  R"(AT+ESBP=5,"SBP_ENABLE_PINGPONG_BAR_NR",1)"})},
        {call(radioSetCaStatus, 4, true), {"AT+ECASW=1"}},
        {call(radioSetCaStatus, 4, false), {"AT+ECASW=0"}},
        {call(radioSetCaStatus, 5, true), {R"(AT+ESBP=5,"SBP_NR_CA",1)"}},
        {call(radioSetCaStatus, 5, false), {R"(AT+ESBP=5,"SBP_NR_CA",0)"}},
        {call(radioSetNrcaConfig, uint8_t{255}, uint8_t{9}), {R"(AT+ESBP=5,"SBP_NR_CA",255)"}},
        {call(radioSetBwpConfig, uint8_t{1}, uint8_t{9}), {R"(AT+ESBP=5,"SBP_NR_BWP_SWITCH",1)"}},
        {call(radioSetWhiteSANRCAConfig, "n78A,n1"), {R"(AT+ECACOMB=1,4,"n78A,n1",1)"}},
        {call(radioSetBlackSANRCAConfig, "a%s"), {R"(AT+ECACOMB=1,5,"a%s",1)"}},
        {call(radioSetWhiteNSANRCAConfig, kLong.c_str()), {R"(AT+ECACOMB=1,2,")" + std::string(239, 'x')}},
        {call(radioResetSANSAWhiteList, 4), {R"(AT+ECACOMB=1,4,"reset",1)"}},
        {call(radioSetDssConfig, 2), {R"(AT+ESBP=5,"SBP_UE_CAP_DSS_PLMN_SUPPORTED_BAND_TABLE",2)"}},
        {call(radioSetDssAdditionalConfig, 2), {R"(AT+ESBP=5,"SBP_UE_CAP_DSS_ADDITIONAL_CTRL",2)"}},
        {call(radioSetUst5gUCBandConfig, "1,3", "78"), {R"(AT+E5GUC=2,,"1,3","78",,)"}},
        {call(radioConnectSarSensor), {"AT+ESARSEN=0,0"}},
        {call(radioDisconnectSarSensor), {"AT+ESARSEN=0,1"}},
        {call(radioSetSarSensorChannel, 3), {"AT+ESARSIDX=0,3"}},
        {call(radioSetAolScenario, 4), {"AT+ERFIDX=0,4"}},
        {call(radioUpdateFoldScreenStatus, 1), {R"(AT+EDMFAPP=20000,204,"1")"}},
        {call(radioSetImeiSvn, 10), {R"(AT+EGMR=1,9,"0a")"}},
        {call(radioSetAtcTableInit), {R"(AT+EGMC=1,"RF_EM_Init")"}},
        {call(radiosetAtcTableDeInit), {R"(AT+EGMC=1,"RF_EM_DeInit")"}},
        {call(radioSetCarrierOmacpFqdn, "epdg.example"), {R"(AT+EPVSSET="epdg_identifier","epdg.example")"}},
        {call(radioSetCiwlanUiSwitch, false), {"AT+EVODATA=0,0,0,0"}},
    };
    return rows;
}

} // namespace

TEST_F(Configuration, SendsSettings)
{
    for (const unsigned number : {0U, 2U, 1U}) {
        ASSERT_EQ(radioApisInit(kModem, number), 0);
        for (const auto& [request, commands] : settings()) {
            const bool fails = number == 2;
            SCOPED_TRACE(commands.front());
            ASSERT_EQ(start(request), 0);
            for (const std::string& sent : commands) {
                EXPECT_EQ(caller.calls, 0);
                ASSERT_EQ(command(), sent);
                modem.answer(answer(fails && &sent == &commands.back() ? "\r\nERROR\r\n" : "\r\nOK\r\n"));
            }
            EXPECT_EQ(caller.calls, 1);
            EXPECT_EQ(caller.result, fails ? 1 : 0);
            EXPECT_TRUE(allZero(caller.record));
            ASSERT_TRUE(modem.sent.empty());
        }
    }
    for (
        const char* line :
        {"setServiceMode: ENTER: 2",
         "setServiceMode: ENTER: cmd AT+CEMODE=2",
         "sendFastDormancy - enter. slotId=1",
         "setPowerSavingState - enter. setPowerSavingState type=600 op=-1 dl=2 ul=3 delay=4 "
         "cnt=5,cgType=1",
         "VornAtClient::updateDcdcSleepState state=12",
         "VornAtClient::updateDcdcSleepState is_sleep=0  is_rx_follow_tx=0 is_100k=1 is_rq4120=1 ",
         "setMsimSubModePref - enter. slotId=1 mode=2",
         "setBackgroundSearch: setBackgroundSearch ENTER",
         "setOosCfg: option=3, enable=9",
         "setOosCfg: result: 0",
         "setOosCfg: nwsel_oos_cfg_strcmd: AT+ERSCFG=1,1,2,2,2,2,3,3,3,3,3,3,4,4,4,4,4,4,4,5,5,5,5",
         "setOosCfg: nwsel_gmss_oos_strcmd: AT+ESRVREC=1,2,3,,5,6",
         "clearStoredFrequency: ENTER: 3",
         "setQrxlvminCfg: result: 0",
         "setArrearageCfg: ENTER",
         R"(setQrxlvminCfg: ENTER: lte_qrxlvmin_cfg_strcmd AT+EGMC=1,"customize_q_rxlv_min",1,1,-2,3)",
         R"(setQrxlvminCfg: ENTER: nr_qrxlvmin_cfg_strcmd AT+EGMC=1,"EGMC_NRRC_CAMP_ON_CRITERIA",4,5,6,7,8,-9)",
         R"(setArrearageCfg: ENTER: arrearage_at_strcmd: AT+EDMFAPP=20000,100,"11")",
         "setArrearageCfg: result: 0",
         "VornAtClient::setPingpongBarSetting type=2,barTime=7,period=8,hitCnt=9,reserve=4",
         "VornAtClient setCiwlanUiSwitch enable=0"}) {
        EXPECT_TRUE(log.has(std::string("D VornAtClient: ") + line)) << line;
    }
}

TEST_F(Configuration, RefusesBadArguments)
{
    const auto lock = [](int type, int band) {
        return call(radioLockCellAndBand, RadioLockCellInfoType{type, band, 1, 2, 0});
    };
    const std::string order = "setRatScan: unknown order, count:";
    const std::string text = ": the text is missing, or holds a control character or a double quote";
    const std::string unsupported = " : unsupported operation";
    const std::string javaLine = unsupported + ", plese see Java ";
    const std::pair<Call, std::string> rows[] = {
        {call(radioSetPowerSavingState, UAIINFO{.cgType = 6, .type = 600}),
         "setPowerSavingState: invalid cgType: 6"},
        {call(radioUpdateDcdcSleepState, 8),
         "Invalid state for RQ4120: both is_rx_follow_tx and is_100k are false"},
        {call(radioSetBackgroundSearch, 2, true, true), "unknown rat!"},
        {call(radioSetOosCfg, outOfService(6)), "setOosCfg: invalid option: 6"},
        {call(radioSetQrxlvminCfg, qrxlvmin(10)), "setQrxlvminCfg: invalid option: 10"},
        {call(radioGetQrxlvminCfg, 5), "getQrxlvminCfg: unknown rat, rat:5"},
        {call(radioSetArrearageCfg, arrearage(10)), "setArrearageCfg: invalid option: 10"},
        {call(radioSetArrearageCfg, arrearage(19)), "setArrearageCfg: result: 1"},
        {call(radioSetRatScan, nullptr, 4), order + "4"},
        {ratScan({}), order + "0"},
        {ratScan({5, 4, 1}), order + "3"},
        {ratScan({1, 4, 5, 0}), order + "4"},
        {call(radioPerformRetHighRat, 3, 0), "performRetHighRat: unknown rat, rat:3"},
        {call(radioSetCaStatus, 3, true), "setCaStatus: unknown rat, rat:3"},
        {call(radioGetCaStatus, 6), "getCaStatus: unknown rat, rat:6"},
        {lock(1, 0), "lockCellAndBand: invalid lock type 1 or band indicator 0"},
        {lock(-1, 0), "lockCellAndBand: invalid lock type -1 or band indicator 0"},
        {lock(3, 2), "lockCellAndBand: invalid lock type 3 or band indicator 2"},
        {lock(3, -1), "lockCellAndBand: invalid lock type 3 or band indicator -1"},
        {call(radioSetPingpongBarSetting, -1, 1, 2, 3, 4), "setPingpongBarSetting: invalid type: -1"},
        {call(radioSetCarrierOmacpFqdn, static_cast<const char*>(nullptr)), "setCarrierOmacpFqdn" + text},
        {call(radioSetWhiteSANRCAConfig, "a\"b"), "setWhiteSANRCAConfig" + text},
        {call(radioSetBlackSANRCAConfig, "a\r\nAT"), "setBlackSANRCAConfig" + text},
        {call(radioSetWhiteNSANRCAConfig, "\x7F"), "setWhiteNSANRCAConfig" + text},
        {call(radioSetUst5gUCBandConfig, "1", "\""), "setUst5gUCBandConfig" + text},
        {call(radioSetUst5gUCConfig, uint8_t{1}, uint8_t{2}, uint8_t{3}),
         "setUst5gUCConfig" + javaLine + "setUst5gUCConfig instead"},
        {call(radioSetTasForceIdxByRat, 1, 2, 3, 4), "setTasForceIdxByRat" + unsupported},
        {call(radioSetMaxTxPower, 1, 2, 3), "setMaxTxPower" + unsupported},
        {call(radioSetRfTxInfo, RFTXINFO{}), "setRfTxInfo" + unsupported},
        {call(radioGetTxAdc, TXADCINFO{}), "getTxAdc" + unsupported},
        {call(radioSetRfTxPower, RFTXINFO{}), "setRfTxPower" + unsupported},
        {call(radioSetComboRfTxInfo, std::vector<RFTXINFO>(1)), "setComboRfTxInfo" + unsupported},
        {call(radioGetSimlockLockStatus),
         "getSimlockLockStatus" + javaLine + "remoteSimlockGetSimlockStatusEx instead"},
    };
    for (const auto& [request, line] : rows) {
        checkRefusal(request, 1, "E VornAtClient: " + line);
    }
    EXPECT_EQ(start(call(radioSetBackgroundSearch, 1, true, false)), 0); // nothing to do
    drainTimer();
    EXPECT_TRUE(modem.sent.empty());
    EXPECT_EQ(caller.calls, 1);
    EXPECT_EQ(caller.result, 0);
}

TEST_F(Configuration, InterpretsAnswers)
{
    const struct {
        Call request;
        std::string command;
        std::string data; ///< of a good answer
        Bytes record;
        int ofWord; ///< result when the data is a word; the record is then zero
        int ofNone; ///< result of an accepted answer without data
        std::string line = {};
    } rows[] = {
        {call(radioGetServiceMode), "AT+CEMODE?", "+CEMODE: 3,1", packed(3), 1, 1,
         "getServiceMode : result->rsp.serviceModeInfo.serviceMode : 3"},
        {call(radioGetCentricMode), "AT+CEUS?", "+CEUS: -1", packed(-1), 1, 1,
         "getCentricMode : result->rsp.centricModeInfo.centricMode : -1"},
        {call(radioGetOperationMode), "AT+CFUN?", "+CFUN: 4", packed(0, 4), 1, 1, "cfun mode=4"},
        {call(radioGetNrcaConfig), R"(AT+ESBP=7,"SBP_NR_CA")", "+ESBP: 257", packed(1), 0, 1,
         "VornAtClient::getNrcaConfig nrcaState=1"},
        {call(radioReadNRCAConfig), R"(AT+ESBP=7,"SBP_NR_CA")", "+ESBP: 2,1", packed(2), 0, 1,
         "VornAtClient::readNRCAConfig len=2"},
        {call(radioGetBwpConfig), R"(AT+ESBP=7,"SBP_NR_BWP_SWITCH")", "+ESBP: 1", packed(1), 0, 1,
         "VornAtClient::getBwpConfig bwpState=1"},
        {call(radioGetCaStatus, 4), "AT+ECASW?", "+ECASW: 256", packed(256), 0, 1,
         "VornAtClient::getCaStatus caStatus=256"},
        {call(radioGetCaStatus, 5), R"(AT+ESBP=7,"SBP_NR_CA")", "+ESBP: 1", packed(1), 0, 1},
        {call(radioReadDssConfig), R"(AT+ESBP=7,"SBP_UE_CAP_DSS_PLMN_SUPPORTED_BAND_TABLE")", "+ESBP: 7",
         packed(7), 0, 1, "VornAtClient::readDssConfig type=1"},
        {call(radioGetImsUssdEnabled), R"(AT+ECFGGET="ussd_support")", "+ECFGGET: 1", packed(1), 0, 1,
         "getImsUssdEnabled: ENTER"},
        {call(radioGetSarSnsData), "AT+ERFIDX?", "+ERFIDX: 1,2,x,3", packed(2, 1, 2), 0, 1},
        {call(radioQueryFastDormancyMode), "AT+EPCT?", "+EPCT: 5", packed(1, 5), 0, 0},
        {call(radioQueryLegacyFastDormancyMode), R"(AT+ESBP=7,"SBP_DISABLE_PRE_R8_FD_SCRI")",
         "+ESBP: 1,2,3,4,5,6,7,8,9", packed(8, 1, 2, 3, 4, 5, 6, 7, 8), 0, 0},
        {call(radioGetQrxlvminCfg, 13), R"(AT+EGMC=0,"customize_q_rxlv_min")",
         R"(+EGMC: "customize_q_rxlv_min",1,2, 3,-1)", packed(13, 2, 3, -1), 1, 1,
         "getQrxlvminCfg: lte qrxlvminRsp rat:13, is: 2,3,-1"},
        {call(radioGetQrxlvminCfg, 20), R"(AT+EGMC=0,"EGMC_NRRC_CAMP_ON_CRITERIA")",
         R"(+EGMC: "EGMC_NRRC_CAMP_ON_CRITERIA",1,2,3,4,5,6)", packed(20, 1, 2, 3, 4, 5, 6), 1, 1,
         "getQrxlvminCfg : qrxlvminRsp nr rat:20, is: 1,2,3,4,5,6"},
        {call(radioGetSimCardType, 0), "AT+CIMI", "001010123456789",
         packed(RadioSimCardType{1, "001010123456789"}), 1, 1},
        {call(radioGetSimCardType, 0), "AT+CIMI", "310150", packed(RadioSimCardType{0, "310150"}), 1, 1},
        {call(radioGetSimlockCategoryData), "AT+ESMLRSUF?", "+ESMLRSUF: 0,1,\"a\"",
         packed(RadioSimlockCategory{7, "0,1,\"a\""}), -1, 1, "simCategory: 0,1,\"a\", len: 7"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.command + " " + row.data);
        const auto ask = [&](const Fields& fields, int result) {
            ASSERT_EQ(start(row.request), 0);
            EXPECT_EQ(command(), row.command);
            modem.answer(fields);
            EXPECT_EQ(caller.calls, 1);
            EXPECT_EQ(caller.result, result);
            EXPECT_TRUE(caller.hadRecord);
        };
        ask(accepted(row.data), 0);
        expectRecord(caller.record.rsp, row.record);
        EXPECT_TRUE(row.line.empty() || log.has("D VornAtClient: " + row.line)) << row.line;
        const std::pair<Fields, int> others[] = {{accepted("+X: word"), row.ofWord},
                                                 {answer("\r\nOK\r\n"), row.ofNone},
                                                 {answer("\r\n+CME ERROR: 3\r\n"), 1},
                                                 {{result(0)}, 1}};
        for (const auto& [fields, code] : others) {
            if (code != -1) {
                ask(fields, code);
                EXPECT_TRUE(allZero(caller.record));
            }
        }
    }
    const std::pair<int, const char*> malformed[] = {{13, "+EGMC: a,1,2,3"},
                                                     {13, "+EGMC: a,1,2,3,4,5"},
                                                     {13, "+EGMC: a,1,2,x,4"},
                                                     {20, "+EGMC: a,1,2,3,4,5"}};
    for (const auto& [rat, data] : malformed) {
        ASSERT_EQ(start(call(radioGetQrxlvminCfg, rat)), 0);
        modem.answer(accepted(data));
        EXPECT_EQ(caller.result, 1) << data;
        EXPECT_TRUE(allZero(caller.record)) << data;
    }
    EXPECT_EQ(log.count("E VornAtClient: invalid param lte, split error!"), 3); // and once a single word
    EXPECT_TRUE(log.has("E VornAtClient: invalid param nr, split error!"));
    ASSERT_EQ(start(call(radioGetSimlockCategoryData)), 0);
    modem.answer(accepted("+X: " + std::string(2000, 'c')));
    EXPECT_EQ(caller.record.rsp.simlockCategory.length, 1023u);
}

TEST_F(Configuration, TellsOnlyOfTheSecondOfTwoCommands)
{
    ASSERT_EQ(start(call(radioSetCiwlanUiSwitch, true)), 0);
    ASSERT_EQ(modem.sent.size(), 2u);
    EXPECT_EQ(command(), "AT+EWFCP=1");
    modem.answer(answer("\r\nERROR\r\n"));
    EXPECT_EQ(caller.calls, 0);
    EXPECT_EQ(command(), "AT+EVODATA=1,0,0,1");
    modem.answer(answer("\r\nOK\r\n"));
    EXPECT_EQ(caller.calls, 1);
    EXPECT_EQ(caller.result, 0);
}

TEST_F(Configuration, LooksTwiceForTheOperationMode)
{
    const Fields ok = answer("\r\nOK\r\n");
    const Fields error = answer("\r\nERROR\r\n");
    const Fields on = accepted("+EFUN: x,3");
    const Fields off = accepted("+EFUN: 0");
    const Fields noText = {result(0)};
    const Fields refused;
    const struct {
        int mode;
        std::vector<Fields> answers; ///< to AT+EFUN=, and to each look, 500 ms after the one before
        int result;
    } rows[] = {
        {4, {ok, on}, 0},      {12, {ok, on}, 0},          {5, {ok, off}, 0},         {0, {ok, off}, 0},
        {4, {ok, off, on}, 0}, {4, {ok, off, off}, 1},     {0, {ok, on, on}, 1},      {4, {error}, 1},
        {4, {noText}, 1},      {4, {{result(7)}}, 1},      {4, {ok, error}, 1},       {4, {ok, ok}, 1},
        {4, {ok, noText}, 1},  {4, {ok, off, error}, 1},   {4, {ok, off, noText}, 1}, {4, {refused}, 1},
        {4, {ok, refused}, 1}, {4, {ok, off, refused}, 1},
    };
    host::Clock::freeze();
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "row " << &row - rows);
        for (const Fields& fields : row.answers) {
            modem.sendResult = fields.empty() ? -1 : 0;
            if (&fields == &row.answers.front()) {
                const auto mode = static_cast<RADIO_OPERATION_MODE_TYPE>(row.mode);
                ASSERT_EQ(start(call(radioSetOperationMode, mode)), 0);
            } else {
                host::Clock::advance(499ms);
                drainTimer();
                EXPECT_TRUE(modem.sent.empty());
                host::Clock::advance(1ms);
            }
            drainTimer();
            if (!fields.empty()) {
                const char* sets = (row.mode & 7) == 4 ? "AT+EFUN=3" : "AT+EFUN=0";
                EXPECT_EQ(command(), &fields == &row.answers.front() ? sets : "AT+EFUN?");
                EXPECT_EQ(caller.calls, 0);
                modem.answer(fields);
            }
        }
        host::Clock::advance(2s);
        drainTimer();
        EXPECT_EQ(caller.calls, 1);
        EXPECT_EQ(caller.result, row.result);
        EXPECT_TRUE(caller.hadRecord && allZero(caller.record));
    }
    for (const char* line :
         {"D VornAtClient: setOperationMode: mode=12",
          "D VornAtClient: query efun callback: efun=3,  p->len=2", "D VornAtClient: unexpected type",
          "D VornAtClient: curMode=3", "D VornAtClient: getBoolean: false",
          "E VornAtClient: setOperationMode: processRadioException: radio exception with error no 1",
          "E VornAtClient: setOperationMode: process exception: null pointer"}) {
        EXPECT_TRUE(log.has(line)) << line;
    }
}
