#include "channel/byte_conversion.h"
#include "channel/slot_id.h"
#include "support/fields.h"

#include <gtest/gtest.h>

#include <string>

using test::Bytes;

TEST(ByteConversion, WritesUpperCaseDigitsWithoutEnd)
{
    const Bytes bytes = {0x0A, 0xF0, 0x9C};
    std::string out(8, '?');
    EXPECT_EQ(byteArrayToHexString(bytes.data(), 3, out.data()), bytes.data());
    EXPECT_EQ(out, "0AF09C??");
    byteArrayToHexString(bytes.data(), 0, out.data());
    byteArrayToHexString(bytes.data(), -1, out.data());
    EXPECT_EQ(out, "0AF09C??");
}

TEST(ByteConversion, ReadsPairsOfDigits)
{
    const struct {
        const char* hex;
        int returned;
        int length;
        Bytes bytes;
    } cases[] = {
        {"0af0", 0, 2, {0x0A, 0xF0, 0xEE}},   {"FFe9", 0, 2, {0xFF, 0xE9, 0xEE}},
        {"", 0, 0, {0xEE, 0xEE, 0xEE}},       {"0AG0", -1, -9, {0x0A, 0xEE, 0xEE}},
        {"0AF", -1, -9, {0x0A, 0xEE, 0xEE}},  {"0A F", -1, -9, {0x0A, 0xEE, 0xEE}},
        {"0x12", -1, -9, {0xEE, 0xEE, 0xEE}}, {"1", -1, -9, {0xEE, 0xEE, 0xEE}},
        {"@:/`", -1, -9, {0xEE, 0xEE, 0xEE}},
    };
    for (const auto& row : cases) {
        Bytes out(3, 0xEE);
        int length = -9;
        EXPECT_EQ(hexStringToByteArray(row.hex, out.data(), &length), row.returned) << row.hex;
        EXPECT_EQ(length, row.length) << row.hex;
        EXPECT_EQ(out, row.bytes) << row.hex;
    }
}

TEST(ByteConversion, PutsTheMostSignificantByteFirst)
{
    for (const int32_t value : {0, 1, -1, 0x01020304, static_cast<int32_t>(0x80000000)}) {
        Bytes bytes(4);
        intToByteArray(value, bytes.data());
        EXPECT_EQ(bytes[0], static_cast<uint8_t>(static_cast<uint32_t>(value) >> 24));
        EXPECT_EQ(byteArrayToInt(bytes.data()), value);
    }
    const Bytes seven = {0, 0, 0, 1, 9, 9, 9};
    int32_t values[2] = {-1, -1};
    int count = -1;
    byteArrayToIntArray(seven.data(), 7, values, &count);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(values[0], 1);
    EXPECT_EQ(values[1], -1);
    byteArrayToIntArray(seven.data(), -4, values, &count);
    EXPECT_EQ(count, 0);
    Bytes out(9, 0xEE);
    const int32_t two[] = {1, 0x0A0B0C0D};
    intArrayToByteArray(two, 0, out.data());
    intArrayToByteArray(two, -1, out.data());
    EXPECT_EQ(out, Bytes(9, 0xEE));
    intArrayToByteArray(two, 2, out.data());
    EXPECT_EQ(out, (Bytes{0, 0, 0, 1, 0x0A, 0x0B, 0x0C, 0x0D, 0xEE}));
}

TEST(SlotId, ConvertsEachWayByItsOwnTable)
{
    const std::pair<int, int> toBit[] = {{0, 1}, {1, 2}, {2, 4}, {3, 8}, {4, 1}, {-1, 1}, {256, 1}};
    for (const auto& [instance, bit] : toBit) {
        EXPECT_EQ(changeToVornSlotId(instance), bit) << instance;
    }
    for (int bits = 0; bits < 256; ++bits) {
        const int low = bits & 15;
        EXPECT_EQ(changeToSlotId(static_cast<uint8_t>(bits)), low == 2   ? 1
                                                              : low == 4 ? 2
                                                              : low == 8 ? 3
                                                                         : 0)
            << bits;
    }
}
