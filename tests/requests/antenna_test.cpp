#include "support/at_fixture.h"

using namespace test;

TEST(Antenna, Requests)
{
    checkVendorRows({
        setter({"setAolState - enter", "setAolState - cb enter"}, radioSetAolState, 0x3840),
        setter({"setMtplLimitState - enter", "setMtplLimitState - cb enter"}, radioSetMtplLimitState, 0x3841),
        setter({"setAntFixState - enter", "setAntFixState - cb enter"}, radioSetAntFixState, 0x3842),
        setter({"setAntBlockState - enter", "setAntBlockState - cb enter"}, radioSetAntBlockState, 0x3843),
        setter("setAntForceStateByRat - enter. slotId=2, rat=2, tas:On,", radioSetAntForceStateByRat, 0x3844,
               {uint8(256, 2), uint8(257, 2)}, 2, 1),
        setter("setAntForceStateByRat - enter. slotId=2, rat=3, tas:Off,", radioSetAntForceStateByRat, 0x3844,
               {uint8(256, 3), uint8(257, 1)}, 3, 0),
        setter("setTxPathFilter - enter, rat=-3, band=66, mode=2", radiosetTxPathFilter, 0x3881,
               {uint8(256, 253), uint32(257, 66), uint32(258, 2)}, int8_t{-3}, 66, 2),
    });
    const auto carkit = [](const Texts& log, int radioTech, uint8_t rat, size_t answered, uint32_t kept) {
        return query(Flag, log, radioGetTxCarkit, 29,
                     {uint32(256, 0), text(257, "VornGetAtc"), raw(0x8102, {0x4E, 1, rat, 0})},
                     {raw(0x8100, counting(answered))}, joined({packed(0u, kept), counting(kept)}), radioTech,
                     0x2014E, 5, 9);
    };
    checkStandardRows({
        carkit({"getTxCarkit -VornVsClient enter. radioTech=6, uiBand=131406, subband=5, slotId=2",
                "VornRadioClient enter. getBandsTxNum radioTech = 6, uiBand = 131406, msg_len=3"},
               6, 1, 3, 3),
        carkit({}, 7, 1, 513, 512),
        carkit({}, 2, 0, 0, 0),
        carkit({}, 5, 0, 1, 1),
        carkit({}, 1, 255, 1, 1),
    });
    checkSettings({
        {call(radioSetAntForceStateByRat, 4, 1), R"(AT+EGMC = 1,"NrTas_onoff",1)"},
        {call(radioSetAolScenario, 4), "AT+ERFIDX=0,4"},
    });
}
