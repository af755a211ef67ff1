#include "modem_fixture.h"

namespace sim::test {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;
using testing::StartsWith;

class Requests : public ModemTest {};

/// The little-endian bytes of a row of words.
Bytes words(const std::vector<uint32_t>& list)
{
    Bytes bytes;
    for (const uint32_t word : list) {
        append(bytes, word);
    }
    return bytes;
}

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

TEST(Catalogue, FaultyRowsAreNamed)
{
    const std::vector<std::pair<std::string, std::string>> rows{
        {R"([{"id": "0x99999", "name": "A", "kind": "request"}])", "/0/id: must be a 16-bit number"},
        {R"([{"id": "1", "name": "A", "kind": "answer"}])", "/0/kind: must be request or indication"},
        {R"([{"id": "1", "name": "A", "kind": "request", "request": [{"tag": 1, "name": "b", "type": "int33"}]}])",
         "/0/request/0/type: unknown type"},
        {R"([{"id": "1", "name": "A", "kind": "request", "indication": []}])", "/0/indication: unknown name"},
    };
    for (const auto& [json, reason] : rows) {
        EXPECT_THAT([text = json] { Protocol{text}; },
                    testing::ThrowsMessage<std::runtime_error>(StartsWith(reason)));
    }
}

TEST_F(Requests, CellInformation)
{
    // NR with an LTE anchor; LTE alone; no service.
    EXPECT_THAT(ask(0x3813),
                ElementsAre(Pair(0, i32(0)), Pair(256, i32(1300)), Pair(257, i32(44)), Pair(258, i32(1))));
    EXPECT_THAT(ask(0x3813, {}, 2),
                ElementsAre(Pair(0, i32(0)), Pair(256, i32(1300)), Pair(257, i32(44)), Pair(258, i32(0))));
    EXPECT_THAT(ask(0x3813, {}, 4),
                ElementsAre(Pair(0, i32(0)), Pair(256, i32(0)), Pair(257, i32(0)), Pair(258, i32(0))));

    EXPECT_THAT(ask(0x3825), ElementsAre(Pair(0, i32(0)), Pair(256, i32(2))));
    EXPECT_THAT(ask(0x3825, {}, 4), ElementsAre(Pair(0, i32(0)), Pair(256, i32(1))));

    constexpr auto minus = [](uint32_t value) { return 0U - value; };
    Bytes serving =
        words({5,         1,         1,  1001,      101,    627264, 0xFFFFFFFF, 0x2345C401, 1,  78,
               minus(85), minus(10), 18, minus(56), 100000, 627264, 100000,     6,          13, 2});
    serving.insert(serving.end(), {2, 4, 2});
    EXPECT_THAT(ask(0x381F), ElementsAre(Pair(0, i32(0)), Pair(256, Value(serving))));

    auto all = ask(0x3821);
    EXPECT_EQ(all[256], Value(serving));
    const auto neighbours = std::get<std::vector<Bytes>>(all[257]);
    ASSERT_THAT(neighbours, SizeIs(6));
    EXPECT_EQ(neighbours[3], words({4, 1300, 45, 3, minus(94), minus(12), 8, 19088642}));
}

TEST_F(Requests, NvItems)
{
    const FieldList key{{256, i32(7)}, {257, i32(-1)}};
    EXPECT_THAT(ask(53, key), ElementsAre(Pair(0, i32(1)))) << "unknown item";
    EXPECT_THAT(ask(51, {{256, i32(7)}, {257, i32(-1)}, {0x8102, Bytes(20480, 9)}}),
                ElementsAre(Pair(0, i32(0))));
    EXPECT_THAT(ask(53, key), ElementsAre(Pair(0, i32(0)), Pair(0x8100, Value(Bytes(20480, 9)))));
    EXPECT_THAT(ask(53, key, 2), ElementsAre(Pair(0, i32(1)))) << "items belong to a slot";
    EXPECT_THAT(ask(53, {{256, i32(1)}, {257, i32(0)}}, 2),
                ElementsAre(Pair(0, i32(0)), Pair(0x8100, Value(Bytes{5, 6, 7, 8}))));
}

TEST_F(Requests, RadioOffMeansNoService)
{
    EXPECT_THAT(ask(3, {{0x8100, text("AT+CFUN=4\r")}}),
                ElementsAre(Pair(0, i32(0)), Pair(0x8100, text("\r\nOK\r\n"))));
    EXPECT_THAT(ask(0x3825), ElementsAre(Pair(0, i32(0)), Pair(256, i32(1))));
    EXPECT_EQ(std::get<Bytes>(ask(0x3821)[256]).front(), 0) << "no radio access technology";
    EXPECT_FALSE(mAnswers[0].fields.contains(257));
    EXPECT_THAT(ask(0x3825, {}, 2), ElementsAre(Pair(0, i32(0)), Pair(256, i32(1)))) << "slots are apart";
}

} // namespace
} // namespace sim::test
