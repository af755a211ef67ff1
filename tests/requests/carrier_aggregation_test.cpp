#include "support/at_fixture.h"

using namespace test;

TEST(CarrierAggregation, Requests)
{
    const std::string tooLong(300, 'x');
    const std::string badText = ": the text is missing, or holds a control character or a double quote";
    checkSettings({
        {call(radioSetCaStatus, 4, true), "AT+ECASW=1"},
        {call(radioSetCaStatus, 4, false), "AT+ECASW=0"},
        {call(radioSetCaStatus, 5, true), R"(AT+ESBP=5,"SBP_NR_CA",1)"},
        {call(radioSetCaStatus, 5, false), R"(AT+ESBP=5,"SBP_NR_CA",0)"},
        {call(radioSetNrcaConfig, uint8_t{255}, uint8_t{9}), R"(AT+ESBP=5,"SBP_NR_CA",255)"},
        {call(radioSetBwpConfig, uint8_t{1}, uint8_t{9}), R"(AT+ESBP=5,"SBP_NR_BWP_SWITCH",1)"},
        {call(radioSetWhiteSANRCAConfig, "n78A,n1"), R"(AT+ECACOMB=1,4,"n78A,n1",1)"},
        {call(radioSetBlackSANRCAConfig, "a%s"), R"(AT+ECACOMB=1,5,"a%s",1)"},
        {call(radioSetWhiteNSANRCAConfig, tooLong.c_str()), R"(AT+ECACOMB=1,2,")" + std::string(239, 'x')},
        {call(radioResetSANSAWhiteList, 4), R"(AT+ECACOMB=1,4,"reset",1)"},
        {call(radioSetDssConfig, 2), R"(AT+ESBP=5,"SBP_UE_CAP_DSS_PLMN_SUPPORTED_BAND_TABLE",2)"},
        {call(radioSetDssAdditionalConfig, 2), R"(AT+ESBP=5,"SBP_UE_CAP_DSS_ADDITIONAL_CTRL",2)"},
        {call(radioSetUst5gUCBandConfig, "1,3", "78"), R"(AT+E5GUC=2,,"1,3","78",,)"},
    });
    checkQueries({
        {call(radioGetCaStatus, 4), "AT+ECASW?", "+ECASW: 256", packed(256),
         "VornAtClient::getCaStatus caStatus=256", 0},
        {call(radioGetCaStatus, 5), R"(AT+ESBP=7,"SBP_NR_CA")", "+ESBP: 1", packed(1), Texts(), 0},
        {call(radioGetNrcaConfig), R"(AT+ESBP=7,"SBP_NR_CA")", "+ESBP: 257", packed(1),
         "VornAtClient::getNrcaConfig nrcaState=1", 0},
        {call(radioReadNRCAConfig), R"(AT+ESBP=7,"SBP_NR_CA")", "+ESBP: 2,1", packed(2),
         "VornAtClient::readNRCAConfig len=2", 0},
        {call(radioGetBwpConfig), R"(AT+ESBP=7,"SBP_NR_BWP_SWITCH")", "+ESBP: 1", packed(1),
         "VornAtClient::getBwpConfig bwpState=1", 0},
        {call(radioReadDssConfig), R"(AT+ESBP=7,"SBP_UE_CAP_DSS_PLMN_SUPPORTED_BAND_TABLE")", "+ESBP: 7",
         packed(7), "VornAtClient::readDssConfig type=1", 0},
    });
    checkAtRefusals({
        {call(radioSetCaStatus, 3, true), "setCaStatus: unknown rat, rat:3"},
        {call(radioGetCaStatus, 6), "getCaStatus: unknown rat, rat:6"},
        {call(radioSetWhiteSANRCAConfig, "a\"b"), "setWhiteSANRCAConfig" + badText},
        {call(radioSetBlackSANRCAConfig, "a\r\nAT"), "setBlackSANRCAConfig" + badText},
        {call(radioSetWhiteNSANRCAConfig, "\x7F"), "setWhiteNSANRCAConfig" + badText},
        {call(radioSetUst5gUCBandConfig, "1", "\""), "setUst5gUCBandConfig" + badText},
        {call(radioSetUst5gUCConfig, uint8_t{1}, uint8_t{2}, uint8_t{3}),
         "setUst5gUCConfig : unsupported operation, plese see Java setUst5gUCConfig instead"},
    });
}
