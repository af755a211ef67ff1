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

using enum Direction;
using testing::HasSubstr;

class TraceTest : public testing::Test {
protected:
    TraceTest()
    {
        host::setLogSink([this](const host::LogLine& line) { mLog += line.text; });
    }
    ~TraceTest() override
    {
        host::setLogSink({});
        std::filesystem::remove(mFile);
    }

    /// What a trace of this message holds, the time left out.
    std::string traced(TraceOptions options, Direction direction, const Message& message)
    {
        options.file = mFile;
        std::filesystem::remove(mFile);
        Trace(options).note(direction, *message);
        std::ifstream file(mFile);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const std::regex time(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z)");
        EXPECT_TRUE(std::regex_search(text, time)) << text;
        return std::regex_replace(text, time, "TIME");
    }

    static Message message(uint16_t id, uint8_t slot, uint16_t transaction, const FieldMap& fields)
    {
        return makeMessage({id, transaction, slot}, fieldsOf(fields));
    }

    const std::string mFile = testing::TempDir() + "trace-" + std::to_string(getpid());
    std::string mLog;
};

TEST_F(TraceTest, ShowsEveryKindOfMessage)
{
    const Message state = message(0x3895, 1, 7, {{256, i32(1)}, {257, i32(-2)}});
    EXPECT_EQ(traced({}, ToModem, state), "TIME -> slot 0 #7 SetSarState source=1 state=-2\n");
    EXPECT_EQ(traced({.json = true}, ToModem, state),
              R"({"time":"TIME","kind":"request","slot":0,"transaction":7,"message":"SetSarState",)"
              R"("fields":{"source":1,"state":-2}})"
              "\n");
    EXPECT_EQ(traced({}, FromModem, message(0x3895, 1, 7, {{0, i32(21)}, {256, Bytes{0xab}}})),
              "TIME <- slot 0 #7 SetSarState result=21 field256=\"ab\"\n");
    EXPECT_EQ(traced({}, FromModem, message(0x1234, 0, 9, {{256, Bytes{1, 2, 3}}})),
              "TIME <- slot -1 #9 message4660 field256=\"010203\"\n");
}

TEST_F(TraceTest, KeepsSecretsUnlessToldOtherwise)
{
    const auto at = [](std::string_view answer) { return FieldMap{{0x8100, text(answer)}}; };
    const std::tuple<uint16_t, FieldMap, const char*> rows[] = {
        {53, {{0x8100, Bytes{0xca, 0xfe}}}, "cafe"},
        {3, at("\r\n001010123456789\r\n\r\nOK\r\n"), "00101"},
        {3, at("AT+CIMI\r\r\n001010123456789\r\n\r\nOK\r\n"), "00101"},
        {3, {{0x8100, Bytes{'0', '0', '1'}}}, "001"},
        {3, at("\r\n+CFUN: 1\r\n+CNUM: ,\"5550123\",129\r\n\r\nOK\r\n"), "5550"},
    };
    for (const auto& [id, fields, secret] : rows) {
        const Message answer = message(id, 1, 1, fields);
        EXPECT_THAT(traced({}, FromModem, answer), AllOf(Not(HasSubstr(secret)), HasSubstr(" bytes")));
        EXPECT_THAT(traced({.showPrivate = true}, FromModem, answer), HasSubstr(secret));
    }
    EXPECT_THAT(traced({}, FromModem, message(3, 1, 1, at("AT\r\r\n+CFUN: 1\r\n\r\nOK\r\n"))),
                HasSubstr("+CFUN: 1"));
}

TEST_F(TraceTest, IsForItsUserAlone)
{
    using std::filesystem::perms;
    for (const auto mode : {perms{0600}, perms{0644}}) {
        mLog.clear();
        const Trace trace({.file = mFile, .showPrivate = true});
        EXPECT_EQ(std::filesystem::status(mFile).permissions(), mode);
        EXPECT_EQ(mLog.find("others may read") != std::string::npos, mode == perms{0644}) << mLog;
        std::filesystem::permissions(mFile, perms{0644}); // as its owner wants it
    }
}

/// Whichever way the writing fails: the reader does not read, has left, the disk is full, the file at its limit.
TEST_F(TraceTest, EndsWithOneWarningAndNoSignal)
{
    const std::string pipe = mFile + "-pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_THROW(Trace({.file = pipe}), std::runtime_error) << "nobody reads it";
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{.rlim_cur = 1000, .rlim_max = before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    for (const auto& [name, error] :
         {std::pair(pipe, EAGAIN), {pipe, EPIPE}, {std::string("/dev/full"), ENOSPC}, {mFile, EFBIG}}) {
        Trace trace({.file = name});
        if (error == EPIPE) {
            close(reader);
        }
        mLog.clear();
        for (int i = 0; i < 2000; ++i) {
            trace.note(ToModem, *message(0x3895, 1, 7, {}));
        }
        EXPECT_EQ(mLog, "the trace " + name + " ends: " + std::strerror(error));
    }
    setrlimit(RLIMIT_FSIZE, &before);
    std::filesystem::remove(pipe);
}

} // namespace
} // namespace sim::test
