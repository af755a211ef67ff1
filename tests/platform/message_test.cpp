#include "host/wire/message.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using host::MessagePtr;

bool add(const MessagePtr& message, uint16_t tag, const std::string& value)
{
    return vorn_msg_add_tlv(message.get(), tag, static_cast<uint16_t>(value.size()), value.data()) == 0;
}

bool addArray(const MessagePtr& message, uint16_t tag, uint16_t count)
{
    return vorn_msg_add_array(message.get(), tag, count) == 0;
}

bool addElement(const MessagePtr& message, uint16_t tag, uint16_t index, const std::string& value)
{
    return vorn_msg_add_idx(message.get(), tag, index, static_cast<uint16_t>(value.size()), value.data()) ==
           0;
}

bool copy(const MessagePtr& from, const MessagePtr& to)
{
    return vorn_msg_copy_tlv(from.get(), to.get()) == 0;
}

/// What a reader gets: the bytes, or "-" for nothing at all.
template <typename Read, typename... Where>
std::string read(Read reader, const MessagePtr& message, Where... where)
{
    uint16_t length = 99;
    const void* value = reader(message.get(), static_cast<uint16_t>(where)..., &length);
    return value != nullptr ? std::string(static_cast<const char*>(value), length)
                            : std::string(length + 1, '-');
}

std::string field(const MessagePtr& message, int tag)
{
    return read(vorn_msg_get_val_ptr, message, tag);
}

std::string element(const MessagePtr& message, int tag, int index)
{
    return read(vorn_msg_get_idx_ptr, message, tag, index);
}

TEST(Message, fieldsAreReadByTag)
{
    const MessagePtr message(vorn_msg_init(0x3801, 2));
    const std::string text("text\0more", 9);
    EXPECT_TRUE(add(message, 256, "one") && add(message, 257, "") && add(message, 256, "again"));
    EXPECT_TRUE(addArray(message, 258, 1) && add(message, 65535, text));
    EXPECT_EQ(field(message, 256) + field(message, 257) + field(message, 65535), "one" + text);
    EXPECT_EQ(field(message, 258) + field(message, 259), "--") << "an array, and none at all";
    EXPECT_STREQ(vorn_msg_get_val_str(message.get(), 65535), "text");
    EXPECT_EQ(vorn_msg_get_val_str(message.get(), 256), nullptr) << "no NUL inside the field";
}

TEST(Message, arraysTakeTheirElementsInAnyOrder)
{
    const MessagePtr message(vorn_msg_init(0x3801, 2));
    EXPECT_TRUE(addArray(message, 1, 3) && addElement(message, 1, 0, "a0") && addArray(message, 2, 64));
    for (uint16_t i = 0; i < 64; ++i) {
        EXPECT_TRUE(addElement(message, 2, i, std::to_string(i)));
    }
    EXPECT_TRUE(addElement(message, 1, 2, "behind another array") && add(message, 3, "field"));
    EXPECT_TRUE(addElement(message, 1, 1, "") && addArray(message, 4, 2));
    EXPECT_FALSE(addElement(message, 1, 0, "set already") ||
                 addElement(message, 1, 3, "not below the count"));
    EXPECT_FALSE(addElement(message, 3, 0, "not an array") || addElement(message, 5, 0, "no such array"));

    // A copy behind other fields keeps it all.
    const MessagePtr other(vorn_msg_copy_hdr(message.get()));
    EXPECT_TRUE(add(other, 9, "first") && copy(message, other) && copy(other, other));
    EXPECT_TRUE(addElement(other, 4, 1, "last"));
    EXPECT_EQ(element(other, 4, 1), "last");
    for (const MessagePtr* each : {&message, &other}) {
        EXPECT_EQ(element(*each, 1, 0) + element(*each, 1, 1) + element(*each, 1, 2),
                  "a0behind another array");
        EXPECT_EQ(element(*each, 1, 3) + element(*each, 3, 0) + element(*each, 4, 0), "---");
        EXPECT_EQ(element(*each, 2, 63) + field(*each, 3), "63field");
        EXPECT_EQ(vorn_msg_get_tlv_num(each->get(), 2) + vorn_msg_get_tlv_num(each->get(), 3), 64);
    }
}

TEST(Message, refusesWhatDoesNotFit)
{
    const MessagePtr message(vorn_msg_init(0x3801, 2));
    const std::string value(65535, 'v');
    size_t fields = 0;
    while (add(message, 1, value)) {
        ++fields;
    }
    EXPECT_EQ(fields, 15u) << "1 MiB and not more";
    EXPECT_FALSE(addArray(message, 2, 65535) || copy(message, message));
    EXPECT_EQ(field(message, 1) + field(message, 2), value + "-");

    // What is added may be the message's own bytes, which move when it grows.
    const MessagePtr growing(vorn_msg_init(0x3801, 2));
    EXPECT_TRUE(add(growing, 1, std::string(200, 'x')));
    EXPECT_EQ(vorn_msg_add_tlv(growing.get(), 2, 200, vorn_msg_get_val_ptr(growing.get(), 1, nullptr)), 0);
    EXPECT_EQ(field(growing, 2), std::string(200, 'x'));
}

TEST(Message, nullIsRefused)
{
    const MessagePtr message(vorn_msg_init(0x3801, 2));
    EXPECT_EQ(vorn_msg_copy_hdr(nullptr), nullptr);
    EXPECT_FALSE(copy(nullptr, message) || copy(message, nullptr) || add(nullptr, 1, "x"));
    EXPECT_FALSE(addArray(nullptr, 1, 1) || addElement(nullptr, 1, 0, "x"));
    EXPECT_LT(vorn_msg_add_tlv(message.get(), 1, 1, nullptr), 0);
    EXPECT_EQ(field(nullptr, 1) + element(nullptr, 1, 0), "--");
    EXPECT_EQ(vorn_msg_get_tlv_num(nullptr, 1), 0);
    vorn_msg_deinit(nullptr);
}

} // namespace
