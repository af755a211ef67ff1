// The message library as its callers see it, with the simulated modem inside.
#include "inbox.h"

#include "host/clock.h"
#include "host/link_status.h"
#include "host/log_sink.h"
#include "host/vorn_control.h"
#include "vorn/vorn_msg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

using testing::HasSubstr;

void onAnswer(vorn_msg_t* answer, void* user)
{
    const char* text = vorn_msg_get_val_str(answer, 0x8100);
    static_cast<Inbox<std::string>*>(user)->add(text != nullptr ? text : "no text");
}

int sendAt(const char* command, Inbox<std::string>* answers, vorn_msg_cb callback = onAnswer,
           uint32_t flags = 0)
{
    vorn_msg_t* request = vorn_msg_init(3, 1);
    vorn_msg_add_tlv(request, 0x8100, static_cast<uint16_t>(std::string_view(command).size() + 1), command);
    const int result = vorn_msg_async_api(request, callback, flags, answers);
    vorn_msg_deinit(request);
    return result;
}

std::string control(const char* command)
{
    std::string answer = "none";
    vorn_host_control(
        command, [](const char* json, void* user) { *static_cast<std::string*>(user) = json; }, &answer);
    return answer;
}

TEST(Vorn, opensWhatTheDeviceNameStandsFor)
{
    struct Row {
        const char* device;
        const char* environment;
        const char* error; ///< null when it opens
    };
    const Row rows[] = {
        {"embedded", nullptr, nullptr},
        {"embedded:/no/such/file.json", nullptr, "/no/such/file.json"},
        {"/dev/ttyS0", "embedded", nullptr},
        {"embedded", "/dev/ttyS0", "/dev/ttyS0"},
        {"unix:/tmp/modem", nullptr, "unix:/tmp/modem"},
        {"embeddedness", nullptr, "embeddedness"},
        {nullptr, nullptr, "\"\""},
    };
    std::string log;
    host::setLogSink([&](const host::LogLine& line) { log += line.priority >= 6 ? line.text : ""; });
    for (const Row& row : rows) {
        log.clear();
        SETCOM(row.device);
        if (row.environment != nullptr) {
            setenv("RADIO_VORN_DEVICE", row.environment, 1);
        }
        if (row.error == nullptr) {
            EXPECT_EQ(vorn_init_debug("test"), 0) << row.device;
            EXPECT_EQ(log, "");
        } else {
            EXPECT_LT(vorn_init_debug("test"), 0) << row.error;
            EXPECT_THAT(log, HasSubstr(row.error));
        }
        vorn_deinit();
        unsetenv("RADIO_VORN_DEVICE");
    }
    host::setLogSink(nullptr);
}

TEST(Vorn, carriesRequestsToTheSimulatedModemAndBack)
{
    Inbox<std::string> answers;
    EXPECT_NE(sendAt("AT", &answers), 0) << "not initialised";
    EXPECT_EQ(control("{}"), "none");
    SETCOM("embedded");
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(vorn_init_debug(nullptr), 0);
        EXPECT_NE(vorn_msg_async_api(nullptr, onAnswer, 0, nullptr), 0);
        EXPECT_NE(sendAt("AT", &answers, nullptr), 0);
        EXPECT_NE(sendAt("AT", &answers, onAnswer, 1), 0);
        EXPECT_LT(vorn_msg_register_ind_api(1, 0x7E01, nullptr, 0, nullptr), 0);
        EXPECT_EQ(vorn_msg_unregister_ind_api(1, 0x7E01), 0);
        EXPECT_EQ(sendAt("AT", &answers), 0);
        EXPECT_EQ(answers.waitFor(static_cast<size_t>(round) + 1).back(), "\r\nOK\r\n");
        EXPECT_THAT(control(R"({"command": "state"})"), HasSubstr(R"("ok":true)"));
        EXPECT_THAT(control("no JSON"), HasSubstr(R"("ok":false)"));
        vorn_hashmap_reset();
        vorn_deinit();
    }
}

TEST(Vorn, comesBackWhenTheModemRestarts)
{
    Inbox<host::LinkState> states;
    Inbox<std::string> answers;
    host::observeLinkState([&](host::LinkState state) { states.add(state); });
    host::Clock::freeze();
    SETCOM("embedded");
    ASSERT_EQ(vorn_init_debug("test"), 0);
    EXPECT_THAT(control(R"({"command": "restart"})"), HasSubstr(R"("ok":true)"));
    EXPECT_EQ(states.waitFor(2).back(), host::LinkState::Lost);
    host::Clock::advance(std::chrono::minutes(1));
    EXPECT_EQ(states.waitFor(3),
              (std::vector{host::LinkState::Up, host::LinkState::Lost, host::LinkState::Up}));
    EXPECT_EQ(sendAt("AT", &answers), 0);
    EXPECT_EQ(answers.waitFor(1).back(), "\r\nOK\r\n");
    vorn_deinit();
    host::observeLinkState(nullptr);
    host::Clock::thaw();
}

TEST(Vorn, processMayEndWhileItIsOpen)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto endWithRequests = [] {
        static Inbox<std::string>& answers = *new Inbox<std::string>;
        SETCOM("embedded");
        vorn_init_debug("test");
        for (int i = 0; i < 100; ++i) {
            sendAt("AT+CEMODE?", &answers);
        }
        std::exit(answers.waitFor(1).empty() ? 1 : 0);
    };
    EXPECT_EXIT(endWithRequests(), testing::ExitedWithCode(0), "");
}

} // namespace
