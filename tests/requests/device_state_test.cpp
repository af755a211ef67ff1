#include "support/at_fixture.h"

using namespace test;

TEST(DeviceState, Requests)
{
    int values[21] = {1, -2, 3};
    checkVendorRows({
        setter("sendScreenState - enter. slotId=2 screenState=-3", radioSendScreenState, 0x3801),
        query(Flag, "setMicroMotionState - enter. setMicroMotionState microMotionState=4 multiplier=-5",
              radioSetMicroMotionState, 0x3805, int32s(256, {4, -5}), {}, {}, 4, -5),
        setter({entered("radioSetSyncWithAp"), "setSyncWithAp - enter  "}, radioSetSyncWithAp, 0x380D),
        setter({entered("radioSetFeatureState"), "setFeatureState enter", "setFeatureState cb enter"},
               radioSetFeatureState, 0x381B),
        query(Untold, {entered("radioGetFeatureState"), "getFeatureState enter", "getFeatureState cb enter"},
              radioGetFeatureState, 0x381D, {int32(256, -6)}, {uint32(256, 9)}, packed(9), -6),
        setter({"D VornApis: radioDispatchCase: enter", "dispatchCase - enter",
                "dispatchCase: case=-1 param1=2 param2=3 param3=4"},
               radioDispatchCase, 0x3809, int32s(256, {-1, 2, 3, 4}), 0xFFFFFFFFu, 2, 3, 4),
        setter("setDiagnoseConfig - enter", radioSetDiagnoseConfig, 0x380B,
               {uint32(256, 7), numbers<int32_t>(257, {1, -2, 3})}, 7u, values, 3u),
        setter({entered("radioSetSidoIssueConfig"), "setSidoIssueConfig - enter",
                "operator() - setSidoIssueConfig response  "},
               radioSetSidoIssueConfig, 0x3811, {numbers<int32_t>(256, {values, values + 20})}, values, 20u),
    });
    checkListLimits<int>(radioSetDiagnoseConfig, 1u);
    checkInvalid("VornVsClient",
                 {call(radioSetSidoIssueConfig, nullptr, 0u), call(radioSetSidoIssueConfig, nullptr, 1u),
                  call(radioSetSidoIssueConfig, values, 21u), call(radioSetSidoIssueConfig, values, 65546u)});
    checkStandardRows({
        query(Code,
              {"sendDeviceStateExt - enter. sendDeviceStateExt deviceStateExt=-3 ",
               "operator() : rsp.DeviceStateExt.deviceStateExt=-4,getResult=0"},
              radioSendDeviceStateExt, 225, {int32(256, -3)}, {int32(256, -4)}, packed(0u, -4), -3),
        setter("setImbState - enter", radioSetImbState, 4429, {uint8(256, 0x34)}, 0x1234),
    });
    checkSettings({
        {call(radioUpdateFoldScreenStatus, 1), R"(AT+EDMFAPP=20000,204,"1")"},
        {call(radioSetImeiSvn, 10), R"(AT+EGMR=1,9,"0a")"},
    });
}
