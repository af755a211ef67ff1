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
    constexpr int kRefused = -9; // the length stays as it was
    const std::tuple<const char*, int, Bytes> rows[] = {
        {"0af0", 2, {0x0A, 0xF0}},        {"FFe9", 2, {0xFF, 0xE9}},       {"", 0, {0xEE, 0xEE}},
        {"0AG0", kRefused, {0x0A, 0xEE}}, {"0AF", kRefused, {0x0A, 0xEE}}, {"0A F", kRefused, {0x0A, 0xEE}},
        {"0x12", kRefused, {0xEE, 0xEE}}, {"1", kRefused, {0xEE, 0xEE}},   {"@:/`", kRefused, {0xEE, 0xEE}},
    };
    for (const auto& [hex, expectedLength, bytes] : rows) {
        Bytes out(2, 0xEE);
        int length = kRefused;
        EXPECT_EQ(hexStringToByteArray(hex, out.data(), &length), expectedLength < 0 ? -1 : 0) << hex;
        EXPECT_EQ(length, expectedLength) << hex;
        EXPECT_EQ(out, bytes) << hex;
    }
}

TEST(ByteConversion, PutsTheMostSignificantByteFirst)
{
    const Bytes bytes = {0x80, 0, 0, 1, 0x0A, 0x0B, 0x0C, 0x0D, 9, 9, 9};
    std::vector<int32_t> values(3, -9);
    int count = -1;
    byteArrayToIntArray(bytes.data(), -4, values.data(), &count);
    EXPECT_EQ(count, 0);
    byteArrayToIntArray(bytes.data(), 11, values.data(), &count);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(values, (std::vector<int32_t>{-0x7FFFFFFF, 0x0A0B0C0D, -9}));
    Bytes out(11, 9);
    intArrayToByteArray(values.data(), -1, out.data());
    EXPECT_EQ(out, Bytes(11, 9));
    intArrayToByteArray(values.data(), 2, out.data());
    EXPECT_EQ(out, bytes);
}

TEST(SlotId, ConvertsEachWayByItsOwnTable)
{
    const std::pair<int, int> toBit[] = {{0, 1}, {1, 2}, {2, 4}, {3, 8}, {4, 1}, {-1, 1}, {256, 1}};
    for (const auto& [instance, bit] : toBit) {
        EXPECT_EQ(changeToVornSlotId(instance), bit) << instance;
    }
    const int slots[16] = {0, 0, 1, 0, 2, 0, 0, 0, 3}; // by the four low bits
    for (int bits = 0; bits < 256; ++bits) {
        EXPECT_EQ(changeToSlotId(static_cast<uint8_t>(bits)), slots[bits % 16]) << bits;
    }
}
