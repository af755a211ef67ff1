#include "support/at_fixture.h"

using namespace test;

TEST(Rf, Requests)
{
    checkSettings({
        {call(radioSetAtcTableInit), R"(AT+EGMC=1,"RF_EM_Init")"},
        {call(radiosetAtcTableDeInit), R"(AT+EGMC=1,"RF_EM_DeInit")"},
    });
    const std::string unsupported = " : unsupported operation";
    checkAtRefusals({
        {call(radioSetTasForceIdxByRat, 1, 2, 3, 4), "setTasForceIdxByRat" + unsupported},
        {call(radioSetMaxTxPower, 1, 2, 3), "setMaxTxPower" + unsupported},
        {call(radioSetRfTxInfo, RFTXINFO{}), "setRfTxInfo" + unsupported},
        {call(radioGetTxAdc, TXADCINFO{}), "getTxAdc" + unsupported},
        {call(radioSetRfTxPower, RFTXINFO{}), "setRfTxPower" + unsupported},
        {call(radioSetComboRfTxInfo, std::vector<RFTXINFO>(1)), "setComboRfTxInfo" + unsupported},
    });
}

using RfPosition = AtTest;

TEST_F(RfPosition, IsFixedWithTheCommandsOfTheFeatureFile)
{
    instance.root.write(
        "my_product/etc/rf_feature_config.xml",
        R"(<feature id="3"><atcmd index="0"><cmd command="rat-4">1</cmd><cmd>AT+B</cmd></atcmd>
                         <atcmd index="1"/><atcmd index="2"><cmd>AT+A&#10;AT+B</cmd></atcmd></feature>)");
    for (const int code : {0, 1}) {
        ask(call(radioSetAsdivFixPosition, 3, 0), chained({"AT+ETXANT=4,1", "AT+B"}),
            code == 0 ? kOk : kError, code);
    }
    const std::pair<int, int> others[] = {{3, 1}, {3, 2}, {3, 9}, {4, 0}};
    for (const auto& [feature, index] : others) {
        checkRefusal(call(radioSetAsdivFixPosition, feature, index), 1,
                     "E VornAtClient: setAsdivFixPosition : no commands for feature " +
                         std::to_string(feature) + ", index " + std::to_string(index));
    }
}
