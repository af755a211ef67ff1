/// An AT client whose modem is the test.
#pragma once

#include "at/vorn_at_client.h"
#include "mindroid/promise.h"
#include "support/request_rows.h"

#include <gmock/gmock.h>

#include <future>

namespace test {

inline Fields answer(const char* text)
{
    return {result(0), test::text(0x8100, text)};
}

/// Returns when everything that was due on the timer thread has run.
inline void drainTimer()
{
    std::promise<void> done;
    mindroid::runAfter(std::chrono::milliseconds(0), [&] { done.set_value(); });
    done.get_future().wait();
}

struct AtTest : testing::Test {
    mindroid::sp<VornAtClient> client = mindroid::make<VornAtClient>(false, 1);
    FakeModem& modem = FakeModem::instance();
    Caller caller;
    LogCapture log;

    /// The modem outlives the test; what the test made of it must not.
    ~AtTest() override
    {
        modem.onSend = nullptr;
        modem.sendResult = 0;
    }

    /// The oldest command on its way; empty when there is none.
    std::string command() const
    {
        return modem.sent.empty() ? "" : vorn_msg_get_val_str(modem.sent[0].message.get(), 0x8100);
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
