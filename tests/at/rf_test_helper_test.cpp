#include "at/rf_test_helper.h"
#include "support/log_capture.h"

#include <gtest/gtest.h>

#include <map>

using namespace test;

TEST(RfTestHelper, MovesBitsToTheirPlaces)
{
    const LogCapture log;
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
