/// The modem in a process of its own: shared by programs, killed, talked to by strangers.
#include "platform/inbox.h"
#include "soak/modem_process.h"
#include "system/modem_use.h"

#include "host/clock.h"
#include "host/device.h"
#include "host/log_sink.h"
#include "mindroid/promise.h"
#include "vorn/vorn_msg.h"

#include <gmock/gmock.h>

#include <asio.hpp>

#include <array>
#include <fstream>
#include <future>
#include <poll.h>
#include <random>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

/// What is started anew in a forked child must be allowed to start there.
extern "C" const char* __tsan_default_options() // NOLINT(bugprone-reserved-identifier)
{
    return "die_after_fork=0";
}

namespace {

std::atomic<bool> hasDescriptors = true;

} // namespace

/// Called by the message library, too. A limit of the process would also leave the sanitizers without descriptors.
extern "C" [[gnu::visibility("default")]] int socket(int domain, int type, int protocol) noexcept
{
    errno = EMFILE;
    return hasDescriptors ? static_cast<int>(syscall(SYS_socket, domain, type, protocol)) : -1;
}

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

TEST_F(ModemSim, HasAPlaceOfItsOwn)
{
    modem.start();
    EXPECT_NE(std::system(("'" MODEM_SIM "' --listen " + modem.device() + " 2>/dev/null").c_str()), 0);
    soak::ModemProcess successor(MODEM_SIM);
    successor.start();
    std::filesystem::rename(successor.socket(), modem.socket());
    EXPECT_EQ(modem.stop(), 0);
    use(modem.device());
    expectAnswer();
}

