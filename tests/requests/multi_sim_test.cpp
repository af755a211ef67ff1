#include "support/at_fixture.h"

using namespace test;

TEST(MultiSim, Requests)
{
    const auto thresholds = [](const Texts& log, int rat, int first, int16_t sentFirst, int second,
                               int16_t sentSecond) {
        return setter(log, radioSetDsdaPreferCustThresh, 4437,
                      {uint8(258, static_cast<uint8_t>(rat)), int16(256, sentFirst), int16(257, sentSecond)},
                      rat, first, second);
    };
    checkStandardRows({
        query(Flag, "getMsimSubModeState - enter", radioGetMsimSubModeState, 555, {},
              {uint8(257, 3), uint8(258, 255)}, packed(0u, 3u, 255u)),
        thresholds("setDsdaPreferCustThresh - enter", 4, -10, -40, 20, 80),
        thresholds({}, 7, -10, -10, 20, 20),
        thresholds({}, 4, INT32_MIN, 0, INT32_MAX, -4),
    });
    const std::string line = "setDsdaPreferCustThresh - enter";
    checkRefusals("D VornRadioClient: ", {{call(radioSetDsdaPreferCustThresh, 5, 1, 2), line, 2},
                                          {call(radioSetDsdaPreferCustThresh, 260, 1, 2), line, 2}});
    checkSettings({{call(radioSetMsimSubModePref, 2), R"(AT+ESBP=5,"SBP_DSDA",2)",
                    "setMsimSubModePref - enter. slotId=1 mode=2"}});
}
