#include "mindroid/exception.h"
#include "support/at_fixture.h"

using namespace test;
using mindroid::Parcel;
using mindroid::sp;

namespace {

/// Interprets an answer as an AT client method would: reads one integer into the record.
RADIO_APIS_RESULT readInteger(const sp<Parcel>& answer, RadioApisResultType* record)
{
    if (!answer->getBoolean() || answer->getInt() != 1 || answer->getByte() != 1) {
        return RADIO_APIS_NOT_SUPPORTED;
    }
    record->rsp.serviceModeInfo.serviceMode = answer->getInt();
    return RADIO_APIS_SUCCESS;
}

struct AtTransport : AtTest {
    /// Sends with one of the operations that answer a caller: 0 plain, 1 shared, 2 raw.
    int send(int operation, const AtResponseCallback::Function& interpreter)
    {
        const auto rsp = mindroid::make<AtResponseCallback>(interpreter);
        const auto shared = mindroid::make<RadioApiCallback>(Caller::onResult);
        return operation == 0   ? client->sendAtCommand("AT+X", &caller, Caller::onResult, rsp)
               : operation == 1 ? client->sendAtCommand("AT+X", &caller, shared, rsp)
                                : client->sendAtCommandRspRawStr("AT+X", &caller, Caller::onResult, rsp);
    }
};

} // namespace

TEST_F(AtTransport, AnswersOnceWhateverComes)
{
    const AtResponseCallback::Function none;
    const AtResponseCallback::Function throws = [](auto&, auto*) -> RADIO_APIS_RESULT {
        throw mindroid::ParcelException("nothing left");
    };
    const struct {
        AtResponseCallback::Function interpreter;
        Fields fields;
        int results[3];         ///< plain, shared, raw
        bool isRefusal = false; ///< of which only the shared callback gets a record
    } cases[] = {
        {VornAtClient::completeWithResultVoid, answer("\r\nOK\r\n"), {0, 0, 0}},
        {VornAtClient::completeWithResultVoid, answer("\r\nERROR\r\n"), {1, 1, 1}},
        {VornAtClient::completeWithoutResultCheck, answer("\r\nERROR\r\n"), {0, 0, 0}},
        {VornAtClient::completeWithoutResultCheck, {result(0)}, {1, 1, 1}},
        {VornAtClient::completeWithoutResultCheck, {result(0), raw(0x8100, {'O', 'K'})}, {1, 1, 1}},
        {none, answer("OK"), {1, 1, 1}},
        {throws, answer("OK"), {1, 1, 1}},
        {readInteger, answer("\r\n+X: 5\r\nOK\r\n"), {0, 0, 1}},
        {readInteger, answer("\r\n+X: a\r\nOK\r\n"), {2, 2, 1}},
        {readInteger, answer("\r\nOK\r\n"), {1, 1, 1}},
        {VornAtClient::completeWithResultVoid, {result(105)}, {2, 1, 2}, true},
    };
    for (const auto& row : cases) {
        for (int operation = 0; operation < 3; ++operation) {
            const int expected = row.results[operation];
            caller = {};
            ASSERT_EQ(send(operation, row.interpreter), 0);
            EXPECT_EQ(command(), "AT+X");
            modem.answer(row.fields);
            EXPECT_EQ(caller.calls, 1);
            EXPECT_EQ(caller.result, expected);
            EXPECT_EQ(caller.hadRecord, operation == 1 || !row.isRefusal);
            caller = {};
            modem.answerBeforeSendReturns(row.fields);
            EXPECT_EQ(send(operation, row.interpreter), 0);
            modem.onSend = nullptr;
            EXPECT_EQ(caller.calls, 1);
            EXPECT_EQ(caller.result, expected);
        }
    }
    modem.sendResult = -1;
    for (int operation = 0; operation < 3; ++operation) {
        caller = {};
        EXPECT_EQ(send(operation, none), 1);
        EXPECT_EQ(caller.calls, 0);
    }
}

TEST_F(AtTransport, SendsNoMessageWithoutItsText)
{
    const std::string tooLong(70000, 'A');
    EXPECT_EQ(client->sendAtCommand(tooLong.c_str(), &caller, Caller::onResult, nullptr), 1);
    EXPECT_TRUE(modem.sent.empty());
    EXPECT_EQ(caller.calls, 0);
    EXPECT_TRUE(log.has("E VornClient: sendComplete: message 0x0003 lacks a field that could not be added"));
}

TEST_F(AtTransport, CallsAnInterpreterAlone)
{
    std::vector<std::string> seen;
    const auto interpreter =
        mindroid::make<AtResponseCallback>([&](const sp<Parcel>& parcel, RadioApisResultType* record) {
            EXPECT_EQ(record, nullptr);
            seen.push_back(!parcel ? "nothing" : parcel->getBoolean() ? "true" : "false");
            return RADIO_APIS_FAILURE; // not looked at
        });
    for (const Fields& fields : {answer("OK"), answer("ERROR"), Fields{result(0)}, Fields{result(7)}}) {
        ASSERT_EQ(client->sendAtCommand("AT", nullptr, interpreter), 0);
        modem.answer(fields);
    }
    EXPECT_EQ(seen, (std::vector<std::string>{"true", "false", "nothing", "nothing"}));
    EXPECT_EQ(VornAtClient::completeWithResultVoid(nullptr, nullptr), RADIO_APIS_FAILURE);
}

TEST_F(AtTransport, KeepsClientAndCallbacksUntilTheAnswer)
{
    auto kept = std::make_shared<int>();
    const std::weak_ptr<int> watched = kept;
    send(0, [kept = std::move(kept)](auto&, auto*) { return RADIO_APIS_SUCCESS; });
    client = nullptr;
    EXPECT_FALSE(watched.expired());
    modem.answer(answer("\r\nOK\r\n"));
    EXPECT_EQ(caller.calls, 1);
    EXPECT_TRUE(watched.expired());
    EXPECT_TRUE(log.has("D VornAtClient: slot 1 receive at < \r\nOK\r\n"));
}

TEST_F(AtTransport, LogsEachWay)
{
    const AtResponseCallback::Function accept = VornAtClient::completeWithResultVoid;
    send(0, accept);
    EXPECT_TRUE(log.has("D VornAtClient: sendAtCommand - enter. slotId=1 cmd AT+X"));
    send(2, accept);
    EXPECT_TRUE(log.has("D VornAtClient: sendAtCommandRspRawStr - enter. slotId=1 cmd AT+X"));
    modem.answer(answer("OK"));
    modem.answer(answer("OK"));
    log.clear();
    send(1, accept);
    modem.answer(answer("OK"));
    EXPECT_TRUE(log.has("D VornAtClient: slotId 1 atcmd > AT+X"));
    EXPECT_TRUE(log.has("D VornAtClient: slot 1 atcmd < OK"));
    // Without function or holder nobody is called.
    client->sendAtCommand("AT", &caller, mindroid::make<RadioApiCallback>(nullptr), nullptr);
    modem.answer(answer("OK"));
    client->sendAtCommand("AT", &caller, sp<RadioApiCallback>(), nullptr);
    modem.answer(answer("OK"));
    EXPECT_EQ(caller.calls, 3);
    client->sendAtCommand("AT", &caller, static_cast<RadioRequestCallback>(nullptr), nullptr);
    EXPECT_THROW(modem.answer(answer("OK")), std::bad_function_call);
}
