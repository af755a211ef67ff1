#include "modem_fixture.h"

#include "sim/trace.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sim::test {
namespace {

using testing::HasSubstr;

class TraceTest : public testing::Test {
protected:
    TraceTest()
    {
        host::setLogSink([this](const host::LogLine& line) { mLog += line.text; });
    }
    ~TraceTest() override { host::setLogSink({}); }

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

    std::string mLog;
};

TEST_F(TraceTest, ShowsEveryKindOfMessage)
{
    const auto expect = [&](Direction direction, Message message, const std::string& text,
                            TraceOptions options = {}) {
        std::vector<std::pair<Direction, Message>> messages;
        messages.emplace_back(direction, std::move(message));
        EXPECT_EQ(traced(options, messages), text + '\n');
    };
    const FieldList state{{256, i32(1)}, {257, i32(-2)}};
    expect(Direction::ToModem, message(0x3895, 1, 7, state),
           "TIME -> slot 0 #7 SetSarState source=1 state=-2");
    expect(
        Direction::ToModem, message(0x3895, 1, 7, state),
        R"({"time":"TIME","kind":"request","slot":0,"transaction":7,"message":"SetSarState","fields":{"source":1,"state":-2}})",
        {.json = true});
    expect(Direction::FromModem, message(0x3895, 1, 7, {{0, i32(21)}, {256, Bytes{0xab}}}),
           "TIME <- slot 0 #7 SetSarState result=21 field256=\"ab\"");
    expect(Direction::FromModem, message(0x1234, 0, 9, {{256, Bytes{1, 2, 3}}}),
           "TIME <- slot -1 #9 message4660 field256=\"010203\"");
}

TEST_F(TraceTest, KeepsSecretsUnlessToldOtherwise)
{
    const auto at = [](std::string_view answer) { return FieldList{{0x8100, text(answer)}}; };
    const std::tuple<uint16_t, FieldList, const char*> rows[] = {
        {53, {{0x8100, Bytes{0xca, 0xfe}}}, "cafe"},
        {3, at("\r\n001010123456789\r\n\r\nOK\r\n"), "00101"},
        {3, at("AT+CIMI\r\r\n001010123456789\r\n\r\nOK\r\n"), "00101"},
        {3, {{0x8100, Bytes{'0', '0', '1'}}}, "001"},
        {3, at("\r\n+CFUN: 1\r\n+CNUM: ,\"5550123\",129\r\n\r\nOK\r\n"), "5550"},
    };
    for (const auto& [id, fields, secret] : rows) {
        std::vector<std::pair<Direction, Message>> messages;
        messages.emplace_back(Direction::FromModem, message(id, 1, 1, fields));
        EXPECT_THAT(traced({}, messages), AllOf(Not(HasSubstr(secret)), HasSubstr(" bytes")));
        EXPECT_THAT(traced({.showPrivate = true}, messages), HasSubstr(secret));
    }
    std::vector<std::pair<Direction, Message>> plain;
    plain.emplace_back(Direction::FromModem, message(3, 1, 1, at("AT\r\r\n+CFUN: 1\r\n\r\nOK\r\n")));
    EXPECT_THAT(traced({}, plain), HasSubstr("+CFUN: 1"));
}

TEST_F(TraceTest, IsForItsUserAlone)
{
    const std::string file = testing::TempDir() + "trace-mode-" + std::to_string(getpid());
    using std::filesystem::perms;
    for (const auto mode : {perms{0600}, perms{0644}}) {
        mLog.clear();
        const Trace trace({.file = file, .showPrivate = true});
        EXPECT_EQ(std::filesystem::status(file).permissions(), mode);
        EXPECT_EQ(mLog.find("others may read") != std::string::npos, mode == perms{0644}) << mLog;
        std::filesystem::permissions(file, perms{0644}); // as its owner wants it
    }
    std::filesystem::remove(file);
}

/// Whichever way the writing fails: the reader does not read, has left, the disk is full, the file at its limit.
TEST_F(TraceTest, EndsWithOneWarningAndNoSignal)
{
    const std::string file = testing::TempDir() + "trace-end-" + std::to_string(getpid());
    const std::string pipe = file + "-pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_THROW(Trace({.file = pipe}), std::runtime_error) << "nobody reads it";
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{.rlim_cur = 1000, .rlim_max = before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    for (const auto& [name, error] :
         {std::pair(pipe, EAGAIN), {pipe, EPIPE}, {std::string("/dev/full"), ENOSPC}, {file, EFBIG}}) {
        Trace trace({.file = name});
        if (error == EPIPE) {
            close(reader);
        }
        mLog.clear();
        for (int i = 0; i < 2000; ++i) {
            trace.note(Direction::ToModem, *message(0x3895, 1, 7, {}));
        }
        EXPECT_EQ(mLog, "the trace " + name + " ends: " + std::strerror(error));
    }
    setrlimit(RLIMIT_FSIZE, &before);
    std::filesystem::remove(pipe);
    std::filesystem::remove(file);
}

} // namespace
} // namespace sim::test
