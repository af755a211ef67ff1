#include "transport_fixture.h"

#include <set>

namespace {

using host::LinkState;
using Results = std::vector<uint32_t>;
using States = std::vector<LinkState>;

TEST_F(TransportTest, everyRequestHasOneAnswerWhateverTheModemDoes)
{
    // What the modem does, the result, the warnings besides the one about a late answer that comes in each
    // row.
    const std::tuple<const char*, decltype(FakeModem::behaviour), uint32_t, size_t> rows[] = {
        {"an answer", answer, 0, 0},
        {"a failure", [](uint16_t tx, auto& link) { link.received(messageOf(tx, 21)); }, 21, 0},
        {"two answers", [](uint16_t tx, auto& link) { answer(tx, link), answer(tx, link); }, 0, 1},
        {"another slot's answer", [](uint16_t tx, auto& link) { link.received(messageOf(tx, 0, 2)); },
         host::kResultTimeout, 2},
        {"another message", [](uint16_t tx, auto& link) { link.received(messageOf(tx, 0, 1, 7)); },
         host::kResultTimeout, 2},
        {"silence", nullptr, host::kResultTimeout, 1},
        {"another's answer", [](uint16_t tx, auto& link) { answer(tx ^ 1, link); }, host::kResultTimeout, 2},
        {"the end of the link", [](uint16_t, auto& link) { link.lost(0ms); }, host::kResultLinkLost, 1},
        {"a link without memory",
         [this](uint16_t tx, auto&) {
             modem.requests.add(tx);
             throw std::bad_alloc();
         },
         host::kResultLinkLost, 2},
    };
    size_t requests = 0;
    for (const auto& [what, behaviour, result, rowWarnings] : rows) {
        modem.behaviour = behaviour;
        const size_t allWarnings = warnings.waitFor(0).size() + rowWarnings + 1;
        Answers each;
        ASSERT_TRUE(open() && send(each)) << what;
        const uint16_t transaction = modem.requests.waitFor(++requests).back();
        Clock::advance(result == host::kResultTimeout ? 60s : 0s);
        each.waitFor(1);
        modem.link->received(messageOf(transaction));
        warnings.waitFor(allWarnings);
        transport.close();
        EXPECT_EQ(each.waitFor(0), Results{result}) << what;
        EXPECT_EQ(warnings.waitFor(0).size(), allWarnings) << what;
    }
}

TEST_F(TransportTest, timeOutIsThatOfThePropertyAndNotEarlier)
{
    const std::pair<const char*, std::chrono::milliseconds> rows[] = {
        {"1000", 1000ms}, {"0", 60000ms}, {"soon", 60000ms}};
    for (const auto& [property, timeout] : rows) {
        host::setProperty("host.vorn.timeout_ms", property);
        Answers overdue;
        ASSERT_TRUE(open() && send(overdue));
        Clock::advance(timeout - 1ms);
        EXPECT_TRUE(transport.control("{}") && transport.control("{}"))
            << "the thread looks at the time in between";
        EXPECT_EQ(overdue.waitFor(0), Results{}) << property;
        Clock::advance(1ms);
        EXPECT_EQ(overdue.waitFor(1), Results{host::kResultTimeout}) << property;
        transport.close();
    }
}

TEST_F(TransportTest, lostLinkAnswersEverythingAndComesBack)
{
    constexpr size_t kRequests = 1000;
    size_t attempts = 1;
    Answers indications;
    ASSERT_TRUE(open() && listen(indications));
    for (size_t i = 0; i < kRequests; ++i) {
        ASSERT_TRUE(send(answers));
    }
    modem.requests.waitFor(kRequests);
    modem.failures = 2;
    modem.link->lost(500ms);
    modem.link->lost(1ms); // the same loss, told twice
    EXPECT_FALSE(send(answers) || transport.control("{}"));
    EXPECT_EQ(answers.waitFor(kRequests), Results(kRequests, host::kResultLinkLost));

    for (const auto pause : {500ms, 100ms, 200ms}) { // as told, then longer each time
        Clock::advance(pause);
        modem.attempts.waitFor(++attempts);
    }
    EXPECT_EQ(states.waitFor(3), (States{LinkState::Up, LinkState::Lost, LinkState::Up}));

    modem.link->received(messageOf(0, 22, 2)); // another slot's
    modem.link->received(messageOf(0, 11));
    EXPECT_EQ(indications.waitFor(1), Results{11});
    modem.behaviour = answer;
    EXPECT_TRUE(send(answers));
    EXPECT_EQ(answers.waitFor(kRequests + 1).back(), 0u);
    EXPECT_EQ(transport.control("{}"), "did {}");
}

TEST_F(TransportTest, slowCallbacksHoldUpNeitherDeadlinesNorTheLink)
{
    const std::pair<std::chrono::milliseconds, size_t> rows[] = {{59s, 0},
                                                                 {60s, 1}}; // a callback's time, answers
    for (const auto& [pause, answered] : rows) {
        Answers request;
        Answers indications;
        std::vector<size_t> seen;
        indications.onAnswer = [&, pause = pause] {
            seen.push_back(request.waitFor(0).size());
            Clock::advance(seen.size() == 1 ? pause : 0s);
        };
        modem.behaviour = [](uint16_t, auto& link) { // all that the link brings at once is one batch
            for (int i = 0; i < 3; ++i) {
                link.received(messageOf(0));
            }
        };
        ASSERT_TRUE(open() && listen(indications) && send(request));
        indications.waitFor(3);
        transport.close();
        EXPECT_EQ(seen, (std::vector<size_t>{0, answered, answered}));
    }
}

TEST_F(TransportTest, linkPausesWhileTooMuchWaits)
{
    constexpr size_t kMost = size_t{16} << 20;
    Inbox<bool> released;
    Answers held;
    held.onAnswer = [&] { released.waitFor(1); };
    ASSERT_TRUE(open() && listen(held));
    size_t messages = 0;
    size_t bytes = 0;
    bool hasRoom = true;
    while (hasRoom && bytes < 4 * kMost) { // the first of them may be a batch of its own
        MessagePtr message = messageOf(0);
        vorn_msg_add_array(message.get(), 7, 10'000);
        bytes += host::Message::of(*message).memoryUse();
        hasRoom = modem.link->received(std::move(message));
        ++messages;
    }
    EXPECT_FALSE(hasRoom);
    EXPECT_GT(bytes, kMost);
    EXPECT_TRUE(modem.resumed.waitFor(0).empty());
    released.add(true);
    held.waitFor(messages);
    EXPECT_EQ(modem.resumed.waitFor(1).size(), 1u);
    EXPECT_TRUE(modem.link->received(messageOf(0)));
    transport.close();
}

TEST_F(TransportTest, transactionsAreNeverSharedAndRunOut)
{
    constexpr size_t kAll = 65535;
    ASSERT_TRUE(open());
    while (send(answers)) {
    }
    const std::vector<uint16_t> used = modem.requests.waitFor(kAll);
    EXPECT_EQ(std::set<uint16_t>(used.begin(), used.end()).size(), kAll);
    EXPECT_EQ(used.size(), kAll);

    modem.link->received(messageOf(4711));
    answers.waitFor(1);
    EXPECT_TRUE(send(answers));
    EXPECT_EQ(modem.requests.waitFor(kAll + 1).back(), 4711) << "the only free one";
    transport.close();
    EXPECT_EQ(answers.waitFor(0).size(), kAll + 1);
}

} // namespace
