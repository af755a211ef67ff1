/// The library over the real message library and the simulated modem: every accepted request is answered
/// once, and every event told once, whatever the modem, the link and other threads do.
#include "system/modem_use.h"

#include "at/at_chain_promise.h"
#include "host/clock.h"
#include "support/instance.h"
#include "vs/vorn_vs_client.h"

#include <gmock/gmock.h>

#include <atomic>
#include <random>
#include <shared_mutex>
#include <thread>

using namespace std::chrono_literals;

namespace {

struct ExactlyOnce : testing::Test {
    test::Device device; // the modem ends with it

    ExactlyOnce()
    {
        setenv("RADIO_VORN_DEVICE", "embedded", 1);
        setenv("RADIO_LOG", "off", 1);
        EXPECT_EQ(radioApisInit(kModem, 0), 0);
    }
    ~ExactlyOnce() override { host::Clock::thaw(); }
};

} // namespace

TEST_F(ExactlyOnce, WhenTheModemDropsTheAnswer)
{
    host::Clock::freeze();
    addFault({{"message", "SendScreenState"}}, {{"action", "drop"}, {"count", 1}});
    Answers answers(2);
    ASSERT_EQ(radioSendScreenState(1, answers.userData(0), Answers::onResult), 0);
    ASSERT_EQ(radioSendScreenState(1, answers.userData(1), Answers::onResult), 0);
    answers.expectOnceEach(1);
    host::Clock::advance(60s);
    answers.expectOnceEach(2);
    EXPECT_EQ(answers.failures(), 1u);
}

TEST_F(ExactlyOnce, WhenTheModemAnswersTwiceOrToNobody)
{
    addFault({{"message", "SendScreenState"}}, {{"action", "duplicate"}, {"count", 1}});
    addFault({{"message", "SetSarState"}}, {{"action", "wrong_transaction"}, {"count", 1}});
    host::Clock::freeze();
    Answers answers(3);
    ASSERT_EQ(radioSendScreenState(1, answers.userData(0), Answers::onResult), 0);
    ASSERT_EQ(radioSetSarState(1, 1, answers.userData(1), Answers::onResult), 0);
    ASSERT_EQ(radioGetServiceMode(answers.userData(2), Answers::onResult), 0);
    answers.expectOnceEach(2);
    host::Clock::advance(60s);
    answers.expectOnceEach(3);
}

TEST_F(ExactlyOnce, WhenTheLinkDiesWithManyInFlight)
{
    static std::mutex mutex;
    static std::condition_variable changed;
    static std::vector<int> states;
    states.clear();
    registerRadioApisEvent(kModem, nullptr, [](RADIO_APIS_SERVICE_TYPE, RAPIS_CONNECT_STATE state, void*) {
        const std::lock_guard lock(mutex);
        states.push_back(state);
        changed.notify_all();
    });
    host::Clock::freeze();
    addFault({{"message", "SendScreenState"}}, {{"action", "drop"}});
    addFault({{"message", "SetSarState"}}, {{"action", "disconnect"}, {"count", 1}, {"ms", 1000}});
    constexpr size_t kRequests = 1001;
    Answers answers(kRequests + 1);
    for (size_t i = 0; i + 1 < kRequests; ++i) {
        ASSERT_EQ(radioSendScreenState(1, answers.userData(i), Answers::onResult), 0);
    }
    ASSERT_EQ(radioSetSarState(1, 1, answers.userData(kRequests - 1), Answers::onResult), 0);
    answers.expectOnceEach(kRequests);
    EXPECT_EQ(answers.failures(), kRequests);
    EXPECT_EQ(radioGetServiceMode(answers.userData(kRequests), Answers::onResult), 1); // the link is down

    // The link comes back by itself, within its back-off.
    std::unique_lock lock(mutex);
    while (states.size() < 3) {
        host::Clock::advance(1s);
        changed.wait_for(lock, 10ms);
    }
    EXPECT_EQ(states, (std::vector<int>{RAPIS_CONNECTED, RAPIS_DISCONNECTED, RAPIS_CONNECTED}));
    lock.unlock();
    ASSERT_EQ(radioGetServiceMode(answers.userData(kRequests), Answers::onResult), 0);
    answers.expectOnceEach(kRequests + 1);
    EXPECT_EQ(answers.failures(), kRequests);
}

