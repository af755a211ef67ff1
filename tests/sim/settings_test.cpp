// What the modem tells of its settings and of itself.
#include "modem_fixture.h"

namespace sim::test {
namespace {

class Settings : public ModemTest {};

Value u32s(const std::vector<uint32_t>& words)
{
    Bytes block;
    for (const uint32_t word : words) {
        append(block, word);
    }
    return block;
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
        start("{}"); // some requests leave the modem without service
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
