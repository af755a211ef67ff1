#include "support/at_fixture.h"
#include "vs/vorn_vs_client.h"

using namespace test;

TEST(Camping, Requests)
{
    const auto searching = [](Texts names, const char* search, const char* ignore) {
        for (std::string& name : names) {
            const bool ignores = name.find("IGNORE") != std::string::npos;
            name = "AT+ESBP=5,\"SBP_" + name + "\"," + (ignores ? ignore : search) + ",1";
        }
        return chained(names);
    };
    const auto ratScan = [](std::vector<int> rats) {
        return [=](void* user, RadioRequestCallback cb) mutable {
            return radioSetRatScan(rats.data(), static_cast<int>(rats.size()), user, cb);
        };
    };
    const auto lockCell = [](int type, int band, int mode) {
        return call(radioLockCellAndBand, RadioLockCellInfoType{type, band, 627264, 101, mode});
    };
    const auto arrearage = [](int option) {
        RadioArrearageCfgInfo info{.option = option, .enable = 7};
        std::iota(std::begin(info.a), std::end(info.a), -1);
        return call(radioSetArrearageCfg, info);
    };
    const auto setQrxlvmin = [](int option, int enable = 0) {
        return call(radioSetQrxlvminCfg, RadioQrxlvminCfgInfo{enable, option, 1, -2, 3, 4, 5, 6, 7, 8, -9});
    };
    const Texts lte = {"BG_SEARCH_3G4_FDD",
                       "BG_SEARCH_3G4_TDD",
                       "BG_SEARCH_2G4_FDD",
                       "BG_SEARCH_2G4_TDD",
                       "IGNORE_W_SIB19_NBR_FREQ_BG_SEARCH_3G4",
                       "GAS_IGNORE_LTE_NBR_FREQ_FOR_LTE_BG_SRCH"};
    const Texts nr = {"BG_SEARCH_4G5",     "BG_SEARCH_3G5_FDD", "BG_SEARCH_3G5_TDD",
                      "BG_SEARCH_2G5_FDD", "BG_SEARCH_2G5_TDD", "IGNORE_L_SIB24_NBR_FREQ_BG_SEARCH_4G5"};
    checkSettings({
        {call(radioSetBackgroundSearch, 1, false, true), searching(lte, "1", "0"),
         "setBackgroundSearch: setBackgroundSearch ENTER"},
        {call(radioSetBackgroundSearch, 1, false, false), searching(lte, "0", "0")},
        {call(radioSetBackgroundSearch, 1, true, true), searching(lte, "1", "1")},
        {call(radioSetBackgroundSearch, 0, false, true), searching(nr, "1", "0")},
        {call(radioSetBackgroundSearch, 0, false, false), searching(nr, "0", "0")},
        {call(radioSetBackgroundSearch, 0, true, true), searching(nr, "1", "1")},
        {setQrxlvmin(11), R"(AT+EGMC=1,"customize_q_rxlv_min",1,1,-2,3)",
         R"(setQrxlvminCfg: ENTER: lte_qrxlvmin_cfg_strcmd AT+EGMC=1,"customize_q_rxlv_min",1,1,-2,3)"},
        {setQrxlvmin(12), R"(AT+EGMC=1,"EGMC_NRRC_CAMP_ON_CRITERIA",4,5,6,7,8,-9)",
         R"(setQrxlvminCfg: ENTER: nr_qrxlvmin_cfg_strcmd AT+EGMC=1,"EGMC_NRRC_CAMP_ON_CRITERIA",4,5,6,7,8,-9)"},
        {setQrxlvmin(13, -1), R"(AT+ESBP=5,"SBP_CUSTOM_QRXLEVL_QQUAL",1)", "setQrxlvminCfg: result: 0"},
        {setQrxlvmin(14), R"(AT+ESBP=5,"SBP_NRRC_CAMP_ON_CRITERIA",0)"},
        {arrearage(11), R"(AT+EDMFAPP=20000,100,"11")",
         R"(setArrearageCfg: ENTER: arrearage_at_strcmd: AT+EDMFAPP=20000,100,"11")"},
        {arrearage(13), R"(AT+EDMFAPP=20000,100,"13,-1,0,1,2,3,4,5,6,7,8,9,10,11,12,13")",
         Texts{"setArrearageCfg: ENTER", "setArrearageCfg: result: 0"}},
        {arrearage(14), R"(AT+EDMFAPP=20000,100,"14,4,5,6,7,8,9,10,11,12")"},
        {arrearage(16), R"(AT+EDMFAPP=20000,100,"16")"},
        {arrearage(17), R"(AT+EDMFAPP=20000,100,"17,14,15,16,17,18,19")"},
        {arrearage(18), R"(AT+ESBP=5,"SBP_SIM_ARREARAGE_MECHANISM_ENABLE",1)"},
        {call(radioClearStoredFrequency, 3),
         chained({R"(AT+EGCMD=6,0,"RRM_CLEAN_SCSI")", R"(AT+EGCMD=6,0,"ERRC_CLEAR_STORED_INFO")",
                  "AT+EPLMNFREQ=0,4", "AT+EPLMNFREQ=0,128"}),
         "clearStoredFrequency: ENTER: 3"},
        {ratScan({4, 1, 0}), "AT+EPRATL=4,4,128,2,1"},
        {ratScan({4, 5, 1, 0}), "AT+EPRATL=4,4,128,2,1"},
        {ratScan({5, 4, 1, 0}), "AT+EPRATL=4,128,4,2,1"},
        {lockCell(0, 1, 1), "AT+EMMCHLCK=1,0,1,627264,101,0"},
        {lockCell(3, 1, 2), "AT+EMMCHLCK=1,3,1,627264,101,3"},
        {lockCell(5, 1, 3), "AT+EMMCHLCK=1,5,1,627264,101"},
        {call(radioUnlockCellAndBand, 7), "AT+EMMCHLCK=0"},
        {call(radioEnableCellBarring, uint8_t{255}),
         R"(AT+ESBP=5,"SBP_ENABLE_CELL_BARRING_FOR_ALL_RLF",255)"},
        {call(radioSetPingpongBarSetting, 0, 1, 2, 3, 4),
         chained({R"(AT+ESBP=5,"SBP_ENABLE_PINGPONG_BAR_LTE",0)",
                  R"(AT+ESBP=5,"SBP_ENABLE_PINGPONG_BAR_NR",0)"})},
        {call(radioSetPingpongBarSetting, 2, 7, 8, 9, 4),
         chained({R"(AT+EGMC=1,"irat_ping_pong_bar_setting",7,8,9)",
                  R"(AT+ESBP=5,"SBP_ENABLE_PINGPONG_BAR_LTE",0)",
                  R"(AT+ESBP=5,"SBP_ENABLE_PINGPONG_BAR_NR",1)"}),
         "VornAtClient::setPingpongBarSetting type=2,barTime=7,period=8,hitCnt=9,reserve=4"},
        {call(radioPerformRetHighRat, 4, 1), "AT+ERETLTE"},
        {call(radioPerformRetHighRat, 5, 1), "AT+ERETNR"},
        {call(radioSetRedirectOptSetting, 1, 2, 3, 4, 5, 6),
         R"(AT+ESBP=5,"SBP_CONTINUOUS_4G5_REDIRECTION_FAILURE",1)"},
        {call(radioSetAttachPriority, 1, 2, 3, 4, 5),
         R"(AT+ESBP = 5,"SBP_MODIFY_NON_DATA_SIM_GMM_ATTACH_PRIORITY_TO_LOW_MSPM_PRIORITY",1)"},
    });
    checkQueries({
        {call(radioGetQrxlvminCfg, 13), R"(AT+EGMC=0,"customize_q_rxlv_min")",
         R"(+EGMC: "customize_q_rxlv_min",1,2, 3,-1)", packed(13, 2, 3, -1),
         "getQrxlvminCfg: lte qrxlvminRsp rat:13, is: 2,3,-1"},
        {call(radioGetQrxlvminCfg, 20), R"(AT+EGMC=0,"EGMC_NRRC_CAMP_ON_CRITERIA")",
         R"(+EGMC: "EGMC_NRRC_CAMP_ON_CRITERIA",1,2,3,4,5,6)", packed(20, 1, 2, 3, 4, 5, 6),
         "getQrxlvminCfg : qrxlvminRsp nr rat:20, is: 1,2,3,4,5,6"},
    });
    const std::string order = "setRatScan: unknown order, count:";
    checkAtRefusals({
        {call(radioSetBackgroundSearch, 2, true, true), "unknown rat!"},
        {setQrxlvmin(10), "setQrxlvminCfg: invalid option: 10"},
        {call(radioGetQrxlvminCfg, 5), "getQrxlvminCfg: unknown rat, rat:5"},
        {arrearage(10), "setArrearageCfg: invalid option: 10"},
        {arrearage(19), "setArrearageCfg: result: 1"},
        {call(radioSetRatScan, nullptr, 4), order + "4"},
        {ratScan({}), order + "0"},
        {ratScan({5, 4, 1}), order + "3"},
        {ratScan({1, 4, 5, 0}), order + "4"},
        {lockCell(1, 0, 0), "lockCellAndBand: invalid lock type 1 or band indicator 0"},
        {lockCell(-1, 0, 0), "lockCellAndBand: invalid lock type -1 or band indicator 0"},
        {lockCell(3, 2, 0), "lockCellAndBand: invalid lock type 3 or band indicator 2"},
        {lockCell(3, -1, 0), "lockCellAndBand: invalid lock type 3 or band indicator -1"},
        {call(radioSetPingpongBarSetting, -1, 1, 2, 3, 4), "setPingpongBarSetting: invalid type: -1"},
        {call(radioPerformRetHighRat, 3, 0), "performRetHighRat: unknown rat, rat:3"},
    });
}

