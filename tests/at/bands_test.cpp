#include "at/rf_test_helper.h"
#include "at_fixture.h"

using namespace test;

namespace {

using Bands = AtTest;

} // namespace

TEST_F(Bands, AreSetWithTheModemsText)
{
    const struct {
        int rat;
        Bytes bands;
        const char* command; ///< null: refused
    } cases[] = {
        {0, {0x80, 0, 0, 0x0A}, "AT+EPBSE=2147483658"},
        {1, {0, 0, 0, 5, 9, 9, 9, 9}, "AT+EPBSE=,5"},
        {3, {0, 0, 0, 1}, "AT+ECBANDCFG=1"},
        {0x70004, {0, 0, 0, 1, 0, 0, 0, 3}, "AT+EPBSE=,,1,3"},
        {5, {0, 0, 0xAB, 0xCD}, "AT+EPBSEH=,,,\"0000ABCD\""},
        {6, {0, 0, 0xAB, 0xCD}, "AT+EPBSEH=,,,,,\"0000ABCD\""},
        {5, {1, 2}, nullptr},
        {5, {1, 2, 3, 4, 5, 6}, nullptr},
        {5, {}, nullptr},
        {2, {0, 0, 0, 1}, nullptr},
        {5, Bytes(65536 - 128), nullptr},
    };
    for (const auto& row : cases) {
        log.clear();
        const int refused = radioSetBandPrefer(
            row.rat, row.bands.data(), static_cast<unsigned>(row.bands.size()), &caller, Caller::onResult);
        EXPECT_EQ(refused, row.command == nullptr ? 1 : 0);
        EXPECT_EQ(command(), row.command == nullptr ? "" : row.command);
        EXPECT_EQ(log.has("E VornAtClient: setBandPrefer : unsupported setBandPrefer rat: 2"), row.rat == 2);
        answerAll();
    }
    EXPECT_EQ(radioSetBandPrefer(0, nullptr, 4, &caller, Caller::onResult), 1);
    // Cut at the room that the command has.
    const Bytes many(400, 0xFF);
    EXPECT_EQ(radioSetBandPrefer(5, many.data(), 400, &caller, Caller::onResult), 0);
    EXPECT_EQ(command(), "AT+EPBSEH=,,,\"" + std::string(400 + 127 - 14, 'F'));
    answerAll();
}

TEST_F(Bands, ArePreferredAsAnswered)
{
    std::string many = "+EPBSE: 1,2";
    for (int i = 0; i < 65; ++i) {
        many += ",1";
    }
    const std::string tooLong = "+X: 1,2,3," + std::string(514, 'A');
    const struct {
        int selector;
        const char* command;
        const char* data; ///< of the answer; null: it is refused
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
        {4, "AT+EPBSE=?", many.c_str(), 1, {}, ""},
        {5, "AT+EPBSEH=?", tooLong.c_str(), 1, {}, ""},
        {0, "AT+EPBSE=?", "", 1, {}, ""},
        {0, "AT+EPBSE=?", nullptr, 1, {}, ""},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << "row " << &row - cases);
        log.clear();
        ASSERT_EQ(radioGetBandPrefer(row.selector, &caller, Caller::onResult), 0);
        EXPECT_EQ(command(), row.command);
        modem.answer(row.data == nullptr ? answer("\r\nERROR\r\n") : accepted(row.data));
        EXPECT_EQ(caller.result, row.result);
        const auto& out = caller.record.rsp.bandPrefer;
        EXPECT_EQ(out.rat, row.selector & 0xFFFF);
        EXPECT_EQ(out.current, row.selector >> 16);
        EXPECT_EQ(Bytes(out.bands, out.bands + out.length), row.bands);
        EXPECT_THAT(log.lines(), testing::Contains(testing::HasSubstr(row.log)));
    }
    for (const int rat : {2, 7, -1}) {
        EXPECT_EQ(radioGetBandPrefer(rat, &caller, Caller::onResult), 1);
        EXPECT_TRUE(log.has("E VornAtClient: getBandPrefer : unsupported getBandPrefer with request rat: " +
                            std::to_string(rat)));
    }
    EXPECT_TRUE(log.has("E VornAtClient: getBandPrefer rat: -1, un signed: 4294967295"));
}

