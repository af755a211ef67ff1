#include "channel/vorn_data.h"
#include "support/fields.h"

#include <gtest/gtest.h>

using namespace test;

TEST(VornData, WritesWhatNoRequestWrites)
{
    const void* blocks[] = {"ab", "cd"};
    const int8_t i8[] = {-1, 2};
    const int16_t i16[] = {-1, 2};
    const uint16_t u16[] = {0xFFFF, 2};
    const uint32_t u32[] = {0xFFFFFFFF, 2};
    const auto data = VornData::obtainVornData(0x3801, 1, 77);
    EXPECT_EQ(data->addVornTlvInt8(1, -2), 0);
    EXPECT_EQ(data->addVornTlvArray(2, 2, blocks, 2), 0);
    EXPECT_EQ(data->addVornTlvArray(3, 0, blocks, 2), 0);
    EXPECT_EQ(data->addVornTlvArrayInt8(4, 2, i8), 0);
    EXPECT_EQ(data->addVornTlvArrayInt16(5, 2, i16), 0);
    EXPECT_EQ(data->addVornTlvArrayUint16(6, 2, u16), 0);
    EXPECT_EQ(data->addVornTlvArrayUint32(7, 2, u32), 0);
    EXPECT_NE(data->addVornTlvStr(8, std::string(65535, 'x').c_str()), 0);
    const Fields expected = {int8(1, -2),
                             array(2, {{'a', 'b'}, {'c', 'd'}}),
                             array(3, {}),
                             numbers<int8_t>(4, {-1, 2}),
                             numbers<int16_t>(5, {-1, 2}),
                             numbers<uint16_t>(6, {0xFFFF, 2}),
                             numbers<uint32_t>(7, {0xFFFFFFFF, 2})};
    EXPECT_EQ(frame(*data->getData()), frame(*message(0x3801, 2, 77, expected)));
    EXPECT_NE(VornData().addVornTlvInt8(1, 1), 0);
}

TEST(VornData, ReadsFieldsShorterThanTheirType)
{
    const uint32_t values[] = {0, 0x81, 0x8281, 0x838281, 0x84838281, 0x84838281};
    for (size_t size = 0; size <= 5; ++size) {
        const Bytes bytes = counting(size, 0x81);
        const auto owned = message(5, 4, 9, {raw(256, bytes), array(257, {bytes})});
        const VornView in(owned.get());
        const uint32_t expected = values[size];
        EXPECT_EQ(in.getVornUint32Val(256, 7), expected);
        EXPECT_EQ(in.getVornInt16Val(256, 7), static_cast<int16_t>(expected));
        EXPECT_EQ(in.getVornUint8Val(256, 7), static_cast<uint8_t>(expected));
        EXPECT_EQ(in.getVornInt8Val(256, 7), static_cast<int8_t>(expected));
        EXPECT_EQ(in.getVornUint32IdxVal(257, 0, 7), expected);
        EXPECT_EQ(in.getVornInt16IdxVal(257, 0, 7), static_cast<int16_t>(expected));
        EXPECT_EQ(in.getVornUint8IdxVal(257, 0, 7), static_cast<uint8_t>(expected));
        uint16_t length = 99;
        EXPECT_NE(in.getVornVal(256, &length), nullptr);
        EXPECT_EQ(length, size);
        EXPECT_EQ(in.getVornStr(256), nullptr); // not terminated
    }
}

TEST(VornData, GivesDefaultsForWhatIsAbsent)
{
    const auto owned = message(5, 8, 9, {numbers<uint16_t>(257, {1})});
    const VornData empty;
    for (const VornView& in : {VornView(owned.get()), static_cast<const VornView&>(empty)}) {
        EXPECT_EQ(in.getResult(), 2u);
        EXPECT_EQ(in.getVornInt8Val(256, -1), -1);
        EXPECT_EQ(in.getVornUint32Val(256, 5), 5u);
        EXPECT_EQ(in.getVornInt32IdxVal(257, 1, -9), -9);
        EXPECT_EQ(in.getVornUint16IdxVal(256, 0, 9), 9);
        uint16_t length = 99;
        EXPECT_EQ(in.getVornVal(256, &length), nullptr);
        EXPECT_EQ(length, 0);
        EXPECT_EQ(in.getVornIdxVal(257, 1, &length), nullptr);
        EXPECT_EQ(in.getVornStr(256), nullptr);
    }
    EXPECT_EQ(VornView(owned.get()).getVornMsgTxId(), 9);
    EXPECT_EQ(empty.getVornMsgId() + empty.getVornMsgTxId() + empty.getVornSlotId() + empty.getSlotId(), 0);
    EXPECT_EQ(empty.getVornArrayTlvNum(257), 0);
}

TEST(VornData, RemembersAFieldThatCouldNotBeAdded)
{
    const std::string tooLong(70000, 'A');
    const char* const texts[] = {tooLong.c_str(), "short"};
    const std::function<int(VornData&)> adds[] = {
        [&](VornData& data) { return data.addVornTlvStr(256, tooLong.c_str()); },
        [](VornData& data) { return data.addVornTlv(256, 4, nullptr); },
        // The last element's result is that of the whole, and here it succeeds.
        [&](VornData& data) { return data.addVornTlvArrayStr(256, 2, texts) - 1; },
    };
    for (const auto& add : adds) {
        VornData data(5, 0);
        data.addVornTlvInt32(1, 1);
        EXPECT_TRUE(data.isComplete());
        EXPECT_NE(add(data), 0);
        data.addVornTlvInt32(2, 2);
        EXPECT_FALSE(data.isComplete()) << &add - adds;
    }
    EXPECT_FALSE(VornData().isComplete());
}

/// Takes the end of a text on trust, as another maker's message library may.
extern "C" char* __wrap_vorn_msg_get_val_str(const vorn_msg_t* message, uint16_t tag)
{
    return static_cast<char*>(vorn_msg_get_val_ptr(message, tag, nullptr));
}

TEST(VornData, ReadsNoTextThatDoesNotEndInItsField)
{
    const auto in = message(5, 1, 0, {text(256, "ends"), raw(257, {'n', 'o'}), raw(258, {})});
    EXPECT_STREQ(VornView(in.get()).getVornStr(256), "ends");
    for (const uint16_t tag : std::initializer_list<uint16_t>{257, 258, 259}) {
        EXPECT_EQ(VornView(in.get()).getVornStr(tag), nullptr) << tag;
    }
}

TEST(VornData, CopiesWhatItMustNotOwn)
{
    const auto owned = message(5, 2, 9, {result(31), numbers<uint32_t>(257, {1, 2})});
    const auto copy = VornData::obtainVornData(owned.get(), true);
    EXPECT_NE(copy->getData(), owned.get());
    EXPECT_EQ(frame(*copy->getData()), frame(*owned));
    EXPECT_EQ(VornData::obtainVornData(nullptr, true)->getData(), nullptr);
    const VornData adopted(vorn_msg_init(1, 1), false); // freed by the record, as the leak checker sees
    EXPECT_EQ(adopted.getVornMsgId(), 1);
}
