#include "host/wire/frame_stream.h"
#include "support/fields.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using host::MessagePtr;
using test::Bytes;
using Bytes4 = std::array<uint8_t, host::kFrameSizeBytes>;

/// A field, an array with a gap, and an element that stands apart from its array.
Bytes sampleFrame()
{
    const MessagePtr message(vorn_msg_init_with_txid(0x3821, 4, 0x1234));
    vorn_msg_add_array(message.get(), 256, 3);
    vorn_msg_add_idx(message.get(), 256, 0, 2, "ab");
    vorn_msg_add_tlv(message.get(), 0, 4, "\0\0\0\0");
    vorn_msg_add_idx(message.get(), 256, 2, 1, "z");
    return test::frame(*message);
}

TEST(Frame, comesBackAsTheSameMessage)
{
    const Bytes frame = sampleFrame();
    ASSERT_EQ(host::frameSize(std::span(frame).first<host::kFrameSizeBytes>()), frame.size());
    const MessagePtr message = host::decodeFrame(frame);
    ASSERT_TRUE(message);
    EXPECT_EQ(message->hdr.tx_id, 0x1234);
    EXPECT_EQ(*static_cast<char*>(vorn_msg_get_idx_ptr(message.get(), 256, 2, nullptr)), 'z');
    EXPECT_EQ(test::frame(*message), frame);
}

TEST(Frame, malformedOnesAreRefused)
{
    const std::pair<const char*, Bytes> rows[] = {
        // what stands behind the five header bytes
        {"unknown record", {3, 0, 0, 0, 0}},
        {"a field longer than the frame", {1, 0, 0, 2, 0, 'x'}},
        {"an array without its number", {2, 0, 0, 1, 0}},
        {"more elements than there are", {2, 0, 0, 1, 0, 1, 0}},
        {"an index above the count", {2, 0, 0, 1, 0, 1, 0, 1, 0, 0, 0}},
        {"an element set twice", {2, 0, 0, 2, 0, 2, 0, 1, 0, 0, 0, 1, 0, 0, 0}},
        {"elements out of order", {2, 0, 0, 2, 0, 2, 0, 1, 0, 0, 0, 0, 0, 0, 0}},
    };
    for (const auto& [what, body] : rows) {
        const auto size = static_cast<uint8_t>(5 + body.size());
        EXPECT_FALSE(host::decodeFrame(test::joined({{size, 0, 0, 0, 1, 0, 2, 0, 1}, body}))) << what;
    }
    EXPECT_FALSE(host::frameSize(Bytes4{4, 0, 0, 0}) || host::frameSize(Bytes4{0, 0, 0x11, 0}));
}

TEST(Frame, takesMemoryForWhatItHolds)
{
    const MessagePtr message(vorn_msg_init(1, 1));
    for (uint16_t tag = 1; tag <= 2; ++tag) {
        vorn_msg_add_array(message.get(), tag, 65535);
        vorn_msg_add_idx(message.get(), tag, 65534, 4, "last");
        vorn_msg_add_idx(message.get(), tag, 500, 5, "first");
        vorn_msg_add_idx(message.get(), tag, 2000, 3, "mid");
    }
    const MessagePtr decoded = host::decodeFrame(test::frame(*message));
    EXPECT_LT(host::Message::of(*decoded).memoryUse(), 1000U);
    EXPECT_EQ(test::frame(*decoded), test::frame(*message));
    EXPECT_EQ(vorn_msg_get_tlv_num(decoded.get(), 2), 65535);
    for (const auto& [index, length] :
         {std::pair(65534, 4), {500, 5}, {2000, 3}, {499, 0}, {0, 0}, {65533, 0}}) {
        uint16_t size = 99;
        vorn_msg_get_idx_ptr(decoded.get(), 2, static_cast<uint16_t>(index), &size);
        EXPECT_EQ(size, length) << index;
    }
}

TEST(FrameStream, cutsWhateverPiecesCome)
{
    const auto value = test::raw(1, Bytes(60'000, 'v'));
    const MessagePtr large = test::message(1, 1, 2, {value, value, value, value});
    const std::vector<Bytes> frames = {sampleFrame(), test::frame(*large), sampleFrame()};
    Bytes all = test::joined({frames[0], frames[1], frames[2]});
    for (const size_t piece : {size_t{1}, size_t{7}, size_t{4096}, all.size()}) {
        host::FrameStream stream;
        std::vector<Bytes> cut;
        for (size_t sent = 0; sent < all.size();) {
            const std::span<uint8_t> room = stream.room();
            const auto bytes =
                std::span(all).subspan(sent, std::min({piece, room.size(), all.size() - sent}));
            std::ranges::copy(bytes, room.begin());
            stream.filled(bytes.size());
            sent += bytes.size();
            while (const auto frame = stream.next()) {
                cut.emplace_back(frame->begin(), frame->end());
            }
        }
        EXPECT_EQ(cut, frames) << piece;
        EXPECT_FALSE(stream.isBroken());
    }
}

} // namespace
