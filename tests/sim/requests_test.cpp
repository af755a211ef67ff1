#include "modem_fixture.h"

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

struct MisfitRow {
    uint16_t id;
    uint8_t slotBit;
    FieldList fields;
    std::string reason;
};

TEST_F(Requests, ThatFitNoRowAreRefused)
{
    const std::vector<MisfitRow> rows{
        {0x3801, 1, {}, "SendScreenState: field 256 (screenState) is missing"},
        {0x3801, 1, {{256, u8(1)}}, "SendScreenState: field 256 (screenState) has 1 bytes instead of 4"},
        {0x3801,
         1,
         {{256, std::vector<Bytes>{{1, 0, 0, 0}}}},
         "SendScreenState: field 256 (screenState) is an array"},
        {0x3801, 1, {{256, i32(1)}, {257, i32(1)}}, "SendScreenState: field 257 is unexpected"},
        {0x3801, 1, {{0, i32(0)}, {256, i32(1)}}, "SendScreenState: field 0 is unexpected"},
        {0x3813, 1, {{257, std::vector<Bytes>{{1}}}}, "GetLteCellInfo: field 257 is unexpected"},
        {51,
         1,
         {{256, i32(1)}, {257, i32(0)}, {0x8102, Bytes(20481)}},
         "WriteNv: field 33026 (data) has 20481 bytes "
         "instead of 0 to 20480"},
        {3,
         1,
         {{0x8100, Bytes{'A', 'T'}}},
         "AtCommand: field 33024 (command) is not a text with one NUL at its end"},
        {3,
         1,
         {{0x8100, Bytes{'A', 0, 'T', 0}}},
         "AtCommand: field 33024 (command) is not a text with one NUL at its "
         "end"},
        {0x1234, 1, {}, "unknown message"},
        {0x7E07, 1, {}, "unknown message"},
        {0x3801, 3, {{256, i32(1)}}, "slot id 3"},
        {0x3801, 0, {{256, i32(1)}}, "slot id 0"},
        {0x3801, 8, {{256, i32(1)}}, "slot id 8"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.reason);
        EXPECT_THAT(ask(row.id, row.fields, row.slotBit), ElementsAre(Pair(0, i32(21))));
        EXPECT_THAT(mLog, testing::AllOf(StartsWith("sim: request 0x"),
                                         testing::EndsWith(" refused: " + row.reason)));
    }
}

} // namespace
} // namespace sim::test
