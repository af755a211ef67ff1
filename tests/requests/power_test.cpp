#include "support/at_fixture.h"

using namespace test;

TEST(Power, Requests)
{
    // Heaps whose names fill their place.
    const auto heaps = [](const Texts& log, uint32_t count) {
        Bytes block = packed(1, 2, 3, 4, 5, count);
        RadioModemHeapList list{1, "modem_pool", 2, 3, 4, 5, count, {}};
        for (uint32_t i = 0; i < count; ++i) {
            append(block, joined({Bytes(20, 'n'), packed(100 + i, 200 + i)}));
            list.heaps[i] = {"nnnnnnnnnnnnnnnnnnn", 100 + i, 200 + i};
        }
        return query(Untold, log, radioGetModemHeapList, 0x3845, {}, {raw(256, block)}, packed(list));
    };
    checkVendorRows({
        setter("setPowerSavingState - enter. setPowerSavingState type=2 op=3 dl=4 ul=5 delay=6 cnt=7",
               radioSetPowerSavingState, 0x3807, int32s(256, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
               UAIINFO{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
        setter(
            {"setSmartIdleCfg - enter", "smart_idle_config , type:67305985, nr_t:134678021, nr_c:202050057"},
            radioSetSmartIdleCfg, 0x386B, 20),
        setter({"setPowerBoostState - enter", "setPowerBoostState - cb enter"}, radioSetPowerBoostState,
               0x383F),
        query(Flag, {"getPowerStatistics - enter", "getPowerStatistics cb enter"}, radioGetPowerStatistics,
              0x386D, {}, {}, {}),
        heaps("getModemHeapList - enter", 50),
        heaps({}, 0),
        query(Untold,
              {"getModemHeapList - enter",
               "E VornVsClient: getModemHeapList cb error, invalid VORN_VS_GET_MODEM_HEAP_LIST_CNF_T_INFO"},
              radioGetModemHeapList, 0x3845, {}, {}, {}),
    });
    checkStandardRows({
        setter("setFastDormancyTimer - enter", radioSetFastDormancyTimer, 1055, {uint8(256, 2)}, -1, -1),
        setter({}, radioSetFastDormancyTimer, 1055, {uint8(256, 2), uint32(257, 0), uint32(258, 0xFFFFFFFE)},
               0, -2),
    });
    const auto saving = [](int group) {
        return call(radioSetPowerSavingState, UAIINFO{group, 600, -1, 2, 3, 4, 5, 8, 9, 10});
    };
    checkSettings({
        {saving(1),
         chained({R"(AT+ESBP=5,"SBP_R16_WUS",-1)", R"(AT+ESBP=5,"SBP_NR_MIMO_LAYER_REDUCTION",2)",
                  R"(AT+ESBP=5,"SBP_ENHANCED_SKIP_UPLINK_TX_DYNAMIC",3)",
                  R"(AT+ESBP=5,"SBP_NR_RELEASE_PREFERENCE_ASSISTANCE_INFO",4)",
                  R"(AT+ESBP=5,"SBP_NR_REL16_UAI_POWER_SAVING",5)"}),
         "setPowerSavingState - enter. setPowerSavingState type=600 op=-1 dl=2 ul=3 delay=4 cnt=5,cgType=1"},
        {saving(2),
         chained({R"(AT+ESBP=5,"SBP_ENABLE_MODEM_IVSR",-1)", R"(AT+ESBP=5,"SBP_R13_DOS_ENHANCE",2)"})},
        {saving(3), R"(AT+ESBP=5,"SBP_CUSTOM_QRXLEVMIN_ADJ_NR",-1)"},
        {saving(4), R"(AT+ESBP=5,"SBP_GMSS_NO_SIM_SKIP_LTE_NR_SEARCH",-1)"},
        {saving(5), R"(AT+ESBP=6,"SBP_SAF_ASSISTANT_LOW_POWER_CONTROL",-1)"},
        {call(radioUpdateDcdcSleepState, 1), R"(AT+EGMC=1,"etm_set_hfp_fpwm",3,1)"},
        {call(radioUpdateDcdcSleepState, 15),
         chained({R"(AT+EGMC=1,"etm_function_cmd",2,65535)", R"(AT+EGMC=1,"etm_set_hfp_fpwm",1)"})},
        {call(radioUpdateDcdcSleepState, 12), chained({R"(AT+EGMC=1,"etm_set_hfp_fpwm",0)"}),
         Texts{"VornAtClient::updateDcdcSleepState state=12",
               "VornAtClient::updateDcdcSleepState is_sleep=0  is_rx_follow_tx=0 is_100k=1 is_rq4120=1 "}},
        {call(radioUpdateDcdcSleepState, 10), chained({R"(AT+EGMC=1,"etm_function_cmd",3,65535)"})},
        {call(radioSendFastDormancy), "AT+ESCRI", "sendFastDormancy - enter. slotId=1"},
        {call(radioSetPSConformanceMode, 1, -2), "AT+EPCT=1,-2"},
    });
    checkQueries({
        {call(radioQueryFastDormancyMode), "AT+EPCT?", "+EPCT: 5", packed(1, 5), Texts(), 0, 0},
        {call(radioQueryLegacyFastDormancyMode), R"(AT+ESBP=7,"SBP_DISABLE_PRE_R8_FD_SCRI")",
         "+ESBP: 1,2,3,4,5,6,7,8,9", packed(8, 1, 2, 3, 4, 5, 6, 7, 8), Texts(), 0, 0},
    });
    checkAtRefusals({
        {call(radioSetPowerSavingState, UAIINFO{.cgType = 6, .type = 600}),
         "setPowerSavingState: invalid cgType: 6"},
        {call(radioUpdateDcdcSleepState, 8),
         "Invalid state for RQ4120: both is_rx_follow_tx and is_100k are false"},
    });
}

TEST(Power, RefusesMoreHeapsThanTheRecordHolds)
{
    const Instance instance(0);
    const LogCapture log;
    auto& modem = FakeModem::instance();
    for (const uint32_t count : {51u, 0xFFFFFFFFu}) {
        Caller caller;
        radioGetModemHeapList(&caller, Caller::onResult);
        modem.answer({result(0), raw(256, packed(1, 2, 3, 4, 5, count))});
        EXPECT_EQ(caller.result, RADIO_APIS_INVALID_PARAMETER);
        EXPECT_FALSE(caller.hadRecord);
    }
    EXPECT_EQ(log.count("E VornVsClient: error : invalid param"), 2);
}
