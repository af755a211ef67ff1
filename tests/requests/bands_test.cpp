#include "support/at_fixture.h"

using namespace test;

namespace {

Call setBands(int rat, const Bytes& bands)
{
    return [=](void* user, RadioRequestCallback cb) {
        return radioSetBandPrefer(rat, bands.data(), static_cast<unsigned>(bands.size()), user, cb);
    };
}

using BandAnswers = AtTest;

} // namespace

TEST(Bands, Requests)
{
    checkSettings({
        {setBands(0, {0x80, 0, 0, 0x0A}), "AT+EPBSE=2147483658"},
        {setBands(1, {0, 0, 0, 5, 9, 9, 9, 9}), "AT+EPBSE=,5"},
        {setBands(3, {0, 0, 0, 1}), "AT+ECBANDCFG=1"},
        {setBands(0x70004, {0, 0, 0, 1, 0, 0, 0, 3}), "AT+EPBSE=,,1,3"},
        {setBands(5, {0, 0, 0xAB, 0xCD}), R"(AT+EPBSEH=,,,"0000ABCD")"},
        {setBands(6, {0, 0, 0xAB, 0xCD}), R"(AT+EPBSEH=,,,,,"0000ABCD")"},
        // Cut at the room that the command has.
        {setBands(5, Bytes(400, 0xFF)), R"(AT+EPBSEH=,,,")" + std::string(400 + 127 - 14, 'F')},
    });
    const auto getBands = [](int rat) { return call(radioGetBandPrefer, rat); };
    const std::string unsupported = "getBandPrefer : unsupported getBandPrefer with request rat: ";
    checkAtRefusals({
        {setBands(2, {0, 0, 0, 1}), "setBandPrefer : unsupported setBandPrefer rat: 2"},
        {getBands(2), unsupported + "2"},
        {getBands(7), unsupported + "7"},
        {getBands(-1), unsupported + "-1"},
        {getBands(-1), "getBandPrefer rat: -1, un signed: 4294967295"},
        {call(radioGetBand, 2), "unknown rat!"},
    });
}

TEST_F(BandAnswers, ArePreferences)
{
    for (const Bytes& bands : {Bytes{1, 2}, Bytes{1, 2, 3, 4, 5, 6}, Bytes(), Bytes(65536 - 128)}) {
        EXPECT_EQ(start(setBands(5, bands)), 1);
    }
    EXPECT_EQ(start(call(radioSetBandPrefer, 0, nullptr, 4u)), 1);
    EXPECT_TRUE(modem.sent.empty());

    std::string many = "+EPBSE: 1,2";
    for (int i = 0; i < 65; ++i) {
        many += ",1";
    }
    const struct {
        int selector;
        const char* command;
        std::string data; ///< of the answer
        int result;
        Bytes bands;
        const char* log;
    } cases[] = {
        {0, "AT+EPBSE=?", "+EPBSE: 154,5,1", 0, {0, 0, 0, 154}, ""},
        {65537, "AT+EPBSE?", "+EPBSE: 154,-1", 0, {255, 255, 255, 255}, ""},
        {65540, "AT+EPBSE?", "+EPBSE: 1,2,3,4294967295", 0, {0, 0, 0, 3, 255, 255, 255, 255}, "bands size:4"},
        {3, "AT+ECBANDCFG?", "+ECBANDCFG: 1", 0, {0, 0, 0, 1}, "cb: type:0, rat:3"},
        {65541, "AT+EPBSEH?", "+EPBSEH: 1,2,3,0x00aB", 0, {0, 0xAB}, "cb: type:1, rat:5"},
        {6, "AT+EPBSEH=?", "+EPBSEH: 1,2,3,4, \"000C\"", 0, {0, 12}, ""},
        {6, "AT+EPBSEH=?", "+EPBSEH: 1,2,3,4", 1, {}, "expected at least 5"},
        {5, "AT+EPBSEH=?", "+EPBSEH: 1,2,3", 1, {}, "expected at least 4"},
        {4, "AT+EPBSE=?", "+EPBSE: 1,2", 1, {}, "expected at least 3"},
        {1, "AT+EPBSE=?", "+EPBSE: 1", 1, {}, "expected at least 2"},
        {0, "AT+EPBSE=?", "+EPBSE: 4294967296", 1, {}, ": NumberFormatException!!"},
        {4, "AT+EPBSE=?", "+EPBSE: 1,2,3,,5", 1, {}, ": NumberFormatException!!"},
        {5, "AT+EPBSEH=?", "+EPBSEH: 1,2,3,0A0", 1, {}, ": hexStringToByteArray error"},
        {4, "AT+EPBSE=?", many, 1, {}, ""},
        {5, "AT+EPBSEH=?", "+X: 1,2,3," + std::string(514, 'A'), 1, {}, ""},
        {0, "AT+EPBSE=?", "", 1, {}, ""},
        {0, "AT+EPBSE=?", "ERROR", 1, {}, ""},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << "row " << &row - cases);
        log.clear();
        ASSERT_EQ(start(call(radioGetBandPrefer, row.selector)), 0);
        EXPECT_EQ(command(), row.command);
        modem.answer(row.data == "ERROR" ? kError : accepted(row.data));
        EXPECT_EQ(caller.result, row.result);
        const auto& out = caller.record.rsp.bandPrefer;
        EXPECT_EQ(out.rat, row.selector & 0xFFFF);
        EXPECT_EQ(out.current, row.selector >> 16);
        EXPECT_EQ(Bytes(out.bands, out.bands + out.length), row.bands);
        EXPECT_THAT(log.lines(), testing::Contains(testing::HasSubstr(row.log)));
    }
}