TEST(Camping, SwitchesByName)
{
    const auto redirect = [](int a1, int a2, int on) {
        return call(&VornVsClient::setRedirectOptSetting, a1, a2, on, 1, 1, 1);
    };
    const auto attach = [](int a1, int a2, int on, int a4) {
        return call(&VornVsClient::setAttachPriority, a1, a2, on, a4, 1);
    };
    const auto row = [](const Texts& log, const Call& set, const char* name, uint8_t sent) {
        return RequestRow{log, set, 99, {uint8(256, 5), text(258, name), uint8(259, sent)}};
    };
    constexpr char kRedirect[] = "SBP_CONTINUOUS_4G5_REDIRECTION_FAILURE";
    constexpr char kAttach[] = "SBP_MODIFY_NON_DATA_SIM_GMM_ATTACH_PRIORITY_TO_LOW_MSPM_PRIORITY";
    checkVendorRows({
        row("setRedirectOptSetting - enter", redirect(4, 7, 9), kRedirect, 1),
        row({}, redirect(4, 7, 0), kRedirect, 0),
        row("setAttachPriority - enter", attach(0, 2, 256, 0), kAttach, 1),
        row({}, attach(0, 2, 0, 0), kAttach, 0),
    });
    checkRefusals("D VornVsClient: ", {{redirect(4, 6, 1), "setRedirectOptSetting - enter", 2},
                                       {redirect(5, 7, 1), "setRedirectOptSetting - enter", 2},
                                       {attach(1, 2, 1, 0), "setAttachPriority - enter", 2},
                                       {attach(0, 1, 1, 0), "setAttachPriority - enter", 2},
                                       {attach(0, 2, 1, 1), "setAttachPriority - enter", 2}});
}

using CampingAnswers = AtTest;

TEST_F(CampingAnswers, AreOfTheRightLength)
{
    const std::pair<int, const char*> malformed[] = {{13, "+EGMC: a,1,2,3"},
                                                     {13, "+EGMC: a,1,2,3,4,5"},
                                                     {13, "+EGMC: a,1,2,x,4"},
                                                     {20, "+EGMC: a,1,2,3,4,5"}};
    for (const auto& [rat, data] : malformed) {
        const char* item = rat == 13 ? "customize_q_rxlv_min" : "EGMC_NRRC_CAMP_ON_CRITERIA";
        ask(call(radioGetQrxlvminCfg, rat), "AT+EGMC=0,\"" + std::string(item) + '"', accepted(data), 1);
    }
    EXPECT_EQ(log.count("E VornAtClient: invalid param lte, split error!"), 2);
    EXPECT_TRUE(log.has("E VornAtClient: invalid param nr, split error!"));
    EXPECT_EQ(start(call(radioSetBackgroundSearch, 1, true, false)), 0); // nothing to do
    drainTimer();
    expectEnd(0);
}
