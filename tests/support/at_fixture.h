/// An AT client whose modem is the test, and tests of its requests, a row each.
#pragma once

#include "at/vorn_at_client.h"
#include "host/clock.h"
#include "mindroid/promise.h"
#include "support/request_rows.h"

#include <future>

namespace test {

inline Fields answer(const char* text)
{
    return {result(0), test::text(0x8100, text)};
}

/// An answer that accepts a query and holds one line of data.
inline Fields accepted(const std::string& data)
{
    return answer(("\r\n" + data + "\r\n\r\nOK\r\n").c_str());
}

inline const Fields kOk = answer("\r\nOK\r\n");
inline const Fields kError = answer("\r\nERROR\r\n");

/// Returns when everything that was due on the timer thread has run.
inline void drainTimer()
{
    std::promise<void> done;
    mindroid::runAfter(std::chrono::milliseconds(0), [&] { done.set_value(); });
    done.get_future().wait();
}

struct AtModem {
    explicit AtModem(unsigned number = 1) : instance(number) {}
    ~AtModem() { host::Clock::thaw(); }

    Instance instance;
    mindroid::sp<VornAtClient> client = mindroid::make<VornAtClient>(false, 1); ///< of the test alone
    FakeModem& modem = FakeModem::instance();
    Caller caller;
    LogCapture log;

    int start(const Call& request)
    {
        caller = {};
        return request(&caller, Caller::onResult);
    }

    /// The oldest command on its way, alone in a message of the thread's instance; empty when there is none.
    std::string command() const
    {
        if (modem.sent.empty()) {
            return "";
        }
        const vorn_msg_t& sent = *modem.sent[0].message;
        const std::string command = vorn_msg_get_val_str(&sent, 0x8100);
        EXPECT_EQ(frame(sent), frame(*message(3, slotBit(tlssubid), 0, {text(0x8100, command)})));
        return command;
    }

    /// The caller got this, once.
    void expectEnd(int result, const Bytes& record = {})
    {
        EXPECT_EQ(caller.calls, 1);
        EXPECT_EQ(caller.result, result);
        EXPECT_TRUE(caller.hadRecord);
        expectRecord(caller.record.rsp, record);
        EXPECT_TRUE(modem.sent.empty());
    }

    /// The request becomes these commands. All but the last are accepted; what becomes of the last one's answer is the
    /// caller's.
    void ask(const Call& request, const Texts& commands, const Fields& last, int result,
             const Bytes& record = {})
    {
        ASSERT_EQ(start(request), 0);
        for (const std::string& expected : commands) {
            EXPECT_EQ(caller.calls, 0);
            ASSERT_EQ(command(), expected);
            modem.answer(&expected == &commands.back() ? last : kOk);
        }
        expectEnd(result, record);
    }

    void expectLog(const Texts& lines) const
    {
        for (const std::string& line : lines) {
            EXPECT_TRUE(log.has("D VornAtClient: " + line)) << line;
        }
    }
};

struct AtTest : testing::Test, AtModem {};

/// The commands as a chain sends them.
inline Texts chained(Texts commands)
{
    for (std::string& command : commands) {
        command += "\r\n";
    }
    return commands;
}

/// A request that is answered with whether its last command was accepted.
struct AtSetting {
    Call request;
    Texts commands;
    Texts log = {}; ///< some of it, on instance 1
};

inline void checkSettings(const std::vector<AtSetting>& rows)
{
    for (const unsigned number : {0U, 2U, 1U}) {
        AtModem at(number);
        for (const AtSetting& row : rows) {
            SCOPED_TRACE(row.commands.front());
            at.ask(row.request, row.commands, number == 2 ? kError : kOk, number == 2);
            at.expectLog(number == 1 ? row.log : Texts());
        }
    }
}

struct AtQuery {
    Call request;
    Texts commands;
    std::string data; ///< of a good answer
    Bytes record;
    Texts log = {};    ///< some of it
    int ofWord = 1;    ///< result when the data is a word, -1: that is good data; the record is then zero
    int ofNothing = 1; ///< result of an accepted answer without data
};

inline void checkQueries(const std::vector<AtQuery>& rows)
{
    AtModem at;
    for (const AtQuery& row : rows) {
        SCOPED_TRACE(row.commands.front() + " " + row.data);
        at.ask(row.request, row.commands, accepted(row.data), 0, row.record);
        at.expectLog(row.log);
        if (row.ofWord != -1) {
            at.ask(row.request, row.commands, accepted("+X: word"), row.ofWord);
        }
        at.ask(row.request, row.commands, kOk, row.ofNothing);
        at.ask(row.request, row.commands, answer("\r\n+CME ERROR: 3\r\n"), 1);
        at.ask(row.request, row.commands, {result(0)}, 1);
    }
}

inline void checkAtRefusals(const std::vector<Refusal>& rows)
{
    checkRefusals("E VornAtClient: ", rows);
}

} // namespace test
