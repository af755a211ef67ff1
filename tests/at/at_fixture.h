/// An AT client whose modem is the test.
#pragma once

#include "at/vorn_at_client.h"
#include "host/clock.h"
#include "mindroid/promise.h"
#include "support/request_rows.h"

#include <gmock/gmock.h>

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

/// Returns when everything that was due on the timer thread has run.
inline void drainTimer()
{
    std::promise<void> done;
    mindroid::runAfter(std::chrono::milliseconds(0), [&] { done.set_value(); });
    done.get_future().wait();
}

struct AtTest : testing::Test {
    Instance instance{1};
    mindroid::sp<VornAtClient> client = mindroid::make<VornAtClient>(false, 1); ///< of the test alone
    FakeModem& modem = FakeModem::instance();
    Caller caller;
    LogCapture log;

    ~AtTest() override { host::Clock::thaw(); }

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

    /// Accepts whatever is on its way.
    void answerAll()
    {
        while (!modem.sent.empty()) {
            modem.answer(answer("OK"));
        }
    }
};

} // namespace test
