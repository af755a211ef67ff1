// What the modem tells by itself: on command, as consequence of a request, and at intervals.
#include "modem_fixture.h"

namespace sim::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Ge;
using testing::IsEmpty;
using testing::Le;
using testing::SizeIs;

class Indications : public ModemTest {
protected:
    /// The fields of the last of the indications that a command brings.
    FieldMap told(const std::string& name, int slot = 0)
    {
        mIndications.clear();
        const std::string command = R"({"command": "indicate", "message": ")" + name + R"(", "slot": )";
        EXPECT_EQ(control(command + std::to_string(slot) + "}").dump(), R"({"ok":true})") << name;
        return mIndications.empty() ? FieldMap() : mIndications.back().fields;
    }

    std::vector<uint16_t> takeIds()
    {
        std::vector<uint16_t> ids;
        for (const auto& indication : std::exchange(mIndications, {})) {
            ids.push_back(indication.header.msg_id);
        }
        return ids;
    }
};

void expectFits(FieldMap fields, const MessageSpec& message, bool hasService = true)
{
    for (const auto& spec : message.response) {
        const auto field = fields.extract(spec.tag);
        if (field.empty()) {
            EXPECT_TRUE(spec.isOptional && !hasService) << spec.name;
            continue;
        }
        const auto* bytes = std::get_if<Bytes>(&field.mapped());
        ASSERT_EQ(bytes == nullptr, spec.isArray) << spec.name;
        const auto elements =
            bytes ? std::vector<Bytes>(1, *bytes) : std::get<std::vector<Bytes>>(field.mapped());
        EXPECT_LE(elements.size(), spec.isArray ? spec.maxCount : 1);
        EXPECT_THAT(elements, Each(SizeIs(testing::AllOf(Ge(spec.minLength), Le(spec.maxLength)))))
            << spec.name;
    }
    EXPECT_THAT(fields, IsEmpty()) << "unknown ones";
}

TEST_F(Indications, OfEveryKindAreAsTheCatalogueHasThem)
{
    start(R"({"slots": [{}, {"serving": null}]})");
    ASSERT_EQ(ask(3, {{0x8100, text("AT+CFUN=1")}})[0], i32(0));
    for (const auto& message : Protocol::instance().messages()) {
        for (int slot = 0; slot < kSlots && message.kind == MessageKind::Indication; ++slot) {
            SCOPED_TRACE(message.name);
            expectFits(told(message.name, slot), message);
        }
    }
    ASSERT_EQ(ask(3, {{0x8100, text("AT+CFUN=4")}})[0], i32(0));
    expectFits(told("veyra-cell-info"), *Protocol::instance().find("VeyraCellInfoInd"), false);
}

/// Answers to the smallest requests that fit.
TEST_F(Indications, AndAnswersAreAsTheCatalogueHasThem)
{
    for (const auto& message : Protocol::instance().messages()) {
        if (message.kind != MessageKind::Request) {
            continue;
        }
        SCOPED_TRACE(message.name);
        FieldMap fields;
        for (const auto& spec : message.request) {
            if (!spec.isOptional && !spec.isArray) {
                fields.emplace(spec.tag, Bytes(spec.kind == FieldKind::String ? 1 : spec.minLength));
            }
        }
        start("{}"); // some requests leave the modem without service
        auto answer = ask(message.id, fields);
        const Value result = answer.extract(0).mapped();
        EXPECT_NE(result, i32(21));
        if (result == i32(0)) {
            expectFits(answer, message);
        } else {
            EXPECT_THAT(answer, IsEmpty());
        }
    }
}

TEST_F(Indications, MeasurementReport)
{
    start(R"({"slots": [{"operator": {"mcc": 460, "mnc": 123, "mncDigits": 3}}, {"serving": null}]})");
    auto fields = told("VeyraCellInfoInd");
    EXPECT_EQ(fields[256], u8(1));
    const Bytes report = std::get<Bytes>(fields[258]);
    ASSERT_THAT(report, SizeIs(2172));
    EXPECT_EQ(report[8], 2) << "groups";
    EXPECT_EQ(report[12 + 2], 3);
    EXPECT_EQ(report[12 + 3], 2) << "NR frequencies";
    EXPECT_EQ(toNumber<uint16_t>(report, 12 + 4), 0x460);
    EXPECT_EQ(toNumber<uint16_t>(report, 12 + 6), 0x123);
    EXPECT_EQ(toNumber<uint32_t>(report, 32), 627264U);
    EXPECT_EQ(report[32 + 5], 3) << "cells of the first";
    EXPECT_EQ(toNumber<uint16_t>(report, 42 + 12), 102);
    EXPECT_EQ(toNumber<int16_t>(report, 42 + 12 + 4), -92);
    EXPECT_EQ(toNumber<uint32_t>(report, 32 + 106), 428000U);
    EXPECT_EQ(report[1092 + 3], 3) << "LTE frequencies";
}

