#include "support/at_fixture.h"

using namespace test;

TEST(Ims, Requests)
{
    checkVendorRows({
        setter("setImsAudioQualityThreshold - enter", radioSetImsAudioQualityThreshold, 0x385B, 88),
        setter("setAdaptiveHandoverThreshold - enter", radioSetAdaptiveHandoverThreshold, 0x385D, 24),
        setter("setImsRtpInfo - enter", radioSetImsRtpInfo, 0x3867, 8),
        setter("setImsRtpThreshold - enter", radioSetImsRtpThreshold, 0x3869, 36),
    });
    checkSettings({
        {call(radioSetCarrierOmacpFqdn, "epdg.example"), R"(AT+EPVSSET="epdg_identifier","epdg.example")"},
        {call(radioSetCiwlanUiSwitch, false), "AT+EVODATA=0,0,0,0",
         "VornAtClient setCiwlanUiSwitch enable=0"},
    });
    checkQueries({{call(radioGetImsUssdEnabled), R"(AT+ECFGGET="ussd_support")", "+ECFGGET: 1", packed(1),
                   "getImsUssdEnabled: ENTER", 0}});
    checkAtRefusals({{call(radioSetCarrierOmacpFqdn, nullptr),
                      "setCarrierOmacpFqdn: the text is missing, or holds a control character or a double "
                      "quote"}});
}

using ImsSwitch = AtTest;

TEST_F(ImsSwitch, TellsOnlyOfTheSecondOfTwoCommands)
{
    ASSERT_EQ(start(call(radioSetCiwlanUiSwitch, true)), 0);
    ASSERT_EQ(modem.sent.size(), 2u);
    EXPECT_EQ(command(), "AT+EWFCP=1");
    modem.answer(kError);
    EXPECT_EQ(caller.calls, 0);
    EXPECT_EQ(command(), "AT+EVODATA=1,0,0,1");
    modem.answer(kOk);
    expectEnd(0);
}