TEST_F(ModemSim, IsRefusedToAForkedChild)
{
    // The child looks for no leaks at its exit: what the parent's threads hold is lost there.
    static int exitStatus = -1;
    std::atexit([] { exitStatus < 0 ? void() : _exit(exitStatus); });
    modem.start();
    use(modem.device());
    states.waitFor(1);
    std::promise<void> timerRuns;
    mindroid::runAfter(0ms, [&] { timerRuns.set_value(); });
    timerRuns.get_future().wait();
    const pid_t child = fork();
    if (child == 0) {
        alarm(60);
        Answers answers(2);
        EXPECT_NE(radioSendScreenState(1, answers.userData(0), Answers::onResult), 0);
        EXPECT_EQ(radioSetServiceMode(1, answers.userData(1), Answers::onResult), 0) << "a chain";
        answers.expectOnceEach(1);
        EXPECT_EQ(answers.failures(), 1U);
        EXPECT_NE(radioRegisterVsEvent({.test = {1, 1}}, nullptr, nullptr), 0);
        EXPECT_LT(vorn_host_control(
                      "{}", [](const char*, void*) {}, nullptr),
                  0);
        EXPECT_LT(vorn_init_debug("child"), 0);
        exitStatus = HasFailure() ? 1 : 0;
        std::exit(exitStatus);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    expectAnswer();
    EXPECT_EQ(states.waitFor(1).size(), 1U) << "the link was not lost";
}

TEST_F(ModemSim, WaitsForItsPlaceWhenAnotherTookIt)
{
    modem.start();
    use(modem.device());
    addFault({{"message", "SetSarState"}}, {{"action", "disconnect"}, {"ms", 300}, {"count", 1}});
    Answers answers(1);
    ASSERT_EQ(radioSetSarState(1, 3, answers.userData(0), Answers::onResult), 0);
    answers.expectOnceEach(1);
    while (std::filesystem::exists(modem.socket())) { // it lets its clients go first
        std::this_thread::yield();
    }
    asio::io_context context;
    Local::acceptor other(context, Local::endpoint(modem.socket().string()));
    const Local::socket first = other.accept(); // one is this program, one the modem that looks who is there
    const Local::socket second = other.accept();
    EXPECT_EQ(modem.stop(), 0);
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

/// A modem that the test plays at the other end of the socket.
class PlayedModem : public ModemSim {
protected:
    ~PlayedModem() override
    {
        host::Clock::thaw();
        host::setLogSink(nullptr);
    }

    /// Connects until no more connections fit into the listener's queue.
    void fillQueue()
    {
        const Local::endpoint place(modem.socket().string());
        acceptor.listen(1);
        do {
            waiting.emplace_back(context, Local()).native_non_blocking(true);
        } while (
            connect(waiting.back().native_handle(), place.data(), static_cast<socklen_t>(place.size())) == 0);
    }
    void emptyQueue()
    {
        asio::error_code error;
        acceptor.non_blocking(true);
        while (!error) {
            acceptor.accept(error);
        }
        acceptor.non_blocking(false);
    }

    /// Waits until the log tells that the link can't be opened, and once more, so that nothing hung in between.
    template <typename Lose>
    void expectRetries(const std::string& reason, Lose lose)
    {
        static Happenings& retries = *new Happenings;
        retries.clear();
        host::setLogSink([reason](const host::LogLine& line) {
            if (line.text.find(reason) != std::string::npos) {
                retries.add(1);
            }
        });
        lose();
        retries.waitFor(2);
    }

    asio::io_context context;
    Local::acceptor acceptor{context, Local::endpoint(modem.socket().string())};
    std::vector<Local::socket> waiting;
};

TEST_F(PlayedModem, MayHaveNoRoomForAConnection)
{
    fillQueue();
    setenv("RADIO_VORN_DEVICE", modem.device().c_str(), 1);
    EXPECT_NE(vorn_init_debug("test"), 0);
    emptyQueue();
    use(modem.device());
    Local::socket client = acceptor.accept();
    states.waitFor(1);
    expectRetries("takes no connection", [&] {
        fillQueue();
        client.close();
    });
    emptyQueue();
    states.waitFor(3);
}

TEST_F(PlayedModem, IsFoundAgainWhenThereAreDescriptorsAgain)
{
    use(modem.device());
    Local::socket client = acceptor.accept();
    states.waitFor(1);
    expectRetries("can't reopen the link", [&] {
        hasDescriptors = false;
        client.shutdown(Local::socket::shutdown_both);
    });
    hasDescriptors = true;
    states.waitFor(3);
}

TEST_F(PlayedModem, HoldsUpOnlyThoseWhoCommandIt)
{
    use(modem.device());
    Local::socket client = acceptor.accept();
    states.waitFor(1);
    host::Clock::freeze();
    auto command = std::async(std::launch::async, [] {
        return vorn_host_control(
            "{}", [](const char*, void*) {}, nullptr);
    });
    std::array<char, 16> bytes{};
    client.read_some(asio::buffer(bytes)); // it is on its way
    Answers answers(1);
    ASSERT_EQ(radioSendScreenState(1, answers.userData(0), Answers::onResult), 0);
    host::Clock::advance(60s);
    answers.expectOnceEach(1);
    EXPECT_EQ(command.wait_for(0s), std::future_status::timeout);
    client.close();
    EXPECT_LT(command.get(), 0);
}

TEST_F(PlayedModem, IsNotReadWhileTooMuchWaits)
{
    use(modem.device());
    Local::socket client = acceptor.accept();
    std::promise<void> release;
    static std::shared_future<void> released;
    static Happenings* received;
    released = release.get_future().share();
    Happenings ofThisRun;
    received = &ofThisRun;
    const auto count = [](vorn_msg_t*, void*) {
        released.wait();
        received->add(1);
    };
    ASSERT_EQ(vorn_msg_register_ind_api(1, 7, count, 0, nullptr), 0);
    constexpr size_t kMost = 200'000;
    const std::string frame("\x05\0\0\0\x07\0\0\0\x01", 9);
    client.non_blocking(true);
    size_t sent = 0;
    asio::error_code error;
    size_t begun = 0; // of the frame that is being sent
    while (sent < kMost) {
        const size_t size = client.write_some(asio::buffer(frame.substr(begun)), error);
        begun = (begun + size) % frame.size();
        sent += size != 0 && begun == 0 ? 1 : 0;
        pollfd writable{client.native_handle(), POLLOUT, 0};
        if (error && poll(&writable, 1, 500) == 0) {
            break; // it takes nothing more
        }
    }
    EXPECT_LT(sent, kMost);
    release.set_value();
    received->waitFor(sent);
    EXPECT_EQ(vorn_msg_unregister_ind_api(1, 7), 0);
}

} // namespace
