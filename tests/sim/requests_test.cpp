#include "modem_fixture.h"

#include <random>

namespace sim::test {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;
using testing::StartsWith;

class Requests : public ModemTest {};

TEST_F(Requests, AreAnsweredUnderTheirHeaderToTheirClient)
{
    send(0x3895, {{256, i32(1)}, {257, i32(2)}}, 4, 0xFFFE);
    ASSERT_THAT(mAnswers, SizeIs(1));
    EXPECT_EQ(mAnswers[0].client, kClient);
    EXPECT_EQ(mAnswers[0].header.msg_id, 0x3895);
    EXPECT_EQ(mAnswers[0].header.slot_id, 4);
    EXPECT_EQ(mAnswers[0].header.tx_id, 0xFFFE);
    EXPECT_THAT(mAnswers[0].fields, ElementsAre(Pair(0, i32(0))));
}

TEST_F(Requests, ThatFitNoRowAreRefused)
{
    const FieldMap one = {{256, i32(1)}};
    const FieldMap arrayOfOne = {{256, std::vector<Bytes>{{1, 0, 0, 0}}}};
    const FieldMap tooMuch = {{256, i32(1)}, {257, i32(0)}, {0x8102, Bytes(20481)}};
    const std::tuple<uint16_t, uint8_t, FieldMap, std::string> rows[] = {
        {0x3801, 1, {}, "SendScreenState: field 256 (screenState) is missing"},
        {0x3801, 1, {{256, u8(1)}}, "SendScreenState: field 256 (screenState) has 1 bytes instead of 4"},
        {0x3801, 1, arrayOfOne, "SendScreenState: field 256 (screenState) is an array"},
        {0x3801, 1, {{256, i32(1)}, {257, i32(1)}}, "SendScreenState: field 257 is unexpected"},
        {0x3801, 1, {{0, i32(0)}, {256, i32(1)}}, "SendScreenState: field 0 is unexpected"},
        {0x3813, 1, {{257, std::vector<Bytes>{{1}}}}, "GetLteCellInfo: field 257 is unexpected"},
        {51, 1, tooMuch, "WriteNv: field 33026 (data) has 20481 bytes instead of 0 to 20480"},
        {3, 1, {{0x8100, Bytes{'A', 'T'}}}, "(command) is not a text with one NUL at its end"},
        {3, 1, {{0x8100, Bytes{'A', 0, 'T', 0}}}, "(command) is not a text with one NUL at its end"},
        {0x1234, 1, {}, "unknown message"},
        {0x7E07, 1, {}, "unknown message"},
        {0x3801, 3, one, "slot id 3"},
        {0x3801, 0, one, "slot id 0"},
        {0x3801, 8, one, "slot id 8"},
    };
    for (const auto& [id, slotBit, fields, reason] : rows) {
        SCOPED_TRACE(reason);
        EXPECT_THAT(ask(id, fields, slotBit), ElementsAre(Pair(0, i32(21))));
        EXPECT_THAT(mLog, testing::AllOf(StartsWith("sim: request 0x"), testing::HasSubstr(" refused: "),
                                         testing::EndsWith(reason)));
    }
}

/// The sanitizers watch.
TEST_F(Requests, OfGarbageAreAnsweredOnceToo)
{
    std::mt19937 random{20240607};
    const auto& messages = Protocol::instance().messages();
    const auto& tags = Protocol::instance().tags();
    for (int i = 0; i < 20'000; ++i) {
        const auto& message = messages[random() % messages.size()];
        FieldMap fields;
        for (const auto& spec : message.request) {
            const size_t length = random() % 8 != 0 ? spec.minLength : random() % 40;
            const Bytes noise(length, static_cast<uint8_t>(random()));
            fields.emplace(spec.tag,
                           spec.isArray ? Value(std::vector<Bytes>(random() % 30, noise)) : Value(noise));
        }
        if (random() % 8 == 0) {
            fields.emplace(tags[random() % tags.size()], Bytes(random() % 21, 0xA5));
        }
        ask(message.id, fields, static_cast<uint8_t>(1U << random() % 3));
    }
    EXPECT_TRUE(control(R"({"command": "state"})")["ok"]);
}

} // namespace
} // namespace sim::test
