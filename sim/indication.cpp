#include "indication.h"

#include "slot.h"

#include <algorithm>
#include <cctype>

namespace sim {
namespace {

constexpr uint32_t kMaxTimes = 10'000;

void removeEnd(std::string& text, std::string_view end)
{
    if (text.ends_with(end)) {
        text.resize(text.size() - end.size());
    }
}

/// What the ways to write an indication's name have in common.
std::string plainName(std::string_view name)
{
    std::string plain;
    for (const char c : name) {
        if (c != '-') {
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    removeEnd(plain, "ind");
    removeEnd(plain, "event");
    return plain;
}

const MessageSpec* findIndication(std::string_view nameOrId)
{
    const Protocol& protocol = Protocol::instance();
    if (const MessageSpec* exact = protocol.find(nameOrId)) {
        return exact->kind == MessageKind::Indication ? exact : nullptr;
    }
    const std::string wanted = plainName(nameOrId);
    const auto found = std::ranges::find_if(protocol.messages(), [&](const MessageSpec& message) {
        return message.kind == MessageKind::Indication && plainName(message.name) == wanted;
    });
    return found != protocol.messages().end() ? &*found : nullptr;
}

Fields onlyField(const JsonNode& value, const std::vector<FieldSpec>& specs)
{
    if (specs.size() != 1 || specs.front().isArray || !isNumber(specs.front().kind)) {
        value.fail("only suits an indication whose one field is a number");
    }
    Fields fields;
    fields.set(specs.front().tag, valueFromJson(value, specs.front()));
    return fields;
}

} // namespace

Indication indicationFromJson(JsonNode& node)
{
    const JsonNode message = node.member("message");
    Indication indication;
    indication.spec = findIndication(message.text());
    if (indication.spec == nullptr) {
        message.failUnknown("unknown indication", Protocol::instance().namesOf(MessageKind::Indication));
    }
    indication.slot = node.member("slot").number<int>(0, kSlots - 1);
    const auto fields = node.optionalMember("fields");
    if (const auto value = node.optionalMember("value")) {
        if (fields) {
            value->fail("can't stand next to fields");
        }
        indication.fields = onlyField(*value, indication.spec->response);
    } else if (fields) {
        indication.fields = fieldsFromJson(*fields, indication.spec->response, Extent::Partial);
    }
    if (const auto times = node.optionalMember("times")) {
        indication.times = times->number<uint32_t>(1, kMaxTimes);
    }
    return indication;
}

Indication indicationNamed(std::string_view name, int slot, Fields fields)
{
    return {Protocol::instance().find(name), slot, std::move(fields)};
}

} // namespace sim