TEST_F(ExactlyOnce, WhenTheInstanceIsReleasedFirst)
{
    host::Clock::freeze();
    addFault({{"message", "GetRRCStatus"}}, {{"action", "delay"}, {"ms", 500}});
    addFault({{"at", "AT+CEMODE?"}}, {{"action", "delay"}, {"ms", 500}});
    constexpr size_t kRequests = 100;
    Answers answers(2 * kRequests);
    for (size_t i = 0; i < kRequests; ++i) {
        ASSERT_EQ(radioGetRRCStatus(answers.userData(2 * i), Answers::onResult), 0);
        ASSERT_EQ(radioGetServiceMode(answers.userData(2 * i + 1), Answers::onResult), 0);
    }
    EXPECT_EQ(radioApisReleaseService(kModem), 0);
    control({{"command", "state"}}); // all requests reached the modem: it answers commands in turn
    host::Clock::advance(500ms);
    answers.expectOnceEach(2 * kRequests);
    EXPECT_EQ(answers.failures(), 0u);
}

/// On an instance that others use at the same time: initialises it again, switches indications, sends requests.
size_t use(unsigned instance, Answers& answers, bool on)
{
    const uint8_t state = on ? 1 : 0;
    EXPECT_EQ(radioApisInit(kModem, instance), 0);
    EXPECT_EQ(radioRegisterVsEvent({.nec = {1, 1}, .test = {1, state}}, nullptr, nullptr), 0);
    EXPECT_EQ(radioRegisterRadioEvent({{1, state}, {1, 1}}, nullptr, nullptr), 0);
    registerRadioEvent(RADIO_EVENT_TEST_IND, nullptr, [](RADIO_EVENT_TYPE, void*, void*, int) {
        radioRegisterVsEvent({.test = {1, 0}}, nullptr, nullptr); // of instance 0, as the thread's
        radioRegisterVsEvent({.test = {1, 1}}, nullptr, nullptr);
    });
    const int results[] = {
        radioSetSarState(1, 2, answers.userData(0), Answers::onResult),
        radioGetAllCellularCellInfo(answers.userData(1), Answers::onResult),
        radioGetServiceMode(answers.userData(2), Answers::onResult),
        radioSetServiceMode(1, answers.userData(3), Answers::onResult),
        radioGetMsimSubModeState(answers.userData(4), Answers::onResult),
    };
    EXPECT_THAT(results, testing::Each(0));
    return std::size(results);
}

