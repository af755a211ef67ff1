// What a setter stored, the matching getter returns.
#include "modem_fixture.h"

namespace sim::test {
namespace {

class Settings : public ModemTest {};

Value u32s(const std::vector<uint32_t>& words, size_t size = 0)
{
    Bytes block;
    for (const uint32_t word : words) {
        append(block, word);
    }
    block.resize(std::max(size, block.size()));
    return block;
}

Value list(const std::vector<int32_t>& numbers)
{
    std::vector<Bytes> elements;
    elements.reserve(numbers.size());
    for (const int32_t number : numbers) {
        elements.push_back(toBytes(number));
    }
    return elements;
}

Value raw(size_t size, uint8_t byte)
{
    return Bytes(size, byte);
}

struct Step {
    uint16_t id;
    FieldList fields;
    FieldList answer = {}; ///< besides the result
    int32_t result = 0;
};

struct Row {
    std::string name;
    std::vector<Step> steps;
};

const FieldList kAction{{256, i32(5)},
                        {257, i32(8)},
                        {258, i32(0)},
                        {259, i32(0)},
                        {260, i32(0)},
                        {261, i32(0)},
                        {262, std::vector<Bytes>(8, Bytes(16))},
                        {263, raw(28046, 1)}};

FieldList atom(int32_t id, int32_t status)
{
    return {{256, i32(id)}, {257, i32(status)}, {258, i32(7)}, {259, raw(324, 0)}, {260, raw(36, 0)}};
}

const std::vector<Row> kRows{
    {"feature states are apart",
     {{0x381D, {{256, i32(3)}}, {{256, i32(0)}}},
      {0x381B, {{256, i32(3)}, {257, i32(2)}}},
      {0x381B, {{256, i32(4)}, {257, i32(9)}}},
      {0x381D, {{256, i32(3)}}, {{256, i32(2)}}}}},
    {"SAR DSI state", {{0x3897, {{256, i32(-6)}}}, {0x3899, {}, {{256, i32(-6)}}}}},
    {"indication policy",
     {{0x3839, {}, {{256, raw(1588, 0)}}},
      {0x3837, {{256, raw(1588, 3)}}},
      {0x3839, {}, {{256, raw(1588, 3)}}}}},
    {"QoS data of a type, whose width differs",
     {{0x3863, {{256, u8(200)}, {257, raw(3000, 4)}}},
      {0x3865, {{256, i32(200)}}, {{256, raw(3000, 4)}}},
      {0x3865, {{256, i32(1)}}, {{256, raw(0, 0)}}}}},
    {"scene modes in the order asked for",
     {{0x382F, {{256, i32(9)}, {257, i32(2)}}},
      {0x3877,
       {{256, u32s({2, 1, 9}, 260)}},
       {{256,
         [] {
             auto both = std::get<Bytes>(u32s({1, 1, 0}, 516));
             const auto second = std::get<Bytes>(u32s({1, 9, 2}, 516));
             both.insert(both.end(), second.begin(), second.end());
             return both;
         }()}}}}},
    {"SIM lock blobs come back at once, statuses also later",
     {{0x384D, {{256, raw(2048, 5)}}, {{257, raw(2048, 5)}}},
      {0x384D, {{256, raw(2049, 5)}}, {}, 21},
      {0x384D, {{256, raw(0, 5)}}, {}, 21},
      {0x384F, {{257, raw(512, 6)}}, {{257, raw(512, 6)}}},
      {0x3851, {{257, raw(1, 0)}}, {{257, raw(512, 6)}}},
      {0x3853, {{256, raw(1024, 7)}}, {{257, raw(1024, 7)}}},
      {0x3857, {{257, raw(1, 0)}}, {{257, raw(0, 0)}}},
      {0x3855, {{257, raw(2, 8)}}, {{257, raw(2, 8)}}},
      {0x3857, {{257, raw(1, 0)}}, {{257, raw(2, 8)}}}}},
    {"atoms, by id or all",
     {{0x3859, atom(2, 1)},
      {0x3859, atom(1, 4)},
      {0x3819, {{256, i32(0)}, {257, i32(0)}, {258, list({2, 3})}}, {{256, u32s({2, 1, 7, 3, 0, 0})}}},
      {0x3819, {{256, i32(0)}, {257, i32(0)}}, {{256, u32s({1, 4, 7, 2, 1, 7})}}},
      {0x3817, {{256, i32(2)}}, {}, 1},
      {0x3815,
       {{256, i32(2)},
        {258, i32(0)},
        {257, std::vector<Bytes>{{'a'}, {}}},
        {259, list({1})},
        {260, raw(284, 0)}}},
      {0x3817, {{256, i32(2)}}}}},
    {"metrics, while they are collected",
     {{0x382B, {{256, i32(1)}, {257, i32(0)}, {259, i32(6)}}, {}, 1},
      {0x3827, {{256, i32(1)}, {257, list({11, 12})}}},
      {0x382B,
       {{256, i32(1)}, {257, i32(0)}, {259, i32(6)}},
       {{256, u32s({11, 1, 12, 1})}, {257, i32(1)}, {258, i32(2)}, {259, i32(6)}}},
      {0x382B,
       {{256, i32(1)}, {257, i32(0)}, {259, i32(6)}, {258, list({12})}},
       {{256, u32s({12, 2})}, {257, i32(1)}, {258, i32(1)}, {259, i32(6)}}},
      {0x3829, {{256, i32(1)}}},
      {0x3829, {{256, i32(1)}}, {}, 1},
      {0x382B, {{256, i32(1)}, {257, i32(0)}, {259, i32(6)}}, {}, 1}}},
    {"a network action until it is rolled back",
     {{0x3875, {{256, i32(5)}}, {{256, i32(5)}, {257, i32(0)}, {258, i32(0)}}},
      {0x3873, {{256, i32(5)}, {257, i32(8)}}, {}, 1},
      {0x3871, kAction},
      {0x3875, {{256, i32(5)}}, {{256, i32(5)}, {257, i32(1)}, {258, i32(8)}}},
      {0x3873, {{256, i32(5)}, {257, i32(8)}}},
      {0x3875, {{256, i32(5)}}, {{256, i32(5)}, {257, i32(2)}, {258, i32(8)}}},
      {0x3871, kAction},
      {0x3875, {{256, i32(5)}}, {{256, i32(5)}, {257, i32(1)}, {258, i32(8)}}}}},
    {"SIM trays", {{0x3803, {}, {{256, list({1, 1})}}}}},
    {"NEC data",
     {{0x3823,
       {{256, i32(3)}, {257, std::vector<Bytes>{{8}, {9}}}},
       {{256, Bytes{3, 0, 0, 0, 2, 0, 0, 0, 8, 9}}}}}},
    {"RF coexistence",
     {{0x3879, {}, {{256, u8(0)}, {257, toBytes(uint16_t{78})}}},
      {0x387D, {{256, u8(3)}, {257, u8(0)}, {258, u8(0)}, {259, u8(0)}}},
      {0x3879, {}, {{256, u8(3)}, {257, toBytes(uint16_t{78})}}}}},
    {"switches by name",
     {{99, {{256, u8(5)}, {258, text("SBP_X")}, {259, u8(1)}}},
      {99, {{256, u8(5)}, {258, text("SBP_X")}}, {}, 21}}},
};

TEST_F(Settings, ComeBack)
{
    for (const auto& row : kRows) {
        for (size_t i = 0; i < row.steps.size(); ++i) {
            SCOPED_TRACE(row.name + ", step " + std::to_string(i));
            const Step& step = row.steps[i];
            auto expected = fieldsOf(step.answer);
            expected.setNumber(0, step.result);
            const std::map<uint16_t, Value> all(expected.begin(), expected.end());
            EXPECT_EQ(ask(step.id, step.fields), all);
        }
    }
}

TEST_F(Settings, HeapListAddsUp)
{
    const auto block = std::get<Bytes>(ask(0x3845)[256]);
    const auto count = toNumber<uint32_t>(block, 20);
    ASSERT_EQ(block.size(), 24 + 28 * count);
    uint32_t used = 0;
    for (size_t i = 0; i < count; ++i) {
        EXPECT_EQ(block[24 + 28 * i + 19], 0) << "names end";
        used += toNumber<uint32_t>(block, 24 + 28 * i + 24);
    }
    EXPECT_EQ(used, toNumber<uint32_t>(block, 8));
    EXPECT_EQ(toNumber<uint32_t>(block, 4) - used, toNumber<uint32_t>(block, 12));
}

TEST_F(Settings, ReportRecordsCountIndications)
{
    for (int i = 0; i < 3; ++i) {
        control(R"({"command": "indicate", "message": "TestInd", "slot": 0, "fields": {"data": 9}})");
    }
    control(R"({"command": "indicate", "message": "NecInd", "slot": 0, "fields": {"data": "00ff"}})");
    EXPECT_EQ(mIndications.back().fields[256], Value(Bytes{0, 255}));
    EXPECT_EQ(ask(0x383D)[256], u32s({2, 0x7E01, 1, 0x7E02, 3}));
    EXPECT_EQ(ask(0x383D, {}, 2)[256], u32s({0}));
}

TEST_F(Settings, OfAScenarioAreThereFromTheStart)
{
    start(
        R"({"slots": [{"settings": [{"message": "SetFeatureState", "fields": {"feature": 3, "state": 6}}]}]})");
    EXPECT_EQ(ask(0x381D, {{256, i32(3)}})[256], i32(6));
}

/// The smallest request that fits a row.
FieldList smallest(const MessageSpec& message)
{
    FieldList fields;
    for (const auto& spec : message.request) {
        if (!spec.isOptional && !spec.isArray) {
            const size_t length = spec.kind == FieldKind::String ? 1 : spec.minLength;
            fields.emplace_back(spec.tag, Bytes(length));
        }
    }
    return fields;
}

TEST_F(Settings, EveryAnswerIsAsTheCatalogueHasIt)
{
    for (const auto& message : Protocol::instance().messages()) {
        if (message.kind != MessageKind::Request) {
            continue;
        }
        SCOPED_TRACE(message.name);
        auto answer = ask(message.id, smallest(message));
        EXPECT_NE(answer[0], i32(21));
        const bool failed = answer[0] != i32(0);
        size_t known = 1;
        for (const auto& spec : message.response) {
            const auto field = answer.find(spec.tag);
            if (field == answer.end()) {
                EXPECT_TRUE(failed) << spec.name;
                continue;
            }
            ++known;
            EXPECT_EQ(std::holds_alternative<Bytes>(field->second), !spec.isArray) << spec.name;
            if (const auto* bytes = std::get_if<Bytes>(&field->second)) {
                EXPECT_THAT(bytes->size(),
                            testing::AllOf(testing::Ge(spec.minLength), testing::Le(spec.maxLength)));
            }
        }
        EXPECT_EQ(answer.size(), known);
    }
}

} // namespace
} // namespace sim::test
