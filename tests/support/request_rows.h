/// Tests of requests, a row each: the call, the message, an answer, what the caller gets.
#pragma once

#include "support/fake_modem.h"
#include "support/instance.h"
#include "support/log_capture.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

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

/// A request with its arguments; takes whom to answer.
using Call = std::function<int(void*, RadioRequestCallback)>;

/// Calls an exported function: what leads from it to the client's method is tested along with the method.
template <typename... Parameters, typename... Arguments>
Call call(int (*function)(Parameters...), Arguments... arguments)
{
    return [=](void* user, RadioRequestCallback cb) { return function(arguments..., user, cb); };
}

/// Calls a method to which no exported function leads.
template <typename Client, typename... Parameters, typename... Arguments>
Call call(int (Client::*method)(Parameters...), Arguments... arguments)
{
    return [=](void* user, RadioRequestCallback cb) {
        return (currentClient<Client>()->*method)(arguments..., user, cb);
    };
}

/// How a request tells of the modem's failure.
enum class Failure {
    Result, ///< by its result, without a record
    Untold, ///< not at all: its record has what came along
    Flag,   ///< so too, but the record's first word is 1
    Code,   ///< or the modem's result
};

struct RequestRow {
    const char* name;
    Call call;
    uint16_t id;
    Fields request;
    Fields answer = {}; ///< besides the result
    Bytes record = {};  ///< its front; the rest is zero
    Failure failure = Failure::Result;
};

/// A request that is answered with the modem's verdict only.
template <typename Function, typename... Arguments>
RequestRow setter(const char* name, Function function, uint16_t id, const Fields& fields,
                  Arguments... arguments)
{
    return {name, call(function, arguments...), id, fields};
}

/// A request that ends in success whatever the modem says.
template <typename Function, typename... Arguments>
RequestRow query(Failure failure, const char* name, Function function, uint16_t id, const Fields& request,
                 const Fields& answer, const Bytes& record, Arguments... arguments)
{
    return {name, call(function, arguments...), id, request, answer, record, failure};
}

/// Checks that a record is these bytes and zeros.
inline void expectRecord(const Rsp& rsp, Bytes expected)
{
    expected.resize(sizeof(Rsp));
    const auto differing = std::ranges::mismatch(expected, packed(rsp)).in1;
    EXPECT_EQ(differing, expected.end()) << "first at byte " << differing - expected.begin();
}

inline bool allZero(const RadioApisResultType& record)
{
    const auto* bytes = reinterpret_cast<const uint8_t*>(&record);
    return std::all_of(bytes, bytes + sizeof record, [](uint8_t byte) { return byte == 0; });
}

/// The row's message leaves on its slot, and its answer becomes its record.
inline void checkRow(const RequestRow& row, unsigned instance)
{
    SCOPED_TRACE(testing::Message() << row.name << " on instance " << instance);
    auto& modem = FakeModem::instance();
    auto caller = std::make_unique<Caller>();
    ASSERT_EQ(row.call(caller.get(), Caller::onResult), 0);
    ASSERT_EQ(modem.sent.size(), 1u);
    EXPECT_EQ(frame(*modem.sent[0].message), frame(*message(row.id, slotBit(instance), 0, row.request)));
    EXPECT_EQ(caller->calls, 0);

    modem.answer(joined({{result(0)}, row.answer}));
    EXPECT_EQ(caller->calls, 1);
    EXPECT_EQ(caller->result, RADIO_APIS_SUCCESS);
    ASSERT_TRUE(caller->hadRecord);
    expectRecord(caller->record.rsp, row.record);
}

/// Refused sends end without a callback; failing answers with the mapped code, or with what came along.
inline void checkFailures(const RequestRow& row)
{
    SCOPED_TRACE(row.name);
    auto& modem = FakeModem::instance();
    auto caller = std::make_unique<Caller>();
    modem.sendResult = -7;
    EXPECT_EQ(row.call(caller.get(), Caller::onResult), 1);
    EXPECT_EQ(caller->calls, 0);
    modem.sendResult = 0;

    ASSERT_EQ(row.call(caller.get(), Caller::onResult), 0);
    modem.answer(joined({{result(21)}, row.answer}));
    EXPECT_EQ(caller->calls, 1);
    const bool inRecord = row.failure != Failure::Result;
    EXPECT_EQ(caller->result, inRecord ? RADIO_APIS_SUCCESS : RADIO_APIS_INVALID_PARAMETER);
    ASSERT_EQ(caller->hadRecord, inRecord);
    if (inRecord) {
        Bytes record = row.record;
        if (row.failure != Failure::Untold) {
            record.resize(std::max<size_t>(record.size(), 4));
            std::ranges::copy(packed(row.failure == Failure::Flag ? 1 : 21), record.begin());
        }
        expectRecord(caller->record.rsp, record);
    }
}

