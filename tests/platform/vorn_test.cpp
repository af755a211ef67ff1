// The message library as its callers see it, with the simulated modem inside.
#include "inbox.h"

#include "host/log_sink.h"
#include "host/vorn_control.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using testing::HasSubstr;

TEST(Vorn, opensWhatTheDeviceNameStandsFor)
{
    const std::tuple<const char*, const char*, const char*> rows[] = {
        // name, environment, what the error names
        {"embedded", "", ""},
        {"embedded:/no/such/file.json", "", "/no/such/file.json: can't be read: No such file"},
        {"/dev/ttyS0", "embedded", ""},
        {"embedded", "/dev/ttyS0", "/dev/ttyS0"},
        {"unix:/tmp/modem", "", "modem-sim --listen unix:/tmp/modem starts one"},
        {"embeddedness", "", "\"embeddedness\": a workstation has none but"},
        {"unix:", "", "choose one with RADIO_VORN_DEVICE"},
        {nullptr, "", "\"\""},
    };
    std::string log;
    host::setLogSink([&](const host::LogLine& line) { log += line.priority >= 6 ? line.text : ""; });
    for (const auto& [device, environment, error] : rows) {
        log.clear();
        SETCOM(device);
        setenv("RADIO_VORN_DEVICE", environment, 1);
        EXPECT_EQ(vorn_init_debug("test") < 0, *error != '\0') << error;
        EXPECT_THAT(log, HasSubstr(error));
        EXPECT_EQ(log.empty(), *error == '\0') << log;
        vorn_deinit();
    }
    host::setLogSink(nullptr);
}

TEST(Vorn, answersAreObservedRightBeforeTheirCallbacks)
{
    struct Round : Inbox<size_t> {
        size_t observed = 0; ///< by the delivery thread alone, until the observer is gone
    };
    const auto observe = [](const vorn_msg_t*, void* user) { ++static_cast<Round*>(user)->observed; };
    const auto onAnswer = [](vorn_msg_t*, void* user) {
        static_cast<Round*>(user)->add(static_cast<Round*>(user)->observed);
    };
    SETCOM("embedded");
    ASSERT_EQ(vorn_init_debug("test"), 0);
    vorn_msg_t* request = vorn_msg_init(0x3813, 1);
    for (int i = 0; i < 100; ++i) {
        Round round;
        vorn_host_observe(observe, &round);
        for (int n = 0; n < 3; ++n) {
            EXPECT_EQ(vorn_msg_async_api(request, onAnswer, 0, &round), 0);
        }
        EXPECT_EQ(round.waitFor(1).front(), 1U);
        vorn_host_observe(nullptr, nullptr);
        const size_t observed = round.observed;
        EXPECT_EQ(round.waitFor(3).back(), observed);
    }
    vorn_msg_deinit(request);
    vorn_deinit();
}

} // namespace
