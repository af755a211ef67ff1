#include "sim/protocol.h"

#include "embedded.h"
#include "json_node.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <set>

namespace sim {
namespace {

struct KindRow {
    std::string_view name;
    FieldKind kind;
    size_t width; ///< 0 when it varies
    bool hasSign;
};

constexpr std::array kKinds{
    KindRow{"int8", FieldKind::Int8, 1, true},   KindRow{"uint8", FieldKind::Uint8, 1, false},
    KindRow{"int16", FieldKind::Int16, 2, true}, KindRow{"uint16", FieldKind::Uint16, 2, false},
    KindRow{"int32", FieldKind::Int32, 4, true}, KindRow{"uint32", FieldKind::Uint32, 4, false},
    KindRow{"str", FieldKind::String, 0, false}, KindRow{"raw", FieldKind::Raw, 0, false},
    KindRow{"rec", FieldKind::Record, 0, false},
};

constexpr size_t kMaxFieldLength = 65535;
constexpr size_t kMaxElements = 65535;

const KindRow& rowOf(FieldKind kind)
{
    return *std::find_if(kKinds.begin(), kKinds.end(), [&](const KindRow& row) { return row.kind == kind; });
}

std::optional<uint16_t> parseId(std::string_view text)
{
    const int base = text.starts_with("0x") ? 16 : 10;
    const std::string_view digits = base == 16 ? text.substr(2) : text;
    uint16_t id = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), id, base);
    const bool whole = error == std::errc() && end == digits.data() + digits.size();
    return whole ? std::optional(id) : std::nullopt;
}

uint16_t readId(const JsonNode& node)
{
    const auto id = parseId(node.text());
    if (!id) {
        node.fail("must be a 16-bit number in a text, like \"0x3801\"");
    }
    return *id;
}

bool readFlag(JsonNode& node, std::string_view key)
{
    const auto flag = node.optionalMember(key);
    return flag && flag->flag();
}

size_t readSize(JsonNode& node, std::string_view key, size_t absent)
{
    const auto size = node.optionalMember(key);
    return size ? size->number<uint16_t>() : absent;
}

FieldSpec readField(JsonNode node)
{
    FieldSpec field;
    const JsonNode tag = node.member("tag");
    field.tag = tag.json().is_string() ? readId(tag) : tag.number<uint16_t>();
    field.name = node.member("name").text();

    std::string type = node.member("type").text();
    field.isArray = type.ends_with("[]");
    if (field.isArray) {
        type.resize(type.size() - 2);
    }
    const auto kind =
        std::find_if(kKinds.begin(), kKinds.end(), [&](const KindRow& row) { return row.name == type; });
    if (kind == kKinds.end()) {
        node.member("type").fail("unknown type");
    }
    field.kind = kind->kind;

    const size_t size = readSize(node, "size", kind->width);
    field.minLength = readSize(node, "min", size);
    field.maxLength = readSize(node, "max", size != 0 ? size : kMaxFieldLength);
    field.maxCount = readSize(node, "maxCount", kMaxElements);
    field.isOptional = readFlag(node, "optional");
    field.isPrivate = readFlag(node, "private");
    field.isKey = readFlag(node, "key");
    node.finish();
    return field;
}

std::vector<FieldSpec> readFields(JsonNode& row, std::string_view key)
{
    std::vector<FieldSpec> fields;
    if (const auto list = row.optionalMember(key)) {
        for (const auto& item : list->items(64)) {
            fields.push_back(readField(item));
        }
    }
    return fields;
}

MessageSpec readMessage(JsonNode row)
{
    MessageSpec message;
    message.id = readId(row.member("id"));
    message.name = row.member("name").text();
    const JsonNode kind = row.member("kind");
    if (kind.text() == "indication") {
        message.kind = MessageKind::Indication;
        message.response = readFields(row, "indication");
    } else if (kind.text() == "request") {
        message.request = readFields(row, "request");
        message.response = readFields(row, "response");
    } else {
        kind.fail("must be request or indication");
    }
    if (const auto note = row.optionalMember("note")) {
        message.note = note->text();
    }
    row.finish();
    return message;
}

} // namespace

bool isNumber(FieldKind kind)
{
    return rowOf(kind).width != 0;
}

bool isSigned(FieldKind kind)
{
    return rowOf(kind).hasSign;
}

const Protocol& Protocol::instance()
{
    // Never destroyed: the process may end while the modem is in use.
    static const Protocol& protocol = *new Protocol{embedded::messages};
    return protocol;
}

Protocol::Protocol(std::string_view json)
{
    const auto parsed = nlohmann::json::parse(json);
    for (const auto& row : JsonNode(parsed, "").items(kMaxElements)) {
        mMessages.push_back(readMessage(row));
    }
    std::stable_sort(mMessages.begin(), mMessages.end(),
                     [](const auto& a, const auto& b) { return a.id < b.id; });

    std::set<uint16_t> tags{0};
    for (const auto& message : mMessages) {
        for (const auto* fields : {&message.request, &message.response}) {
            for (const auto& field : *fields) {
                tags.insert(field.tag);
            }
        }
    }
    mTags.assign(tags.begin(), tags.end());
}

std::span<const MessageSpec> Protocol::byId(uint16_t id) const
{
    const auto begin = std::ranges::lower_bound(mMessages, id, {}, &MessageSpec::id);
    const auto end = std::ranges::upper_bound(mMessages, id, {}, &MessageSpec::id);
    return {begin, end};
}

const MessageSpec* Protocol::find(std::string_view nameOrId) const
{
    if (const auto id = parseId(nameOrId)) {
        const auto rows = byId(*id);
        return rows.empty() ? nullptr : &rows.front();
    }
    const auto found = std::ranges::find(mMessages, nameOrId, &MessageSpec::name);
    return found == mMessages.end() ? nullptr : &*found;
}

std::vector<std::string> Protocol::namesOf(MessageKind kind) const
{
    std::vector<std::string> names;
    for (const MessageSpec& message : mMessages) {
        if (message.kind == kind) {
            names.push_back(message.name);
        }
    }
    return names;
}

} // namespace sim
