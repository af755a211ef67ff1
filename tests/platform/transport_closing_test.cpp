// Callbacks that call the transport, and threads that close it or unregister meanwhile.
#include "transport_fixture.h"

#include <future>
#include <thread>

namespace {

using Results = std::vector<uint32_t>;

/// An indication's callback that a test holds up until release() is called.
struct HeldIndication {
    static void callback(vorn_msg_t*, void* user)
    {
        auto& self = *static_cast<HeldIndication*>(user);
        self.entered.set_value();
        self.released.get_future().wait();
        self.left = true;
    }

    std::promise<void> entered;
    std::promise<void> released;
    std::atomic<bool> left{false};
};

constexpr uint16_t kIndication = 0x7E01;

MessagePtr indication()
{
    return MessagePtr(vorn_msg_init(kIndication, 1));
}

void countIndication(vorn_msg_t*, void* user)
{
    auto& self = *static_cast<Answers*>(user);
    self.onAnswer();
    self.add(0);
}

TEST_F(TransportTest, closingAnswersWhatIsPending)
{
    ASSERT_TRUE(open());
    Answers last;
    answers.onAnswer = [&] {
        EXPECT_FALSE(send(last)); // closing already
        EXPECT_FALSE(open());
        transport.close();
    };
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(send(answers));
    }
    transport.close();
    EXPECT_EQ(answers.waitFor(0), Results(3, host::kResultClosed));
    EXPECT_EQ(last.waitFor(0), Results{});
    EXPECT_EQ(states.waitFor(2).back(), host::LinkState::Unknown);
}

TEST_F(TransportTest, callbackMayCloseAndOpenAgain)
{
    for (const bool reopens : {false, true}) {
        Answers pending;
        Answers closer;
        Answers later;
        ASSERT_TRUE(open());
        modem.behaviour = nullptr;
        ASSERT_TRUE(send(pending));
        closer.onAnswer = [&] {
            transport.unregisterAllIndications();
            EXPECT_FALSE(transport.control("{}"));
            transport.close();
            EXPECT_EQ(pending.waitFor(0), Results{host::kResultClosed}) << "answered before close() returns";
            if (reopens) {
                EXPECT_TRUE(open());
                EXPECT_TRUE(send(later));
            }
        };
        ASSERT_TRUE(send(closer));
        modem.requests.waitFor(2);
        modem.behaviour = answerRequest;
        modem.events->received(answerTo(closer.transaction));
        EXPECT_EQ(closer.waitFor(1), Results{0});
        if (reopens) {
            EXPECT_EQ(later.waitFor(1), Results{0});
        }
        transport.close();
        EXPECT_TRUE(open()) << "and once more from outside";
        EXPECT_TRUE(send(later));
        later.waitFor(reopens ? 2 : 1);
        transport.close();
        EXPECT_EQ(pending.waitFor(0).size(), 1u);
    }
}

TEST_F(TransportTest, callbackMaySendAndRegister)
{
    ASSERT_TRUE(open());
    modem.behaviour = answerRequest;
    Answers second;
    Answers indications;
    answers.onAnswer = [&] {
        EXPECT_TRUE(send(second));
        EXPECT_TRUE(open());
        EXPECT_TRUE(transport.registerIndication(1, kIndication, countIndication, &indications));
        modem.events->received(indication());
    };
    indications.onAnswer = [&] { transport.unregisterIndication(1, kIndication); };
    ASSERT_TRUE(send(answers));
    EXPECT_EQ(second.waitFor(1), Results{0});
    indications.waitFor(1);
    modem.events->received(indication()); // nobody's any more
    transport.close();
    EXPECT_EQ(indications.waitFor(0).size(), 1u);
}

TEST_F(TransportTest, unregisteringWaitsForTheRunningCallback)
{
    const std::function<void()> ways[] = {[&] { transport.unregisterIndication(1, kIndication); },
                                          [&] { transport.unregisterAllIndications(); },
                                          [&] { transport.close(); }};
    for (const std::function<void()>& unregister : ways) {
        HeldIndication held;
        ASSERT_TRUE(open());
        ASSERT_TRUE(transport.registerIndication(1, kIndication, HeldIndication::callback, &held));
        modem.events->received(indication());
        held.entered.get_future().wait();
        transport.unregisterIndication(2, kIndication); // another one, so this does not wait
        std::thread thread([&] {
            unregister();
            EXPECT_TRUE(held.left);
        });
        held.released.set_value();
        thread.join();
    }
}

TEST_F(TransportTest, closingAndOpeningFromManyThreadsAnswersEverything)
{
    modem.behaviour = answerRequest;
    std::vector<std::thread> threads;
    threads.emplace_back([&] {
        for (int i = 0; i < 200; ++i) {
            transport.close();
        }
    });
    threads.emplace_back([&] {
        for (int i = 0; i < 200; ++i) {
            EXPECT_TRUE(open());
        }
    });
    std::vector<Answers> each(2);
    std::vector<size_t> accepted(each.size());
    for (size_t sender = 0; sender < each.size(); ++sender) {
        threads.emplace_back([&, sender] {
            for (int i = 0; i < 1000; ++i) {
                accepted[sender] += send(each[sender]) ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    transport.close();
    EXPECT_EQ(each[0].waitFor(0).size(), accepted[0]);
    EXPECT_EQ(each[1].waitFor(0).size(), accepted[1]);
}

} // namespace
