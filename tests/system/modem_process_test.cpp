/// The modem in a process of its own: shared by programs, killed, talked to by strangers.
#include "platform/inbox.h"
#include "soak/modem_process.h"
#include "system/modem_use.h"

#include "host/clock.h"
#include "host/device.h"
#include "vorn/vorn_msg.h"

#include <gmock/gmock.h>

#include <asio.hpp>

#include <array>
#include <fstream>
#include <random>
#include <thread>

using namespace std::chrono_literals;

namespace {

using Local = asio::local::stream_protocol;

using Happenings = Inbox<int>;

class ModemSim : public testing::Test {
protected:
    ModemSim()
    {
        states.clear();
        setenv("RADIO_LOG", "off", 1);
        host::setProperty("ro.vendor.zor_vorn_support", "1");
        registerRadioApisEvent(kModem, &states, [](auto, RAPIS_CONNECT_STATE state, void* user) {
            static_cast<Happenings*>(user)->add(state);
        });
    }

    ~ModemSim() override { vorn_deinit(); }

    /// The library opens its modem once; later tests of a process open theirs themselves.
    void use(const std::string& device)
    {
        setenv("RADIO_VORN_DEVICE", device.c_str(), 1);
        EXPECT_EQ(radioApisInit(kModem, 0), 0);
        EXPECT_EQ(vorn_init_debug("test"), 0);
    }

    /// The whole way to the modem and back.
    void expectAnswer()
    {
        Answers answers(1);
        EXPECT_EQ(radioSendScreenState(1, answers.userData(0), Answers::onResult), 0);
        answers.expectOnceEach(1);
        EXPECT_EQ(answers.failures(), 0U);
    }

    static int radioctl(const std::string& words)
    {
        return std::system(("RADIO_LOG=off '" RADIOCTL "' " + words + " >/dev/null").c_str());
    }

