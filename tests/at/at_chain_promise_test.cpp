#include "at/at_chain_promise.h"
#include "at_fixture.h"
#include "host/clock.h"

using namespace test;
using mindroid::make;
using mindroid::Parcel;
using mindroid::sp;
using namespace std::chrono_literals;

namespace {

constexpr const char* kCommands[] = {"AT+A", "AT+B", "AT+C"};
constexpr auto accept = VornAtClient::completeWithResultVoid;

struct AtChains : AtTest {
    ~AtChains() override { host::Clock::thaw(); }

    /// Lets the first `count` commands of a chain succeed.
    void succeed(size_t count)
    {
        for (size_t i = 0; i < count; ++i) {
            EXPECT_EQ(command(), std::string(kCommands[i]) + "\r\n");
            modem.answer(answer("OK"));
        }
    }
};

/// The ways in which a command fails, and what the caller is told.
enum class Failure { Error, NoText, Refused, Disconnected, Throws, NoInterpreter, OwnCode };
constexpr std::pair<Failure, int> kFailures[] = {
    {Failure::Error, 1},  {Failure::NoText, 1},        {Failure::Refused, 1}, {Failure::Disconnected, 1},
    {Failure::Throws, 1}, {Failure::NoInterpreter, 1}, {Failure::OwnCode, 2},
};

AtResponseCallback::Function failing(Failure failure)
{
    switch (failure) {
    case Failure::Throws:
        return [](auto&, auto*) -> RADIO_APIS_RESULT { throw std::runtime_error("broken"); };
    case Failure::NoInterpreter:
        return nullptr;
    case Failure::OwnCode:
        return [](auto&, auto*) { return RADIO_APIS_NOT_SUPPORTED; };
    default:
        return accept;
    }
}

Fields failingAnswer(Failure failure)
{
    switch (failure) {
    case Failure::NoText:
        return {result(0)};
    case Failure::Disconnected:
        return {result(7)};
    default:
        return answer(failure == Failure::Error ? "ERROR" : "OK");
    }
}

} // namespace

TEST_F(AtChains, EndOnceWhateverFails)
{
    for (size_t position = 0; position < std::size(kCommands); ++position) {
        for (const auto& row : kFailures) {
            const Failure failure = row.first;
            const int code = row.second;
            SCOPED_TRACE(testing::Message() << "command " << position << " failure " << int(failure));
            caller = {};
            log.clear();
            const auto chain = make<AtChain>();
            for (size_t i = 0; i < std::size(kCommands); ++i) {
                chain->add(kCommands[i], i == position ? failing(failure) : accept);
            }
            modem.onSend = [&] {
                // Of the messages taken so far this was the last one before the one to refuse.
                modem.sendResult = failure == Failure::Refused && position != 0 &&
                                           command() == std::string(kCommands[position - 1]) + "\r\n"
                                       ? -1
                                       : 0;
            };
            modem.sendResult = failure == Failure::Refused && position == 0 ? -1 : 0;
            chain->start(client, &caller, Caller::onResult);
            succeed(position);
            if (failure == Failure::Refused) {
                drainTimer();
            } else {
                ASSERT_EQ(modem.sent.size(), 1u);
                EXPECT_EQ(caller.calls, 0);
                modem.answer(failingAnswer(failure));
            }
            EXPECT_EQ(caller.calls, 1);
            EXPECT_EQ(caller.result, code);
            EXPECT_TRUE(caller.hadRecord && allZero(caller.record));
            EXPECT_TRUE(modem.sent.empty());
            const bool told = position + 1 < std::size(kCommands) || failure == Failure::Refused;
            EXPECT_EQ(log.has("E AtChainPromise: processRadioException: radio exception with error no " +
                              std::to_string(code)),
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
    EXPECT_EQ(caller.calls, 1);
    EXPECT_EQ(caller.result, 0);
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
    EXPECT_EQ(caller.calls, 1);
    EXPECT_EQ(caller.result, 0);
}

TEST_F(AtChains, SucceedWithoutCommandsFromTheTimer)
{
    static std::thread::id thread;
    make<AtChain>()->start(client, &caller, [](void* user, RADIO_APIS_RESULT code, RadioApisResultType* rsp) {
        thread = std::this_thread::get_id();
        Caller::onResult(user, code, rsp);
    });
    drainTimer();
    EXPECT_EQ(caller.calls, 1);
    EXPECT_EQ(caller.result, 0);
    EXPECT_TRUE(allZero(caller.record));
    EXPECT_TRUE(thread != std::this_thread::get_id());
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