/// The answer may be there before the function returns.
inline void checkEarlyAnswer(const RequestRow& row)
{
    SCOPED_TRACE(row.name);
    auto caller = std::make_unique<Caller>();
    FakeModem::instance().answerBeforeSendReturns({result(0)});
    EXPECT_EQ(row.call(caller.get(), Caller::onResult), 0);
    FakeModem::instance().onSend = nullptr;
    EXPECT_EQ(caller->calls, 1);
}

/// Every kind of field that an answer may wrongly hold, for all field ids that the row's own answer has.
inline void checkHostileAnswers(const RequestRow& row)
{
    SCOPED_TRACE(row.name);
    auto& modem = FakeModem::instance();
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
        for (const Fields& answer : hostile) {
            for (const Fields& verdict : {Fields{}, Fields{result(0)}}) {
                const int calls = caller->calls;
                ASSERT_EQ(row.call(caller.get(), Caller::onResult), 0);
                modem.answer(joined({answer, verdict}));
                EXPECT_EQ(caller->calls, calls + 1);
            }
        }
    }
}

/// What is logged under a tag, by row; rows that are not listed log that they were entered. Lines of the exported
/// functions are given in full.
using LogLines = std::map<std::string, std::vector<std::string>>;

/// The rows, of those of one name the first, log these lines and no other ones when they are answered on instance 2.
inline void checkLog(const std::vector<RequestRow>& rows, const std::string& tag, const LogLines& lines)
{
    const Instance instance(2);
    std::set<std::string> seen;
    for (const RequestRow& row : rows) {
        if (!seen.insert(row.name).second) {
            continue;
        }
        const auto caller = std::make_unique<Caller>();
        const LogCapture log;
        row.call(caller.get(), Caller::onResult);
        FakeModem::instance().answer(joined({row.answer, {result(0)}}));

        const auto listed = lines.find(row.name);
        std::vector<std::string> expected =
            listed == lines.end() ? std::vector{std::string(row.name) + " - enter"} : listed->second;
        for (std::string& line : expected) {
            line.insert(0, line.find(kApiTag) == std::string::npos ? "D " + tag + ": " : "");
        }
        std::vector<std::string> logged = log.lines();
        std::erase_if(logged, [&](const std::string& line) {
            return line.find(tag + ":") != 2 && line.find(kApiTag) != 2;
        });
        EXPECT_EQ(logged, expected) << row.name;
    }
}

/// All of the above, on every instance. An answer of which nothing is read can't be hostile.
inline void checkRows(const std::vector<RequestRow>& rows, const std::string& tag, const LogLines& lines)
{
    for (unsigned number = 0; number < kInstances; ++number) {
        const Instance instance(number);
        for (const RequestRow& row : rows) {
            checkRow(row, number);
        }
    }
    const Instance instance(0);
    for (const RequestRow& row : rows) {
        checkFailures(row);
        checkEarlyAnswer(row);
        if (row.failure != Failure::Result || !row.record.empty()) {
            checkHostileAnswers(row);
        }
    }
    checkLog(rows, tag, lines);
}

/// The line of exported functions that log their instance, as for checkLog.
inline std::string entered(const std::string& function)
{
    return "D VornApis: " + function + " : " + function + " tlssubid 2";
}

/// A call that is refused calls and sends nothing, and logs this.
inline void checkRefusal(const Call& refused, int code, const std::string& line)
{
    SCOPED_TRACE(line);
    const auto caller = std::make_unique<Caller>();
    const LogCapture log;
    EXPECT_EQ(refused(caller.get(), Caller::onResult), code);
    EXPECT_TRUE(FakeModem::instance().sent.empty());
    EXPECT_EQ(caller->calls, 0);
    EXPECT_EQ(log.count(line), 1);
}

} // namespace test
