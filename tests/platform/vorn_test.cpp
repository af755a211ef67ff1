// The message library as its callers see it, with the simulated modem inside.
#include "inbox.h"

#include "host/log_sink.h"
#include "vorn/vorn_msg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using testing::HasSubstr;

void sendAt(Inbox<std::string>* answers)
{
    const auto onAnswer = [](vorn_msg_t* answer, void* user) {
        static_cast<Inbox<std::string>*>(user)->add(vorn_msg_get_val_str(answer, 0x8100));
    };
    vorn_msg_t* request = vorn_msg_init(3, 1);
    vorn_msg_add_tlv(request, 0x8100, 3, "AT");
    vorn_msg_async_api(request, onAnswer, 0, answers);
    vorn_msg_deinit(request);
}

TEST(Vorn, opensWhatTheDeviceNameStandsFor)
{
    const std::tuple<const char*, const char*, const char*> rows[] = {
        // name, environment, what the error names
        {"embedded", "", ""},
        {"embedded:/no/such/file.json", "", "/no/such/file.json"},
        {"/dev/ttyS0", "embedded", ""},
        {"embedded", "/dev/ttyS0", "/dev/ttyS0"},
        {"unix:/tmp/modem", "", "unix:/tmp/modem"},
        {"embeddedness", "", "embeddedness"},
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

TEST(Vorn, processMayEndWhileItIsOpen)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto endWithRequests = [] {
        static Inbox<std::string>& answers = *new Inbox<std::string>;
        SETCOM("embedded");
        vorn_init_debug("test");
        sendAt(&answers);
        answers.waitFor(1);
        sendAt(&answers);
        std::exit(0);
    };
    EXPECT_EXIT(endWithRequests(), testing::ExitedWithCode(0), "");
}

} // namespace