FieldMap numbers(std::initializer_list<int32_t> values)
{
    FieldMap fields;
    for (const int32_t value : values) {
        fields.emplace(static_cast<uint16_t>(256 + fields.size()), i32(value));
    }
    return fields;
}

TEST_F(Indications, FollowFromRequests)
{
    FieldMap action = numbers({5, 8, 1, 2, 3, 4});
    action[262] = std::vector<Bytes>(1, Bytes(16));
    FieldMap atom = numbers({2, 4, 7});
    atom[259] = Bytes(324);
    atom[260] = Bytes(36);
    const struct {
        uint16_t id;
        FieldMap fields;
        std::vector<uint16_t> indications;
        FieldMap last = {}; ///< fields of the last of them
    } rows[] = {
        {0x3801, numbers({0}), {}},
        {0x3801, numbers({1}), {0x7E06}},
        {0x382F, numbers({9, 2}), {0x7E18}, {{256, wordBlock({2, 9, 2})}}},
        {0x382D, numbers({3}), {0x7E07}, numbers({9, 1, 3})},
        {0x382F, numbers({9, 0}), {0x7E18, 0x7E07}, numbers({0, 1, 3})},
        {0x3873, numbers({5, 8}), {}},
        {0x3871, action, {0x7E17}, {{256, wordBlock({1, 5, 8, 0, 1, 2, 3, 4})}}},
        {0x3873, numbers({5, 8}), {0x7E17}, {{256, wordBlock({1, 5, 8, 0, 0, 0, 0, 0})}}},
        {0x3859, atom, {0x7E08}, {{256, wordBlock({2, 4, 7})}}},
        {0x384D, {{256, Bytes(600, 3)}}, {0x7E0C}, {{257, Bytes(512, 3)}}},
        {0x3855, {{257, Bytes{1, 2}}}, {0x7E0D}, {{257, Bytes{1, 2}}}},
        {3, {{0x8100, text("AT+CFUN=4")}}, {0x7E0E}, {{256, wordBlock({0, 1})}}},
        {3, {{0x8100, text("AT+CFUN=0")}}, {}},
        {3, {{0x8100, text("AT+CFUN=1")}}, {0x7E0E}, {{256, wordBlock({1, 0})}}},
        {0x3861, {{256, u8(1)}}, {}},
        {1027, {{256, u8(0)}}, {0x4421, 0x4220, 0x7E0E}, {{256, wordBlock({0, 1})}}},
        {1027, {{256, u8(1)}}, {0x4421, 0x4220, 0x7E0E}, {{256, wordBlock({1, 0})}}},
        {2431, {{257, i32(6)}, {256, u8(1)}}, {}},
        {2431, {{256, u8(0)}, {257, i32(6)}, {259, u8(2)}, {260, Bytes(132, 1)}}, {}},
        {2431, {{257, i32(6)}, {256, u8(2)}}, {0x492B}, {{256, u8(2)}, {257, i32(6)}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.id);
        ask(row.id, row.fields);
        if (!row.last.empty() && !mIndications.empty()) {
            EXPECT_EQ(mIndications.back().fields, row.last);
        }
        EXPECT_EQ(takeIds(), row.indications);
    }
}

TEST_F(Indications, ComePeriodicallyUntilSwitchedOff)
{
    const FieldMap policy = numbers({1, 0, 0, 0, 0, 0, 0, 0});
    mModem->advance(mNow);
    send(0x380F, policy);
    send(0x3861, numbers({400}));
    EXPECT_THAT(takeIds(), ElementsAre(0x7E03)) << "the first report comes at once";
    mModem->advance(mNow += 1000ms);
    EXPECT_THAT(takeIds(), ElementsAre(0x7E14, 0x7E14, 0x7E03));
    EXPECT_EQ(mModem->nextDeadline(), mNow + 200ms);

    send(0x3861, numbers({250}));
    send(0x380F, numbers({0, 0, 0, 0, 0, 0, 0, 0}));
    mModem->advance(mNow += 1000ms);
    EXPECT_THAT(takeIds(), SizeIs(4));
    send(0x3861, numbers({0}));
    EXPECT_EQ(mModem->nextDeadline(), std::nullopt);

    const std::vector<std::function<void()>> ends{
        [&] { mModem->forget(kClient); },
        [&] { control(R"({"command": "restart"})"); },
        [&] { control(R"({"command": "load", "scenario": {}})"); },
    };
    for (const auto& end : ends) {
        send(0x380F, policy, 2);
        send(0x3861, numbers({1}));
        mModem->forget(kClient + 1);
        EXPECT_EQ(mModem->nextDeadline(), mNow + 1ms);
        end();
        EXPECT_EQ(mModem->nextDeadline(), std::nullopt);
    }
}

} // namespace
} // namespace sim::test
