// Callbacks that call the transport, and threads that close it or unregister meanwhile.
#include "transport_fixture.h"

#include <future>
#include <thread>

namespace {

using Results = std::vector<uint32_t>;

TEST_F(TransportTest, closingAnswersWhatIsPending)
{
    answers.onAnswer = [&] {
        EXPECT_FALSE(send(answers) || open()) << "closing already";
        transport.close();
    };
    ASSERT_TRUE(open() && send(answers) && send(answers));
    transport.close();
    EXPECT_EQ(answers.waitFor(0), Results(2, host::kResultClosed));
    EXPECT_EQ(states.waitFor(2).back(), host::LinkState::Unknown);
}

TEST_F(TransportTest, callbackMayCloseAndOpenAgain)
{
    for (const bool reopens : {false, true}) {
        Answers pending;
        Answers closer;
        Answers later;
        modem.behaviour = nullptr;
        ASSERT_TRUE(open() && send(pending) && listen(closer));
        closer.onAnswer = [&] {
            EXPECT_TRUE(open() && send(pending) && listen(later));
            EXPECT_FALSE(transport.control("{}"));
            transport.unregisterAllIndications();
            transport.close();
            EXPECT_EQ(pending.waitFor(0), Results(2, host::kResultClosed)) << "before close() returns";
            modem.behaviour = answer;
            EXPECT_TRUE(!reopens || (open() && send(later)));
        };
        modem.link->received(messageOf(0));
        closer.waitFor(1);
        later.waitFor(reopens ? 1 : 0);
        transport.close();
        EXPECT_TRUE(open() && send(later)) << "and once more from outside";
        later.waitFor(reopens ? 2 : 1);
        transport.close();
        EXPECT_EQ(pending.waitFor(0).size(), 2u);
    }
}

TEST_F(TransportTest, unregisteringWaitsForTheRunningCallback)
{
    const std::function<void()> ways[] = {[&] { transport.unregisterIndication(1, kMessage); },
                                          [&] { transport.unregisterAllIndications(); },
                                          [&] { transport.close(); }};
    for (const std::function<void()>& unregister : ways) {
        std::promise<void> entered;
        std::promise<void> released;
        Answers held;
        held.onAnswer = [&] {
            entered.set_value();
            released.get_future().wait();
        };
        modem.behaviour = [](uint16_t, auto& link) { // both in one batch
            link.received(messageOf(0));
            link.received(messageOf(0));
        };
        ASSERT_TRUE(open() && listen(held) && send(answers));
        entered.get_future().wait();
        transport.unregisterIndication(2, kMessage); // another one, so this does not wait
        std::thread thread([&] {
            unregister();
            EXPECT_EQ(held.waitFor(0).size(), 1u);
        });
        released.set_value();
        thread.join();
        transport.close();
    }
}

TEST_F(TransportTest, everyThreadMaySendOpenAndClose)
{
    modem.behaviour = answer;
    ASSERT_TRUE(open());
    std::vector<Answers> each(4);
    std::vector<size_t> accepted(each.size());
    std::vector<std::thread> threads(each.size());
    for (size_t me = 0; me < each.size(); ++me) {
        threads[me] = std::thread([&, me] {
            for (int round = 1; round <= 2000; ++round) {
                accepted[me] += send(each[me]) ? 1 : 0;
                if (me == 0 && round % 100 == 0) {
                    transport.close();
                    EXPECT_TRUE(open());
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    transport.close();
    EXPECT_EQ(accepted[0], 2000u) << "open whenever it sent";
    for (size_t me = 0; me < each.size(); ++me) {
        EXPECT_EQ(each[me].waitFor(0).size(), accepted[me]);
    }
}

} // namespace
