#include "support/at_fixture.h"

using namespace test;

TEST(Search, Requests)
{
    const auto unblock = [](const Texts& log, int mcc, int mnc, uint8_t threeDigits, const std::string& plmn,
                            int rat = 5, uint8_t ratSent = 5) {
        return setter(log, radioPerformPlmnUnblock, 4427,
                      {raw(256, {plmn.begin(), plmn.end()}), raw(257, {ratSent}), raw(258, {0x34})},
                      RadioPlmnBlockInfo{0x1234, rat, 7, mcc, mnc, threeDigits});
    };
    const auto forbiddenTai = [](const Texts& log, int mcc, int mnc, bool threeDigits,
                                 const std::string& plmn) {
        Bytes tai(plmn.begin(), plmn.end());
        tai.resize(8);
        return setter(log, radioClearForbiddenTai, 4415,
                      {raw(256, {2}), raw(257, joined({tai, {0x78, 0x56}}))}, 9, mcc, mnc, threeDigits,
                      0x345678, 0x102);
    };
    const auto outOfService = [](int option, int enable = 0) {
        return call(radioSetOosCfg, RadioOosCfgInfo{enable, option, 1, 2, 3, 4, 5, 6, 1, 2, 3, 4, 5});
    };
    checkVendorRows(
        {setter({entered("radioHplmnBgSearch"), "hplmnBgSearch - enter, repeat_interval=65543"},
                radioHplmnBgSearch, 0x11B1, {uint16(256, 7)}, RadioHplmnBgSearchInfoType{1, 2, 65543})});
    checkStandardRows({
        unblock({"performPlmnUnblock - enter", "performPlmnUnblock - plmn_str=46001, len=5"}, 460, 1, 0,
                "46001", 0, 4),
        unblock({}, 460, 1, 1, "460001", 1, 128),
        unblock({}, 460, 12, 1, "460012", -1, 255),
        unblock({}, 1, 0, 0, "100"),
        unblock({}, 460, 123, 0, "460123"),
        unblock({}, 4600, 123, 0, "460012"),
        unblock({}, 46000, 123, 1, "460001"),
        forbiddenTai({"clearForbiddenTai - enter", "clearForbiddenTai - plmn_str=101, len=3"}, 1, 1, false,
                     "101"),
        forbiddenTai({}, 310, 26, true, "310026"),
        forbiddenTai({}, -2147483647, -1, true, "-21474"),
        query(Flag,
              "configCellBarringParam - enter. slotId=2 threshold=4660 watchPeriod=3430008 barringTime=-1",
              radioConfigCellBarringParam, 4373,
              {uint8(256, 0x34), uint16(257, 0x5678), uint32(258, 0xFFFFFFFF)}, {}, {}, 0x1234u, 0x345678u,
              0xFFFFFFFFu),
        setter({"E VornApis: radioSetOosCfg : radioSetOosCfg tlssubid 2", "setOosSnifferCfg - enter"},
               radioSetOosCfg, 4469,
               {uint8(256, 7), uint8(257, 8), uint8(258, 9), uint8(259, 10), uint8(260, 255)},
               RadioOosCfgInfo{1, 100, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0x10A, -1}),
    });
    const std::string recovery = R"(AT+ESBP=5,"SBP_INACTIVE_MODE_SERVICE_RECOVERY)";
    checkSettings({
        {outOfService(1), "AT+ERSCFG=1,1,2,2,2,2,3,3,3,3,3,3,4,4,4,4,4,4,4,5,5,5,5",
         "setOosCfg: nwsel_oos_cfg_strcmd: AT+ERSCFG=1,1,2,2,2,2,3,3,3,3,3,3,4,4,4,4,4,4,4,5,5,5,5"},
        {outOfService(2), "AT+ESRVREC=1,2,3,,5,6", "setOosCfg: nwsel_gmss_oos_strcmd: AT+ESRVREC=1,2,3,,5,6"},
        {outOfService(3, 9), recovery + R"(_GMSS_CONTROL",1)", "setOosCfg: option=3, enable=9"},
        {outOfService(3), recovery + R"(_GMSS_CONTROL",0)", "setOosCfg: result: 0"},
        {outOfService(4, -1), recovery + R"(",1)"},
        {outOfService(4), recovery + R"(",0)"},
        {outOfService(5), "AT+ESRVREC=,,,4"},
    });
    checkAtRefusals({{outOfService(6), "setOosCfg: invalid option: 6"}});
}
