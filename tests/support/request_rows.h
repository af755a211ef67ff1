/// Tests of request methods, a row each: the call, the message, an answer, what the caller gets.
#pragma once

#include "radio_apis/results.h"
#include "support/fake_modem.h"
#include "support/log_capture.h"

#include <gmock/gmock.h>

#include <limits>
#include <map>

namespace test {

/// A caller who counts.
struct Caller {
    int calls = 0;
    RADIO_APIS_RESULT result = RADIO_APIS_SUCCESS;
    bool hadRecord = false;
    RadioApisResultType record;

    static void onResult(void* user, RADIO_APIS_RESULT result, RadioApisResultType* record)
    {
        auto& caller = *static_cast<Caller*>(user);
        ++caller.calls;
        caller.result = result;
        caller.hadRecord = record != nullptr;
        std::memset(static_cast<void*>(&caller.record), 0xEE, sizeof caller.record);
        if (record != nullptr) {
            std::memcpy(static_cast<void*>(&caller.record), record, sizeof caller.record);
        }
    }
};

using Rsp = decltype(RadioApisResultType::rsp);

template <typename Client>
struct RequestRow {
    const char* name;
    std::function<int(Client&, void*, RadioRequestCallback)> call;
    uint16_t id;
    Fields request;
    Fields answer = {};                              ///< besides the result
    std::function<void(const Rsp&)> check = nullptr; ///< none: the record is all zero
    bool tellsFailureInRecord = false;               ///< a failing answer still ends in success
};

/// Calls a request method with fixed arguments.
template <typename Client, typename... Parameters, typename... Arguments>
auto call(int (Client::*method)(Parameters...), Arguments... arguments)
{
    return [=](Client& client, void* user, RadioRequestCallback cb) {
        return (client.*method)(arguments..., user, cb);
    };
}

/// Checks that the record is these bytes and zeros.
inline std::function<void(const Rsp&)> holds(Bytes expected)
{
    expected.resize(sizeof(Rsp));
    return [=](const Rsp& rsp) {
        const auto differing = std::ranges::mismatch(expected, packed(rsp)).in1;
        EXPECT_EQ(differing, expected.end()) << "first at byte " << differing - expected.begin();
    };
}

inline bool allZero(const RadioApisResultType& record)
{
    const auto* bytes = reinterpret_cast<const uint8_t*>(&record);
    return std::all_of(bytes, bytes + sizeof record, [](uint8_t byte) { return byte == 0; });
}

/// The row's message leaves on its slot, and its answer becomes its record.
template <typename Client>
void checkRow(const RequestRow<Client>& row, int instance, uint8_t slotBit)
{
    SCOPED_TRACE(testing::Message() << row.name << " on instance " << instance);
    auto& modem = FakeModem::instance();
    Client client(false, instance);
    auto caller = std::make_unique<Caller>();
    ASSERT_EQ(row.call(client, caller.get(), Caller::onResult), 0);
    ASSERT_EQ(modem.sent.size(), 1u);
    EXPECT_EQ(frame(*modem.sent[0].message), frame(*message(row.id, slotBit, 0, row.request)));
    EXPECT_EQ(caller->calls, 0);

    Fields answer = {result(0)};
    answer.insert(answer.end(), row.answer.begin(), row.answer.end());
    modem.answer(answer);
    EXPECT_EQ(caller->calls, 1);
    EXPECT_EQ(caller->result, RADIO_APIS_SUCCESS);
    ASSERT_TRUE(caller->hadRecord);
    if (row.check) {
        row.check(caller->record.rsp);
    } else {
        EXPECT_TRUE(allZero(caller->record));
    }
}

/// Refused sends end without a callback; failing answers with the mapped code, or in the record.
template <typename Client>
void checkFailures(const RequestRow<Client>& row)
{
    SCOPED_TRACE(row.name);
    auto& modem = FakeModem::instance();
    Client client(false, 0);
    auto caller = std::make_unique<Caller>();
    modem.sendResult = -7;
    EXPECT_EQ(row.call(client, caller.get(), Caller::onResult), 1);
    EXPECT_EQ(caller->calls, 0);
    modem.sendResult = 0;

    ASSERT_EQ(row.call(client, caller.get(), Caller::onResult), 0);
    modem.answer({result(21)});
    EXPECT_EQ(caller->calls, 1);
    EXPECT_EQ(caller->result, row.tellsFailureInRecord ? RADIO_APIS_SUCCESS : RADIO_APIS_INVALID_PARAMETER);
    EXPECT_EQ(caller->hadRecord, row.tellsFailureInRecord);
}

/// The answer may be there before the method returns.
template <typename Client>
void checkEarlyAnswer(const RequestRow<Client>& row)
{
    SCOPED_TRACE(row.name);
    Client client(false, 0);
    auto caller = std::make_unique<Caller>();
    FakeModem::instance().answerBeforeSendReturns({result(0)});
    EXPECT_EQ(row.call(client, caller.get(), Caller::onResult), 0);
    FakeModem::instance().onSend = nullptr;
    EXPECT_EQ(caller->calls, 1);
}

/// Every kind of field that an answer may wrongly hold, for all field ids that the row's own answer has.
template <typename Client>
void checkHostileAnswers(const RequestRow<Client>& row)
{
    SCOPED_TRACE(row.name);
    auto& modem = FakeModem::instance();
    Client client(false, 0);
    auto caller = std::make_unique<Caller>();
    const auto huge = std::vector<Bytes>(300, Bytes(100, 0xFF));
    constexpr uint16_t kTags[] = {256, 257, 258, 259, 260, 262, 0x8100, 0x8102};
    for (const uint16_t tag : kTags) {
        const Fields hostile[] = {
            {},
            {raw(tag, {})},
            {uint8(tag, 0xFF)},
            {raw(tag, counting(3))},
            {raw(tag, Bytes(20, 0xFF))},
            {raw(tag, Bytes(60000, 0xFF))},
            {numbers<int32_t>(tag, {-1, -1, -1})},
            {array(tag, huge)},
            {[tag](vorn_msg_t* message) { vorn_msg_add_array(message, tag, 0xFFFF); }},
        };
        for (Fields answer : hostile) {
            for (const bool withResult : {true, false}) {
                const int calls = caller->calls;
                ASSERT_EQ(row.call(client, caller.get(), Caller::onResult), 0);
                if (withResult) {
                    answer.push_back(result(0));
                }
                modem.answer(answer);
                EXPECT_EQ(caller->calls, calls + 1);
            }
        }
    }
}

/// All of the above, on every instance. An answer of which nothing is read can't be hostile.
template <typename Client>
void checkRows(const std::vector<RequestRow<Client>>& rows)
{
    for (const auto& row : rows) {
        checkRow(row, 0, 1);
        checkRow(row, 1, 2);
        checkRow(row, 2, 4);
        checkFailures(row);
        checkEarlyAnswer(row);
        if (row.check) {
            checkHostileAnswers(row);
        }
    }
}

/// What is logged under a tag, by row; rows that are not listed log that they were entered.
using LogLines = std::map<std::string, std::vector<std::string>>;

/// The rows log these lines and no other ones when their answer arrives on instance 2.
template <typename Client>
void checkLog(const std::vector<RequestRow<Client>>& rows, const std::string& tag, const LogLines& lines)
{
    for (const auto& row : rows) {
        Client client(false, 2);
        const auto caller = std::make_unique<Caller>();
        const LogCapture log;
        row.call(client, caller.get(), Caller::onResult);
        Fields answer = row.answer;
        answer.push_back(result(0));
        FakeModem::instance().answer(answer);

        const auto listed = lines.find(row.name);
        std::vector<std::string> expected =
            listed == lines.end() ? std::vector{std::string(row.name) + " - enter"} : listed->second;
        for (std::string& line : expected) {
            line.insert(0, "D " + tag + ": ");
        }
        std::vector<std::string> logged = log.lines();
        std::erase_if(logged, [&](const std::string& line) { return line.substr(2, tag.size()) != tag; });
        EXPECT_EQ(logged, expected) << row.name;
    }
}

} // namespace test