TEST_F(BandAnswers, AreBitsOfUserInterfaces)
{
    constexpr uint64_t one = 1;
    const Texts cdma = {"AT+EWMPOLICY=0\r\n", "AT+ECSRA=2,1,0,1,1,0\r\n", "AT+ECBANDCFG?\r\n"};
    const struct {
        int nwType;
        Texts commands;
        std::string data; ///< of the answer
        int result;
        uint64_t low = 0;
        uint64_t high = 0;
    } cases[] = {
        {0, "AT+EPBSE=?", "+EPBSE: 130,1", 0, one << 8 | one << 19},
        {1, "AT+EPBSE=?", "+EPBSE: 0,3", 0, one << 22 | one << 23},
        {4, "AT+EPBSE=?", "+EPBSE: 0,0,1,2,3", 0, one << 33 | 1, 3},
        {5, "AT+EPBSEH=?", "+EPBSEH: 0,0,0,\"20000000000000000F\"", 0, 15, 0x20},
        {3, cdma, "+ECBANDCFG: 0x01", 0, 2},
        {3, cdma, "ERROR", 1},
        {3, cdma, "+ECBANDCFG: 0x", 1},
        {3, cdma, "+ECBANDCFG: \"\"", 1},
        {3, cdma, "+ECBANDCFG: x", 1},
        {3, cdma, "+ECBANDCFG: 1x", 1},
        {0, "AT+EPBSE=?", "ERROR", 1},
        {1, "AT+EPBSE=?", "+EPBSE: 0", 1},
        {4, "AT+EPBSE=?", "+EPBSE: 0,0,x", 1},
        {4, "AT+EPBSE=?", "+EPBSE: 1,1", 1},
        {5, "AT+EPBSEH=?", "+EPBSEH: x,x,x,x", 1},
        {5, "AT+EPBSEH=?", "+EPBSEH: 0,0,0,\"0x\"", 1},
        {5, "AT+EPBSEH=?", "+EPBSEH: 0,0,0,\"\"", 1},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << "row " << &row - cases);
        const Bytes record = packed(row.nwType, 0, row.low, row.high); // with what is between the members
        ask(call(radioGetBand, row.nwType), row.commands, row.data == "ERROR" ? kError : accepted(row.data),
            row.result, row.result == 0 ? record : Bytes());
    }
}

TEST_F(BandAnswers, AreListsAndCounts)
{
    const std::pair<const char*, int> modes[] = {
        {"+EPBSE: 1,2,3,4", 0}, {"+EPBSE: 1", 1}, {"+EPBSE: 1,2,a", 1}};
    for (const auto& [text, code] : modes) {
        ask(call(radioGetAvailableBandModes), "AT+EPBSE?", accepted(text), code,
            code == 0 ? packed(RadioBandModes{1, 2, 2, {3, 4}}) : Bytes());
    }
    const std::pair<const char*, int> counts[] = {
        {"+EGMC: \"QueryTxVerifyIdx\",2", 0}, {"+EGMC: 2", 0}, {"+EGMC: 2,x", 1}, {"", 1}};
    for (const auto& [line, code] : counts) {
        ask(call(radioGetBandsTxNum, 4, 78, 1), chained({"AT", R"(AT+EGMC=1,"QueryTxVerifyIdx",4,78)"}),
            accepted(line), code, packed(code == 0 ? 2 : 0));
    }
    expectLog("getBandsTxNum : result->rsp.bandTxNumInfo.bandTxNum=2");
}