TEST_F(Bands, AreToldInBitsOfUserInterfaces)
{
    constexpr uint64_t one = 1;
    const struct {
        int nwType;
        std::string command;
        const char* data; ///< of the answer; null: it is refused
        int result;
        uint64_t low = 0;
        uint64_t high = 0;
    } cases[] = {
        {0, "AT+EPBSE=?", "+EPBSE: 130,1", 0, one << 8 | one << 19},
        {1, "AT+EPBSE=?", "+EPBSE: 0,3", 0, one << 22 | one << 23},
        {4, "AT+EPBSE=?", "+EPBSE: 0,0,1,2,3", 0, one << 33 | 1, 3},
        {5, "AT+EPBSEH=?", "+EPBSEH: 0,0,0,\"20000000000000000F\"", 0, 15, 0x20},
        {3, "AT+ECBANDCFG?\r\n", "+ECBANDCFG: 0x01", 0, 2},
        {3, "AT+ECBANDCFG?\r\n", nullptr, 1},
        {3, "AT+ECBANDCFG?\r\n", "+ECBANDCFG: 0x", 1},
        {3, "AT+ECBANDCFG?\r\n", "+ECBANDCFG: \"\"", 1},
        {3, "AT+ECBANDCFG?\r\n", "+ECBANDCFG: x", 1},
        {3, "AT+ECBANDCFG?\r\n", "+ECBANDCFG: 1x", 1},
        {0, "AT+EPBSE=?", nullptr, 1},
        {1, "AT+EPBSE=?", "+EPBSE: 0", 1},
        {4, "AT+EPBSE=?", "+EPBSE: 0,0,x", 1},
        {4, "AT+EPBSE=?", "+EPBSE: 1,1", 1},
        {5, "AT+EPBSEH=?", "+EPBSEH: x,x,x,x", 1},
        {5, "AT+EPBSEH=?", "+EPBSEH: 0,0,0,\"0x\"", 1},
        {5, "AT+EPBSEH=?", "+EPBSEH: 0,0,0,\"\"", 1},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << "row " << &row - cases);
        ASSERT_EQ(start(call(radioGetBand, row.nwType)), 0);
        for (const char* first : {"AT+EWMPOLICY=0\r\n", "AT+ECSRA=2,1,0,1,1,0\r\n"}) {
            if (row.nwType == 3) {
                EXPECT_EQ(command(), first);
                modem.answer(answer("OK"));
            }
        }
        EXPECT_EQ(command(), row.command);
        modem.answer(row.data == nullptr ? answer("\r\nERROR\r\n") : accepted(row.data));
        EXPECT_EQ(caller.result, row.result);
        const Bytes record = packed(row.nwType, 0, row.low, row.high); // with what is between the members
        expectRecord(caller.record.rsp, row.result == 0 ? record : Bytes());
    }
    EXPECT_EQ(radioGetBand(2, &caller, Caller::onResult), 1);
    EXPECT_TRUE(log.has("E VornAtClient: unknown rat!"));
}

TEST_F(Bands, AreListedAndCounted)
{
    const std::pair<const char*, int> modes[] = {
        {"+EPBSE: 1,2,3,4", 0}, {"+EPBSE: 1", 1}, {"+EPBSE: 1,2,a", 1}};
    for (const auto& [text, code] : modes) {
        ASSERT_EQ(radioGetAvailableBandModes(&caller, Caller::onResult), 0);
        EXPECT_EQ(command(), "AT+EPBSE?");
        modem.answer(accepted(text));
        EXPECT_EQ(caller.result, code);
        expectRecord(caller.record.rsp, code == 0 ? packed(RadioBandModes{1, 2, 2, {3, 4}}) : Bytes());
    }
    const std::pair<const char*, int> counts[] = {
        {"+EGMC: \"QueryTxVerifyIdx\",2", 0}, {"+EGMC: 2", 0}, {"+EGMC: 2,x", 1}, {"", 1}};
    for (const auto& [line, code] : counts) {
        ASSERT_EQ(radioGetBandsTxNum(4, 78, 1, &caller, Caller::onResult), 0);
        EXPECT_EQ(command(), "AT\r\n");
        modem.answer(answer("OK"));
        EXPECT_EQ(command(), "AT+EGMC=1,\"QueryTxVerifyIdx\",4,78\r\n");
        modem.answer(accepted(line));
        EXPECT_EQ(caller.result, code);
        EXPECT_EQ(caller.record.rsp.bandTxNumInfo.bandTxNum, code == 0 ? 2 : 0);
    }
    EXPECT_TRUE(log.has("D VornAtClient: getBandsTxNum : result->rsp.bandTxNumInfo.bandTxNum=2"));
}

TEST_F(Bands, BitsMoveToTheirPlaces)
{
    const std::map<int, int> gsm = {{1, 8}, {3, 7}, {4, 21}, {7, 19}};
    const std::map<int, int> wcdma = {{0, 22}, {1, 23}, {3, 25}, {4, 26}, {7, 49}, {8, 50}, {18, 60}};
    const auto moved = [](const std::map<int, int>& moves, int bit) {
        return moves.contains(bit) ? uint64_t{1} << moves.at(bit) : 0;
    };
    for (int bit = 0; bit < 32; ++bit) {
        const auto mask = static_cast<int>(1U << bit);
        EXPECT_EQ(RfTestHelper::convertGSMBandBit2UIbit(mask), moved(gsm, bit));
        EXPECT_EQ(RfTestHelper::convertWCDMABandBit2UIbit(mask), moved(wcdma, bit));
    }
    EXPECT_EQ(RfTestHelper::convertGSMBandBit2UIbit(-1), 0x280180u);
    EXPECT_TRUE(log.has("D VornAtClient: convertGSMBandBit2UIbit change from 0x2 to 0x100"));

    const struct {
        const char* text;
        uint64_t low;
        uint64_t high;
        uint64_t cdma;
    } texts[] = {
        {"0x0000000000000001FFFFFFFFFFFFFFFE", 0xFFFFFFFFFFFFFFFE, 1, 0},
        {"0X1", 1, 0, 2},
        {"3", 3, 0, 2},
        {"FF0000000000000001000000000000000A", 10, 1, 0},
        {"0xg", 0, 0, 0},
        {"", 0, 0, 0},
        {"-1", 0, 0, 0},
    };
    for (const auto& row : texts) {
        EXPECT_EQ(RfTestHelper::parserEPBSEHLow(row.text), row.low) << row.text;
        EXPECT_EQ(RfTestHelper::parserEPBSEHHigh(row.text), row.high) << row.text;
        EXPECT_EQ(RfTestHelper::convertCDMABandBit2UIbit(row.text), row.cdma) << row.text;
    }
    EXPECT_TRUE(log.has("D VornAtClient: parserEPBSEHLow 64 bits=[3]  ret=0x3"));
    EXPECT_TRUE(log.has("D VornAtClient: convertCDMABandBit2UIbit change from 3 to 0x2"));
}
