#include "modem_fixture.h"

#include "sim/trace.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <unistd.h>

namespace sim::test {
namespace {

class TraceTest : public testing::Test {
protected:
    /// What a trace of these messages holds, the time left out.
    std::string traced(TraceOptions options, const std::vector<std::pair<Direction, Message>>& messages)
    {
        options.file = testing::TempDir() + "trace-" + std::to_string(getpid());
        std::filesystem::remove(options.file);
        Trace trace(options);
        for (const auto& [direction, message] : messages) {
            trace.note(direction, *message);
        }
        std::ifstream file(options.file);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const std::regex time(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z)");
        EXPECT_TRUE(std::regex_search(text, time)) << text;
        return std::regex_replace(text, time, "TIME");
    }

    static Message message(uint16_t id, uint8_t slot, uint16_t transaction, const FieldList& fields)
    {
        return makeMessage({id, transaction, slot}, fieldsOf(fields));
    }
};

TEST_F(TraceTest, ShowsEveryKindOfMessage)
{
    const Bytes secret{1, 2, 3};
    struct Row {
        Direction direction;
        uint16_t id;
        uint8_t slot;
        uint16_t transaction;
        FieldList fields;
        const char* text;
        const char* json;
    };
    const Row rows[] = {
        {Direction::ToModem,
         0x3895,
         1,
         7,
         {{256, i32(1)}, {257, i32(-2)}},
         "TIME -> slot 0 #7 SetSarState source=1 state=-2\n",
         R"({"time":"TIME","kind":"request","slot":0,"transaction":7,"message":"SetSarState","fields":{"source":1,"state":-2}})"},
        {Direction::FromModem,
         0x3895,
         1,
         7,
         {{0, i32(21)}, {256, Bytes{0xab}}},
         "TIME <- slot 0 #7 SetSarState result=21 field256=\"ab\"\n",
         nullptr},
        {Direction::FromModem,
         0x1234,
         0,
         9,
         {{256, secret}},
         "TIME <- slot -1 #9 message4660 field256=\"010203\"\n",
         nullptr},
    };
    for (const Row& row : rows) {
        std::vector<std::pair<Direction, Message>> messages;
        messages.emplace_back(row.direction, message(row.id, row.slot, row.transaction, row.fields));
        EXPECT_EQ(traced({}, messages), row.text);
        if (row.json != nullptr) {
            EXPECT_EQ(traced({.json = true}, messages), std::string(row.json) + '\n');
        }
    }
}

TEST_F(TraceTest, KeepsSecretsUnlessToldOtherwise)
{
    std::vector<std::pair<Direction, Message>> messages;
    const FieldList write{{256, i32(7)}, {257, i32(1)}, {0x8102, Bytes{0xca, 0xfe}}};
    messages.emplace_back(Direction::ToModem, message(51, 1, 1, write));
    const std::string hidden = traced({}, messages);
    const std::string shown = traced({.showPrivate = true}, messages);
    EXPECT_EQ(hidden.find("cafe"), std::string::npos) << hidden;
    EXPECT_NE(hidden.find("2 bytes"), std::string::npos) << hidden;
    EXPECT_NE(shown.find("cafe"), std::string::npos) << shown;
}

} // namespace
} // namespace sim::test
