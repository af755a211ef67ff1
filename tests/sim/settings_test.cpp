// What the modem tells of its settings and of itself.
#include "modem_fixture.h"

namespace sim::test {
namespace {

class Settings : public ModemTest {};

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
