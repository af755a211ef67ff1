/// Tests of requests, a row each: the call, the message, an answer, what the caller gets.
#pragma once

#include "support/fake_modem.h"
#include "support/instance.h"
#include "support/log_capture.h"

#include <gmock/gmock.h>

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

/// One text, or several.
struct Texts : std::vector<std::string> {
    using vector::vector;
    Texts(const char* only) : vector{only} {}
    Texts(const std::string& only) : vector{only} {}
};

/// How a request tells of the modem's failure.
enum class Failure {
    Result, ///< by its result, without a record
    Untold, ///< not at all: its record has what came along
    Flag,   ///< so too, but the record's first word is 1
    Code,   ///< or the modem's result
};
using enum Failure;

struct RequestRow {
    Texts log; ///< all that its client and the exported function log on instance 2; none: not looked at
    Call call;
    uint16_t id;
    Fields request;
    Fields answer = {}; ///< besides the result
    Bytes record = {};  ///< its front; the rest is zero
    Failure failure = Result;
};

/// A request that is answered with the modem's verdict only.
template <typename Function, typename... Arguments>
RequestRow setter(const Texts& log, Function function, uint16_t id, const Fields& fields,
                  Arguments... arguments)
{
    return {log, call(function, arguments...), id, fields};
}

/// One that sends its arguments, in fields of 32 bits.
inline RequestRow setter(const Texts& log, int (*function)(int, void*, RadioRequestCallback), uint16_t id)
{
    return setter(log, function, id, {int32(256, -3)}, -3);
}

inline RequestRow setter(const Texts& log, int (*function)(int, int, void*, RadioRequestCallback),
                         uint16_t id)
{
    return setter(log, function, id, int32s(256, {1, -2}), 1, -2);
}

/// One that sends a record as it is.
template <typename Record>
RequestRow setter(const Texts& log, int (*function)(const Record&, void*, RadioRequestCallback), uint16_t id,
                  size_t size)
{
    return setter(log, function, id, {raw(256, counting(size))}, recordOf<Record>(counting(size)));
}

/// A request whose record is filled from an answer.
template <typename Function, typename... Arguments>
RequestRow query(Failure failure, const Texts& log, Function function, uint16_t id, const Fields& request,
                 const Fields& answer, const Bytes& record, Arguments... arguments)
{
    return {log, call(function, arguments...), id, request, answer, record, failure};
}

/// The record of a blob of which `kept` bytes are left.
inline Bytes blob(uint32_t kept)
{
    return joined({packed(kept), counting(kept)});
}

/// Checks that a record is these bytes and zeros.
inline void expectRecord(const Rsp& rsp, Bytes expected)
{
    expected.resize(sizeof(Rsp));
    const auto differing = std::ranges::mismatch(expected, packed(rsp)).in1;
    EXPECT_EQ(differing, expected.end()) << "first at byte " << differing - expected.begin();
}

