#include "transport_fixture.h"

#include <set>
#include <thread>

namespace {

using host::LinkState;
using Results = std::vector<uint32_t>;
using States = std::vector<LinkState>;

TEST_F(TransportTest, everyRequestHasOneAnswerWhateverTheModemDoes)
{
    struct Row {
        const char* what;
        FakeModem::Behaviour behaviour;
        uint32_t result;
        size_t warnings; ///< besides the one about the late answer that comes in each row
    };
    const Row rows[] = {
        {"an answer", answerRequest, 0, 0},
        {"a failure", [](uint16_t tx, auto& link) { link.received(answerTo(tx, 21)); }, 21, 0},
        {"the answer twice",
         [](uint16_t tx, auto& link) {
             link.received(answerTo(tx));
             link.received(answerTo(tx, 5));
         },
         0, 1},
        {"silence", nullptr, host::kResultTimeout, 1},
        {"an answer to something else",
         [](uint16_t tx, auto& link) { link.received(answerTo(static_cast<uint16_t>(tx + 1))); },
         host::kResultTimeout, 2},
        {"the end of the link", [](uint16_t, auto& link) { link.lost(0ms); }, host::kResultLinkLost, 1},
    };
    size_t requests = 0;
    for (const Row& row : rows) {
        modem.behaviour = row.behaviour;
        const size_t expectedWarnings = warnings.waitFor(0).size() + row.warnings + 1;
        Answers each;
        ASSERT_TRUE(open());
        ASSERT_TRUE(send(each)) << row.what;
        const uint16_t transaction = modem.requests.waitFor(++requests).back();
        if (row.result == host::kResultTimeout) {
            Clock::advance(60s);
        }
        each.waitFor(1);
        modem.events->received(answerTo(transaction));
        warnings.waitFor(expectedWarnings);
        transport.close();
        EXPECT_EQ(each.waitFor(0), Results{row.result}) << row.what;
        EXPECT_EQ(warnings.waitFor(0).size(), expectedWarnings) << row.what;
    }
}

TEST_F(TransportTest, timeOutIsThatOfThePropertyAndNotEarlier)
{
    const std::pair<const char*, std::chrono::milliseconds> rows[] = {
        {"1000", 1000ms}, {"0", 60000ms}, {"soon", 60000ms}};
    size_t requests = 0;
    for (const auto& [property, timeout] : rows) {
        host::setProperty("host.vorn.timeout_ms", property);
        ASSERT_TRUE(open());
        Answers overdue;
        Answers prompt;
        modem.behaviour = nullptr;
        ASSERT_TRUE(send(overdue));
        modem.requests.waitFor(++requests);
        Clock::advance(timeout - 1ms);
        modem.behaviour = answerRequest;
        ASSERT_TRUE(send(prompt));
        prompt.waitFor(1);
        modem.requests.waitFor(++requests);
        EXPECT_EQ(overdue.waitFor(0), Results{}) << property;
        Clock::advance(1ms);
        EXPECT_EQ(overdue.waitFor(1), Results{host::kResultTimeout}) << property;
        transport.close();
    }
}

TEST_F(TransportTest, lostLinkAnswersEverythingAndComesBack)
{
    constexpr size_t kRequests = 1000;
    Inbox<uint16_t> indications;
    const auto onIndication = [](vorn_msg_t* message, void* user) {
        static_cast<Inbox<uint16_t>*>(user)->add(message->hdr.msg_id);
    };
    ASSERT_TRUE(open());
    ASSERT_TRUE(transport.registerIndication(1, 0x7E01, onIndication, &indications));
    for (size_t i = 0; i < kRequests; ++i) {
        ASSERT_TRUE(send(answers));
    }
    modem.requests.waitFor(kRequests);
    modem.failures = 2;
    modem.events->lost(500ms);
    modem.events->lost(1ms); // the same loss, told twice
    EXPECT_FALSE(send(answers));
    EXPECT_FALSE(transport.control("{}"));
    EXPECT_EQ(answers.waitFor(kRequests), Results(kRequests, host::kResultLinkLost));

    // One step at a time, each over as soon as the attempt to open has been made: 500 ms, then 100 ms, then
    // 200 ms.
    const auto waitForFailures = [this](int failures) {
        while (modem.failures != failures) {
            std::this_thread::yield();
        }
    };
    Clock::advance(500ms);
    waitForFailures(1);
    Clock::advance(100ms);
    waitForFailures(0);
    EXPECT_FALSE(send(answers));
    Clock::advance(200ms);
    EXPECT_EQ(states.waitFor(3), (States{LinkState::Up, LinkState::Lost, LinkState::Up}));

    modem.events->received(MessagePtr(vorn_msg_init(0x7E01, 2))); // another slot's
    modem.events->received(MessagePtr(vorn_msg_init(0x7E01, 1)));
    EXPECT_EQ(indications.waitFor(1), std::vector<uint16_t>{0x7E01});
    modem.behaviour = answerRequest;
    EXPECT_TRUE(send(answers));
    EXPECT_EQ(answers.waitFor(kRequests + 1).back(), 0u);
    EXPECT_EQ(transport.control("{}"), "did {}");
}

TEST_F(TransportTest, transactionsAreNeverSharedAndRunOut)
{
    constexpr size_t kAll = 65535;
    ASSERT_TRUE(open());
    for (size_t i = 0; i < kAll; ++i) {
        ASSERT_TRUE(send(answers));
    }
    EXPECT_FALSE(send(answers));
    const std::vector<uint16_t> used = modem.requests.waitFor(kAll);
    EXPECT_EQ(std::set<uint16_t>(used.begin(), used.end()).size(), kAll);
    EXPECT_EQ(std::count(used.begin(), used.end(), 0), 0);

    modem.events->received(answerTo(4711));
    answers.waitFor(1);
    EXPECT_TRUE(send(answers));
    EXPECT_EQ(modem.requests.waitFor(kAll + 1).back(), 4711) << "the only free one";
    transport.close();
    EXPECT_EQ(answers.waitFor(0).size(), kAll + 1);
}

TEST_F(TransportTest, manyThreadsShareIt)
{
    constexpr size_t kThreads = 4;
    constexpr size_t kRequests = 2000;
    modem.behaviour = answerRequest;
    ASSERT_TRUE(open());
    std::vector<Answers> each(kThreads);
    std::vector<std::thread> threads;
    for (Answers& mine : each) {
        threads.emplace_back([&] {
            for (size_t i = 0; i < kRequests; ++i) {
                EXPECT_TRUE(send(mine));
            }
            mine.waitFor(kRequests);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    transport.close();
    for (Answers& mine : each) {
        EXPECT_EQ(mine.waitFor(0), Results(kRequests, 0));
    }
    EXPECT_EQ(warnings.waitFor(0).size(), 0u);
}

TEST_F(TransportTest, linkThatCanNotBeOpenedLeavesItClosed)
{
    modem.failures = 1;
    EXPECT_FALSE(open());
    EXPECT_FALSE(send(answers));
    EXPECT_FALSE(transport.registerIndication(1, 0x7E01, Answers::callback, &answers));
    EXPECT_EQ(warnings.waitFor(1), std::vector<std::string>{"can't open the link: the modem is away"});
    EXPECT_TRUE(open());
    EXPECT_TRUE(open()) << "open already";
    EXPECT_EQ(states.waitFor(1), States{LinkState::Up});
}

} // namespace
