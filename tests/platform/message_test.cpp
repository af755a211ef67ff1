#include "message.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using host::MessagePtr;

MessagePtr newMessage()
{
    return MessagePtr(vorn_msg_init(0x3801, 2));
}

int add(const MessagePtr& message, uint16_t tag, const std::string& value)
{
    return vorn_msg_add_tlv(message.get(), tag, static_cast<uint16_t>(value.size()), value.data());
}

int addElement(const MessagePtr& message, uint16_t tag, uint16_t index, const std::string& value)
{
    return vorn_msg_add_idx(message.get(), tag, index, static_cast<uint16_t>(value.size()), value.data());
}

/// What a reader gets: the bytes, or "-" for nothing at all.
std::string toText(const void* value, uint16_t length)
{
    return value != nullptr ? std::string(static_cast<const char*>(value), length)
                            : "-" + std::string(length, '!');
}

std::string field(const MessagePtr& message, uint16_t tag)
{
    uint16_t length = 99;
    const void* value = vorn_msg_get_val_ptr(message.get(), tag, &length);
    return toText(value, length);
}

std::string element(const MessagePtr& message, uint16_t tag, uint16_t index)
{
    uint16_t length = 99;
    const void* value = vorn_msg_get_idx_ptr(message.get(), tag, index, &length);
    return toText(value, length);
}

TEST(Message, fieldsAreReadByTag)
{
    const MessagePtr message = newMessage();
    EXPECT_EQ(add(message, 256, "one"), 0);
    EXPECT_EQ(vorn_msg_add_tlv(message.get(), 257, 0, nullptr), 0);
    EXPECT_EQ(add(message, 256, "again"), 0);
    EXPECT_EQ(vorn_msg_add_array(message.get(), 258, 1), 0);
    EXPECT_EQ(add(message, 65535, std::string("text\0more", 9)), 0);
    const std::pair<uint16_t, std::string> rows[] = {
        {256, "one"}, {257, ""}, {258, "-"}, {259, "-"}, {65535, std::string("text\0more", 9)}};
    for (const auto& [tag, value] : rows) {
        EXPECT_EQ(field(message, tag), value) << tag;
    }
    EXPECT_STREQ(vorn_msg_get_val_str(message.get(), 65535), "text");
    EXPECT_EQ(vorn_msg_get_val_str(message.get(), 256), nullptr) << "no NUL inside the field";
    EXPECT_EQ(vorn_msg_get_val_str(message.get(), 257), nullptr);
    EXPECT_NE(vorn_msg_get_val_ptr(message.get(), 256, nullptr), nullptr);
}

TEST(Message, arraysTakeTheirElementsInAnyOrder)
{
    const MessagePtr message = newMessage();
    EXPECT_EQ(vorn_msg_add_array(message.get(), 1, 3), 0);
    EXPECT_EQ(addElement(message, 1, 0, "a0"), 0);
    EXPECT_EQ(vorn_msg_add_array(message.get(), 2, 64), 0);
    for (uint16_t i = 0; i < 64; ++i) {
        EXPECT_EQ(addElement(message, 2, i, std::to_string(i)), 0);
    }
    EXPECT_EQ(addElement(message, 1, 2, "a2, behind another array"), 0);
    EXPECT_EQ(add(message, 3, "field"), 0);
    EXPECT_EQ(addElement(message, 1, 1, ""), 0);
    EXPECT_EQ(vorn_msg_add_array(message.get(), 4, 2), 0);

    EXPECT_LT(addElement(message, 1, 0, "set already"), 0);
    EXPECT_LT(addElement(message, 1, 3, "not below the count"), 0);
    EXPECT_LT(addElement(message, 3, 0, "not an array"), 0);
    EXPECT_LT(addElement(message, 5, 0, "no such array"), 0);

    // A copy behind other fields keeps it all.
    const MessagePtr copy(vorn_msg_copy_hdr(message.get()));
    EXPECT_EQ(add(copy, 9, "first"), 0);
    EXPECT_EQ(vorn_msg_copy_tlv(message.get(), copy.get()), 0);
    EXPECT_EQ(vorn_msg_copy_tlv(copy.get(), copy.get()), 0);
    EXPECT_EQ(addElement(copy, 4, 1, "last"), 0);
    EXPECT_EQ(element(copy, 4, 1), "last");
    for (const MessagePtr* each : {&message, &copy}) {
        EXPECT_EQ((*each)->hdr.slot_id, 2);
        EXPECT_EQ(element(*each, 1, 0) + "|" + element(*each, 1, 1) + "|" + element(*each, 1, 2),
                  "a0||a2, behind another array");
        EXPECT_EQ(element(*each, 1, 3) + element(*each, 3, 0) + element(*each, 4, 0), "---");
        EXPECT_EQ(element(*each, 2, 63), "63");
        EXPECT_EQ(field(*each, 3), "field");
        EXPECT_EQ(vorn_msg_get_tlv_num(each->get(), 2), 64);
        EXPECT_EQ(vorn_msg_get_tlv_num(each->get(), 3), 0);
    }
}

TEST(Message, refusesWhatDoesNotFit)
{
    const MessagePtr message = newMessage();
    const std::string value(65535, 'v');
    size_t fields = 0;
    while (add(message, 1, value) == 0) {
        ++fields;
    }
    EXPECT_EQ(fields, 15u) << "1 MiB and not more";
    EXPECT_LT(vorn_msg_add_array(message.get(), 2, 65535), 0);
    EXPECT_LT(vorn_msg_copy_tlv(message.get(), message.get()), 0);
    EXPECT_EQ(field(message, 1), value);
    EXPECT_EQ(field(message, 2), "-");

    // What is added may be the message's own bytes, which move when it grows.
    const MessagePtr growing = newMessage();
    EXPECT_EQ(add(growing, 1, std::string(200, 'x')), 0);
    EXPECT_EQ(vorn_msg_add_tlv(growing.get(), 2, 200, vorn_msg_get_val_ptr(growing.get(), 1, nullptr)), 0);
    EXPECT_EQ(field(growing, 2), std::string(200, 'x'));
}

TEST(Message, nullIsRefused)
{
    const MessagePtr message = newMessage();
    uint16_t length = 99;
    EXPECT_EQ(vorn_msg_copy_hdr(nullptr), nullptr);
    EXPECT_LT(vorn_msg_copy_tlv(nullptr, message.get()), 0);
    EXPECT_LT(vorn_msg_copy_tlv(message.get(), nullptr), 0);
    EXPECT_LT(vorn_msg_add_tlv(nullptr, 1, 1, "x"), 0);
    EXPECT_LT(vorn_msg_add_tlv(message.get(), 1, 1, nullptr), 0);
    EXPECT_LT(vorn_msg_add_array(nullptr, 1, 1), 0);
    EXPECT_LT(vorn_msg_add_idx(nullptr, 1, 0, 1, "x"), 0);
    EXPECT_EQ(vorn_msg_get_val_ptr(nullptr, 1, &length), nullptr);
    EXPECT_EQ(length, 0);
    EXPECT_EQ(vorn_msg_get_tlv_num(nullptr, 1), 0);
    EXPECT_EQ(vorn_msg_get_idx_ptr(nullptr, 1, 0, &length), nullptr);
    vorn_msg_deinit(nullptr);
}

} // namespace