    /// A service listener stays for good, with threads that outlive the program's statics.
    static inline Happenings& states = *new Happenings;
    soak::ModemProcess modem{MODEM_SIM};
};

TEST_F(ModemSim, IsSharedByPrograms)
{
    modem.start();
    use(modem.device());
    static Happenings& events = *new Happenings;
    events.clear();
    registerRadioEvent(RADIO_EVENT_TEST_IND, nullptr,
                       [](auto, auto, void* data, int) { events.add(*static_cast<int*>(data)); });
    ASSERT_EQ(radioRegisterVsEvent({.test = {1, 1}}, nullptr, nullptr), 0);
    const std::string there = "--device " + modem.device();
    EXPECT_EQ(radioctl(there + " events test --count 1 --do 'sim indicate test --value 7'"), 0);
    EXPECT_EQ(events.waitFor(1), std::vector<int>{7});

    EXPECT_EQ(radioctl(there + " set-feature-state 5 17"), 0);
    Answers answers(1);
    static uint32_t state;
    ASSERT_EQ(radioGetFeatureState(5, answers.userData(0),
                                   [](void* user, RADIO_APIS_RESULT result, RadioApisResultType* record) {
                                       state = record->rsp.featureState.state;
                                       Answers::onResult(user, result, record);
                                   }),
              0);
    answers.expectOnceEach(1);
    EXPECT_EQ(state, 17U);
    const std::string fault =
        R"( sim fault-add 'match={"message":"SetSarState"}' action=result result=21 count=1)";
    EXPECT_EQ(radioctl(there + fault), 0);
    EXPECT_NE(radioctl(there + " set-sar-state 1 2 2>&1"), 0);
    EXPECT_EQ(radioctl(there + " set-sar-state 1 2"), 0);
    EXPECT_EQ(modem.stop(), 0);
    EXPECT_FALSE(std::filesystem::exists(modem.socket()));
}

TEST_F(ModemSim, KeepsItsNvItemsWhenItIsKilled)
{
    const auto folder = modem.socket().parent_path();
    std::ofstream(folder / "scenario.json") << R"({"nvFile": "nv.json"})";
    soak::ModemProcess other(MODEM_SIM, {"--scenario", folder / "scenario.json"});
    const std::string there = "--device " + other.device();
    other.start();
    EXPECT_EQ(radioctl(there + " write-nv 77 1 0a0b"), 0);
    other.kill();
    other.start();
    EXPECT_EQ(radioctl(there + " --json read-nv 77 1 | grep -q 0a0b"), 0);
}

TEST_F(ModemSim, IsNotStartedTwiceAtOnePlace)
{
    modem.start();
    EXPECT_NE(std::system(("'" MODEM_SIM "' --listen " + modem.device() + " 2>/dev/null").c_str()), 0);
    use(modem.device());
    expectAnswer();
}

/// What becomes of a request that a fault strikes.
enum class Fate { Answered, Failed, Overdue, LostWithTheLink };

class ModemFaults : public ModemSim, public testing::WithParamInterface<std::pair<const char*, Fate>> {
protected:
    ~ModemFaults() override { host::Clock::thaw(); }
};

TEST_P(ModemFaults, LeaveEachRequestWithOneAnswer)
{
    const auto& [text, fate] = GetParam();
    modem.start();
    use(modem.device());
    auto fault = nlohmann::json::parse(text);
    fault["count"] = 1;
    addFault({{"message", "SetSarState"}}, fault);
    if (fate == Fate::Overdue) {
        host::Clock::freeze();
    }
    Answers answers(2);
    ASSERT_EQ(radioSetSarState(1, 3, answers.userData(0), Answers::onResult), 0);
    if (fate == Fate::LostWithTheLink) {
        states.waitFor(3); // known, lost, back
    } else {
        ASSERT_EQ(radioSendScreenState(1, answers.userData(1), Answers::onResult), 0);
    }
    if (fate == Fate::Overdue) {
        answers.expectOnceEach(1);
        host::Clock::advance(60s);
    }
    answers.expectOnceEach(fate == Fate::LostWithTheLink ? 1 : 2);
    EXPECT_EQ(answers.failures(), fate == Fate::Answered ? 0U : 1U);
    expectAnswer();
    EXPECT_EQ(answers.failures(), fate == Fate::Answered ? 0U : 1U);
}

INSTANTIATE_TEST_SUITE_P(
    , ModemFaults,
    testing::Values(std::pair(R"({"action": "drop"})", Fate::Overdue),
                    std::pair(R"({"action": "delay", "ms": 20})", Fate::Answered),
                    std::pair(R"({"action": "result", "result": 21})", Fate::Failed),
                    std::pair(R"({"action": "late", "ms": 3000})", Fate::Overdue),
                    std::pair(R"({"action": "duplicate"})", Fate::Answered),
                    std::pair(R"({"action": "truncate"})", Fate::Answered),
                    std::pair(R"({"action": "garble"})", Fate::Failed),
                    std::pair(R"({"action": "wrong_transaction"})", Fate::Overdue),
                    std::pair(R"({"action": "disconnect", "ms": 50})", Fate::LostWithTheLink),
                    std::pair(R"({"action": "restart", "ms": 50})", Fate::LostWithTheLink)),
    [](const auto& row) {
        return nlohmann::json::parse(row.param.first)["action"].template get<std::string>();
    });

/// Byte strings that no well-behaved peer sends. Of each pair the second tells whether the connection must end.
std::vector<std::pair<std::string, bool>> hostileBytes()
{
    std::string noise(20'000, '\0');
    std::mt19937 random(3);
    std::ranges::generate(noise, [&] { return static_cast<char>(random()); });
    noise[3] = '\x7f'; // no frame is that large
    return {
        {std::string("\xff\xff\xff\xff", 4) + "x", true}, // 4 GB
        {std::string("\0\0\0\0", 4), true},               // less than a header
        {noise, true},
        {std::string("\x08\0\0\0", 4) + std::string("\x01\x02\x03\x04\x01\x09\0\0", 8),
         false},                                                                      // unknown record
        {std::string("\x05\0\0\0", 4) + std::string("\xff\xff\x01\0\x01", 5), false}, // unknown message
        {std::string("\x05\0\0\0", 4) + std::string("\0\0\0\0\0", 5), false},         // an empty command
        {std::string("\x40\0\0\0", 4) + "half a frame", false},
    };
}

TEST_F(ModemSim, SurvivesHostileClients)
{
    modem.start();
    use(modem.device());
    asio::io_context context;
    std::vector<Local::socket> open; // slow ones stay while others are served
    for (const auto& [bytes, ends] : hostileBytes()) {
        Local::socket& client = open.emplace_back(context);
        client.connect(Local::endpoint(modem.socket().string()));
        asio::error_code error;
        asio::write(client, asio::buffer(bytes), error); // the end may come before all is written
        if (ends) {
            std::array<char, 16> answer{};
            EXPECT_EQ(client.read_some(asio::buffer(answer), error), 0U);
            EXPECT_TRUE(error);
        }
        expectAnswer();
    }
}

TEST_F(ModemSim, IsTakenForLostWhenItTalksNonsense)
{
    asio::io_context context;
    Local::acceptor acceptor(context, Local::endpoint(modem.socket().string()));
    std::vector<Local::socket> open;
    open.reserve(20);
    size_t expected = 1;
    for (const auto& [bytes, ends] : hostileBytes()) {
        if (open.empty()) {
            use(modem.device());
        }
        if (open.empty() || !open.back().is_open()) {
            open.push_back(acceptor.accept());
            states.waitFor(expected);
        }
        asio::write(open.back(), asio::buffer(bytes));
        if (ends) {
            expected += 2; // lost and, since somebody still listens, back
            states.waitFor(expected - 1);
            open.back().close();
        }
    }
    Answers answers(1);
    ASSERT_EQ(radioSendScreenState(1, answers.userData(0), Answers::onResult), 0);
    open.back().close();
    answers.expectOnceEach(1);
    EXPECT_EQ(answers.failures(), 1U);
}

} // namespace