/// The row's message leaves on its slot, and its answer becomes its record.
inline void checkRow(const RequestRow& row, unsigned instance)
{
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
inline void checkFailures(const RequestRow& row, const std::string& tag)
{
    auto& modem = FakeModem::instance();
    auto caller = std::make_unique<Caller>();
    modem.sendResult = -7;
    EXPECT_EQ(row.call(caller.get(), Caller::onResult), 1);
    EXPECT_EQ(caller->calls, 0);
    modem.sendResult = 0;

    ASSERT_EQ(row.call(caller.get(), Caller::onResult), 0);
    modem.answer(joined({{result(21)}, row.answer}));
    EXPECT_EQ(caller->calls, 1);
    const bool inRecord = row.failure != Result;
    EXPECT_EQ(caller->result, inRecord ? RADIO_APIS_SUCCESS : RADIO_APIS_INVALID_PARAMETER);
    ASSERT_EQ(caller->hadRecord, inRecord);
    if (inRecord) {
        Bytes record = row.record;
        if (row.failure != Untold) {
            record.resize(std::max<size_t>(record.size(), 4));
            std::ranges::copy(packed(row.failure == Flag ? 1 : 21), record.begin());
        }
        expectRecord(caller->record.rsp, record);

        const LogCapture log;
        row.call(caller.get(), Caller::onResult);
        modem.answerWith(nullptr);
        EXPECT_EQ(caller->calls, 1);
        EXPECT_TRUE(log.has("E " + tag + ": operator() : invalid vorn response"));
    }
}

/// The answer may be there before the function returns.
inline void checkEarlyAnswer(const RequestRow& row)
{
    auto caller = std::make_unique<Caller>();
    FakeModem::instance().answerBeforeSendReturns({result(0)});
    EXPECT_EQ(row.call(caller.get(), Caller::onResult), 0);
    FakeModem::instance().onSend = nullptr;
    EXPECT_EQ(caller->calls, 1);
}

/// Every kind of field that an answer may wrongly hold, for all field ids that the row's own answer has.
inline void checkHostileAnswers(const RequestRow& row)
{
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

/// The row's lines and no others. Those that are not its client's debug lines are given in full.
inline void checkLog(const RequestRow& row, const std::string& tag)
{
    const auto caller = std::make_unique<Caller>();
    const LogCapture log;
    row.call(caller.get(), Caller::onResult);
    FakeModem::instance().answer(joined({row.answer, {result(0)}}));

    Texts expected = row.log;
    for (std::string& line : expected) {
        line.insert(0, line.find("Vorn") == 2 ? "" : "D " + tag + ": ");
    }
    std::vector<std::string> logged = log.lines();
    std::erase_if(logged, [&](const std::string& line) {
        return line.find(tag + ":") != 2 && line.find(kApiTag) != 2;
    });
    EXPECT_EQ(logged, expected);
}

/// All of the above, on every instance, for a client that logs under a tag. An answer of which nothing is read can't
/// be hostile.
inline void checkRows(const std::string& tag, const std::vector<RequestRow>& rows)
{
    for (unsigned number = 0; number < kInstances; ++number) {
        const Instance instance(number);
        for (const RequestRow& row : rows) {
            SCOPED_TRACE(testing::Message() << "row " << &row - rows.data() << ", message 0x" << std::hex
                                            << row.id << ", instance " << number);
            checkRow(row, number);
            if (number == 0) {
                checkFailures(row, tag);
                checkEarlyAnswer(row);
            }
            if (number == 0 && (row.failure != Result || !row.record.empty())) {
                checkHostileAnswers(row);
            }
            if (number == 2 && !row.log.empty()) {
                checkLog(row, tag);
            }
        }
    }
}

inline void checkVendorRows(const std::vector<RequestRow>& rows)
{
    checkRows("VornVsClient", rows);
}

inline void checkStandardRows(const std::vector<RequestRow>& rows)
{
    checkRows("VornRadioClient", rows);
}

/// The line of exported functions that log their instance.
inline std::string entered(const std::string& function)
{
    return "D VornApis: " + function + " : " + function + " tlssubid 2";
}

/// Calls that are sent, and answered once.
inline void checkAccepted(const Call& accepted)
{
    const auto caller = std::make_unique<Caller>();
    ASSERT_EQ(accepted(caller.get(), Caller::onResult), 0);
    FakeModem::instance().answer({result(0)});
    EXPECT_EQ(caller->calls, 1);
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

struct Refusal {
    Call call;
    std::string line;
    int code = 1;
};

/// Their lines begin alike.
inline void checkRefusals(const std::string& begin, const std::vector<Refusal>& rows)
{
    const Instance instance(1);
    for (const Refusal& row : rows) {
        checkRefusal(row.call, row.code, begin + row.line);
    }
}

/// Calls with an argument that does not fit, of the client that logs under a tag.
inline void checkInvalid(const std::string& tag, const std::vector<Call>& calls)
{
    const Instance instance(1);
    for (const Call& refused : calls) {
        checkRefusal(refused, 11, "E " + tag + ": invalid paramter found");
    }
}

/// Lists of the caller's are sent when there are values, or none are counted, up to what a field holds. The list comes
/// behind the other arguments.
template <typename Value, typename Function, typename... Arguments>
void checkListLimits(Function function, Arguments... arguments)
{
    const Instance instance(0);
    std::vector<Value> values(65546);
    for (const bool missing : {false, true}) {
        for (const unsigned count : {0U, 1U, 65535U, 65536U, 65546U}) { // the last one is 10 in 16 bits
            const Call request = call(function, arguments..., missing ? nullptr : values.data(), count);
            if (count > (missing ? 0 : 65535)) {
                checkRefusal(request, 11, "E VornVsClient: invalid paramter found");
            } else {
                checkAccepted(request);
            }
        }
    }
}

} // namespace test
