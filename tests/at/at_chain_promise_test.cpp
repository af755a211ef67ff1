#include "at/at_chain_promise.h"
#include "support/at_fixture.h"

using namespace test;
using mindroid::make;
using mindroid::Parcel;
using mindroid::sp;
using namespace std::chrono_literals;

namespace {

constexpr const char* kCommands[] = {"AT+A", "AT+B", "AT+C"};
constexpr auto accept = VornAtClient::completeWithResultVoid;

struct AtChains : AtTest {
    /// Lets the first `count` commands of a chain succeed.
    void succeed(size_t count)
    {
        for (size_t i = 0; i < count; ++i) {
            EXPECT_EQ(command(), std::string(kCommands[i]) + "\r\n");
            modem.answer(answer("OK"));
        }
    }
};

} // namespace

TEST_F(AtChains, EndOnceWhateverFails)
{
    const Fields ok = answer("OK");
    const struct {
        AtResponseCallback::Function interpreter;
        Fields answer; ///< none: the message is refused
        int code;
    } failures[] = {
        {accept, answer("ERROR"), 1},
        {accept, {result(0)}, 1},
        {accept, {result(7)}, 1},
        {accept, {}, 1},
        {[](auto&, auto*) -> RADIO_APIS_RESULT { throw std::runtime_error("broken"); }, ok, 1},
        {nullptr, ok, 1},
        {[](auto&, auto*) { return RADIO_APIS_NOT_SUPPORTED; }, ok, 2},
    };
    for (size_t position = 0; position < std::size(kCommands); ++position) {
        for (const auto& failure : failures) {
            SCOPED_TRACE(testing::Message() << "command " << position << " failure " << &failure - failures);
            const bool refused = failure.answer.empty();
            caller = {};
            log.clear();
            const auto chain = make<AtChain>();
            for (size_t i = 0; i < std::size(kCommands); ++i) {
                chain->add(kCommands[i], i == position ? failure.interpreter : accept);
            }
            const auto refuseAt = [&](size_t next) {
                modem.sendResult = refused && next == position ? -1 : 0;
            };
            modem.onSend = [&, taken = size_t{0}]() mutable { refuseAt(++taken); };
            refuseAt(0);
            chain->start(client, &caller, Caller::onResult);
            succeed(position);
            if (refused) {
                drainTimer();
            } else {
                ASSERT_EQ(modem.sent.size(), 1u);
                EXPECT_EQ(caller.calls, 0);
                modem.answer(failure.answer);
            }
            expectEnd(failure.code);
            const bool told = position + 1 < std::size(kCommands) || refused;
            EXPECT_EQ(log.has("E AtChainPromise: processRadioException: radio exception with error no " +
                              std::to_string(failure.code)),
                      told);
        }
    }
}

TEST_F(AtChains, FillTheRecordFromTheLastCommand)
{
    for (const int code : {0, 2}) {
        const auto chain = make<AtChain>();
        chain->add("AT+A", [](const sp<Parcel>& parcel, RadioApisResultType* record) {
            EXPECT_EQ(record, nullptr);
            return accept(parcel, record);
        });
        chain->add("AT+B", [=](auto&, RadioApisResultType* record) {
            record->rsp.serviceModeInfo.serviceMode = 9;
            return static_cast<RADIO_APIS_RESULT>(code);
        });
        chain->start(client, &caller, Caller::onResult);
        succeed(2);
        EXPECT_EQ(caller.result, code);
        EXPECT_EQ(caller.record.rsp.serviceModeInfo.serviceMode, 9);
    }
    EXPECT_EQ(caller.calls, 2);
    drainTimer();
    EXPECT_EQ(caller.calls, 2);
}

TEST_F(AtChains, MayBeAnsweredBeforeEachSendReturns)
{
    modem.answerBeforeSendReturns(answer("OK"));
    const auto chain = make<AtChain>();
    for (const char* command : kCommands) {
        chain->add(command, accept);
    }
    chain->start(client, &caller, Caller::onResult);
    drainTimer();
    expectEnd(0);
}

TEST_F(AtChains, PauseAfterACommand)
{
    host::Clock::freeze();
    const auto chain = make<AtChain>();
    chain->add("AT+A", accept, 100);
    chain->add("AT+B", accept, 0);
    chain->add("AT+C", accept, 50);
    chain->start(client, &caller, Caller::onResult);
    client = nullptr; // the chain keeps it, as it does when the instance is released
    modem.answer(answer("OK"));
    host::Clock::advance(99ms);
    drainTimer();
    EXPECT_EQ(command(), "");
    host::Clock::advance(1ms);
    drainTimer();
    EXPECT_EQ(command(), "AT+B\r\n");
    modem.answer(answer("OK"));
    EXPECT_EQ(command(), "AT+C\r\n");
    EXPECT_EQ(caller.calls, 0);
    modem.answer(answer("OK"));
    expectEnd(0);
}

TEST_F(AtChains, SucceedWithoutCommandsFromTheTimer)
{
    static std::thread::id thread;
    make<AtChain>()->start(client, &caller, [](void* user, RADIO_APIS_RESULT code, RadioApisResultType* rsp) {
        thread = std::this_thread::get_id();
        Caller::onResult(user, code, rsp);
    });
    drainTimer();
    expectEnd(0);
    EXPECT_TRUE(thread != std::this_thread::get_id());
}

TEST_F(AtChains, NeedTheSameStackWhateverTheirLength)
{
    constexpr int kLength = 30000;
    for (const char* last : {"OK", "ERROR"}) {
        const bool succeeds = last == std::string("OK");
        caller = {};
        const auto chain = make<AtChain>();
        for (int i = 0; i < kLength; ++i) {
            chain->add("AT+A", accept);
        }
        chain->start(client, &caller, Caller::onResult);
        for (int i = 0; i < (succeeds ? kLength : 1); ++i) {
            modem.answer(answer(last));
        }
        expectEnd(succeeds ? 0 : 1);
    }
}

TEST_F(AtChains, TellOtherExceptionsByTheirMessage)
{
    const auto cb = make<RadioApiCallback>(Caller::onResult);
    processRadioException(cb, &caller, make<mindroid::Exception>("strange"));
    EXPECT_EQ(caller.result, RADIO_APIS_FAILURE);
    EXPECT_TRUE(log.has("E AtChainPromise: processRadioException: strange"));
    processRadioException(nullptr, &caller, make<mindroid::Exception>("strange"));
    processRadioException(make<RadioApiCallback>(nullptr), &caller, make<mindroid::Exception>("strange"));
    EXPECT_EQ(caller.calls, 1);
    mindroid::Promise<int> promise;
    EXPECT_THROW(promise.completeExceptionally(nullptr), mindroid::NullPointerException);
}
