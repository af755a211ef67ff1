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
    static_cast<Inbox<std::string>*>(user)->add(vorn_msg_get_val_str(answer, 0x8100));
}

int sendAt(Inbox<std::string>* answers, vorn_msg_cb callback = onAnswer, uint32_t flags = 0)
{
    vorn_msg_t* request = vorn_msg_init(3, 1);
    vorn_msg_add_tlv(request, 0x8100, 3, "AT");
    const int result = vorn_msg_async_api(request, callback, flags, answers);
    vorn_msg_deinit(request);
    return result;
}

std::string control(const char* command)
{
    std::string text = "none";
    const auto answer = [](const char* json, void* user) { *static_cast<std::string*>(user) = json; };
    vorn_host_control(command, answer, &text);
    return text;
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

TEST(Vorn, carriesRequestsToTheSimulatedModemAndBack)
{
    using host::LinkState;
    Inbox<LinkState> states;
    Inbox<std::string> answers;
    host::observeLinkState([&](LinkState state) { states.add(state); });
    host::Clock::freeze();
    EXPECT_LT(sendAt(&answers), 0) << "not initialised";
    EXPECT_EQ(control("{}"), "none");
    SETCOM("embedded");
    ASSERT_TRUE(vorn_init_debug(nullptr) == 0 && vorn_init_debug("again") == 0);
    const int refused[] = {vorn_msg_async_api(nullptr, onAnswer, 0, nullptr), sendAt(&answers, nullptr),
                           sendAt(&answers, onAnswer, 1),
                           vorn_msg_register_ind_api(1, 0x7E01, nullptr, 0, nullptr)};
    EXPECT_THAT(refused, testing::Each(testing::Lt(0)));
    EXPECT_EQ(vorn_msg_unregister_ind_api(1, 0x7E01), 0);
    EXPECT_THAT(control("no JSON"), HasSubstr(R"("ok":false)"));

    EXPECT_THAT(control(R"({"command": "restart"})"), HasSubstr(R"("ok":true)"));
    EXPECT_EQ(states.waitFor(2).back(), LinkState::Lost);
    host::Clock::advance(std::chrono::minutes(1));
    EXPECT_EQ(states.waitFor(3).back(), LinkState::Up);
    EXPECT_EQ(sendAt(&answers), 0);
    EXPECT_EQ(answers.waitFor(1), std::vector<std::string>{"\r\nOK\r\n"});
    vorn_deinit();
    EXPECT_EQ(states.waitFor(4).back(), LinkState::Unknown);
    host::observeLinkState(nullptr);
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