/// Goes on for STRESS_SECONDS of the environment.
TEST_F(ExactlyOnce, WhateverManyThreadsDoWithinTheRules)
{
    const char* seconds = std::getenv("STRESS_SECONDS");
    const auto end =
        std::chrono::steady_clock::now() + std::chrono::seconds(seconds != nullptr ? std::stoi(seconds) : 1);
    std::shared_mutex instances[3]; // owned by who releases one; callbacks need the first
    const auto work = [&](unsigned seed) {
        std::minstd_rand random(seed);
        while (std::chrono::steady_clock::now() < end) {
            const auto instance = static_cast<unsigned>(random() % 3);
            if (instance != 0 && random() % 8 == 0) {
                const std::unique_lock alone(instances[instance]);
                radioApisInit(kModem, instance);
                radioApisReleaseService(kModem);
                radioApisDeinit();
                continue;
            }
            Answers answers(5);
            std::shared_lock together(instances[instance]);
            const size_t accepted = use(instance, answers, random() % 2 == 0);
            together.unlock();
            control({{"command", "indicate"}, {"message", "test"}, {"slot", instance}});
            answers.expectOnceEach(accepted);
        }
    };
    std::vector<std::thread> threads;
    for (unsigned seed = 1; seed <= 8; ++seed) {
        threads.emplace_back(work, seed);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

TEST_F(ExactlyOnce, ChainsFromManyThreadsOnThreeInstances)
{
    constexpr size_t kPerThread = 2500;
    constexpr size_t kThreads = 4;
    constexpr int kCommands = 3;
    Answers answers(kThreads * kPerThread);
    std::vector<std::thread> threads;
    std::atomic<int> outOfOrder = 0;
    for (size_t t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            for (size_t i = t * kPerThread; i < (t + 1) * kPerThread; ++i) {
                const auto client = mindroid::make<VornAtClient>(false, static_cast<int>(i % 3));
                const auto done = std::make_shared<int>(0);
                const auto chain = mindroid::make<AtChain>();
                for (int command = 0; command < kCommands; ++command) {
                    const bool fails = i % 10 == 0 && command == 1;
                    chain->add(fails ? "AT+CEMODE=9" : "AT+CEMODE?",
                               [=, &outOfOrder](auto& answer, auto* record) {
                                   outOfOrder += (*done)++ != command;
                                   return VornAtClient::completeWithResultVoid(answer, record);
                               });
                }
                chain->start(client, answers.userData(i), Answers::onResult);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    answers.expectOnceEach(kThreads * kPerThread);
    EXPECT_EQ(answers.failures(), kThreads * kPerThread / 10);
    EXPECT_EQ(outOfOrder, 0);
}

TEST_F(ExactlyOnce, EventsWhileListenersComeAndGo)
{
    constexpr auto kEvent = RADIO_EVENT_TEST_IND;
    constexpr int kEvents = 100'000;
    constexpr int kAtOnce = 10'000;
    VornVsClient client(false, 1);
    ASSERT_EQ(client.registerEvent({.test = {1, 1}}, nullptr, nullptr), 0);

    static std::atomic<int> before;
    static std::atomic<int> after;
    before = after = 0;
    constexpr RadioEventCallback passing = [](RADIO_EVENT_TYPE, void*, void*, int) {};
    constexpr RadioEventCallback inCallback = [](RADIO_EVENT_TYPE, void*, void*, int) {};
    client.registerRadioEvent(kEvent, &client, [](RADIO_EVENT_TYPE, void* user, void*, int) {
        static_cast<VornVsClient*>(user)->registerRadioEvent(kEvent, user, inCallback);
        static_cast<VornVsClient*>(user)->deregisterRadioEvent(kEvent, inCallback);
        ++before;
    });
    std::atomic<bool> done = false;
    const auto churn = [&](void* user) {
        while (!done) {
            client.registerRadioEvent(kEvent, user, passing);
            client.deregisterRadioEvent(kEvent, passing);
        }
    };
    client.registerRadioEvent(kEvent, nullptr, passing);
    client.registerRadioEvent(kEvent, nullptr, [](RADIO_EVENT_TYPE, void*, void* data, int) {
        after += *static_cast<int*>(data) == 7 ? 1 : kEvents;
        after.notify_all();
    });
    std::thread others[] = {std::thread(churn, &client), std::thread(churn, &done)};
    for (int sent = 0; sent < kEvents; sent += kAtOnce) {
        control(
            {{"command", "indicate"}, {"message", "test"}, {"slot", 1}, {"value", 7}, {"times", kAtOnce}});
    }
    for (int now = after; now < kEvents; now = after) {
        after.wait(now);
    }
    done = true;
    for (std::thread& other : others) {
        other.join();
    }
    client.unregisterEvent();
    EXPECT_EQ(before, kEvents);
    EXPECT_EQ(after, kEvents);
}
