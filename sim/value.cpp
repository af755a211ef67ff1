#include "value.h"

#include <algorithm>
#include <limits>

namespace sim {
namespace {

using nlohmann::json;

bool addField(vorn_msg_t* message, uint16_t tag, const Bytes& bytes)
{
    return bytes.size() <= UINT16_MAX &&
           vorn_msg_add_tlv(message, tag, static_cast<uint16_t>(bytes.size()), bytes.data()) == 0;
}

bool addField(vorn_msg_t* message, uint16_t tag, const std::vector<Bytes>& elements)
{
    const auto count = static_cast<uint16_t>(elements.size());
    if (elements.size() > UINT16_MAX || vorn_msg_add_array(message, tag, count) != 0) {
        return false;
    }
    for (uint16_t i = 0; i < count; ++i) {
        const Bytes& element = elements[i];
        if (element.size() > UINT16_MAX ||
            vorn_msg_add_idx(message, tag, i, static_cast<uint16_t>(element.size()), element.data()) != 0) {
            return false;
        }
    }
    return true;
}

int64_t limit(const FieldSpec& spec, bool upper)
{
    const auto bits = static_cast<int>(8 * spec.maxLength) - (isSigned(spec.kind) ? 1 : 0);
    const int64_t values = int64_t{1} << bits;
    if (upper) {
        return values - 1;
    }
    return isSigned(spec.kind) ? -values : 0;
}

Bytes bytesFromJson(const JsonNode& node, const FieldSpec& spec)
{
    if (isNumber(spec.kind)) {
        Bytes bytes = toBytes(node.number<int64_t>(limit(spec, false), limit(spec, true)));
        bytes.resize(spec.maxLength);
        return bytes;
    }
    if (spec.kind == FieldKind::String) {
        const std::string text = node.text(spec.maxLength);
        Bytes bytes(text.begin(), text.end());
        if (!spec.isArray) {
            bytes.push_back(0);
        }
        return bytes;
    }
    return node.hexBytes(spec.minLength, spec.maxLength);
}

json bytesToJson(const Bytes& bytes, const FieldSpec& spec)
{
    if (spec.isPrivate || (isNumber(spec.kind) && bytes.size() != spec.maxLength)) {
        return std::to_string(bytes.size()) + " bytes";
    }
    if (isNumber(spec.kind)) {
        const auto bits = toNumber<int64_t>(bytes);
        const bool negative = bits > limit(spec, true);
        return negative ? bits - (int64_t{1} << (8 * spec.maxLength)) : bits;
    }
    if (spec.kind == FieldKind::String && std::ranges::all_of(bytes, [](uint8_t c) { return c < 0x80; })) {
        return std::string(bytes.begin(), std::ranges::find(bytes, 0));
    }
    return hexDigits(bytes);
}

} // namespace

std::string hexDigits(const Bytes& bytes)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string digits;
    for (const uint8_t byte : bytes) {
        digits += kDigits[byte >> 4];
        digits += kDigits[byte & 15];
    }
    return digits;
}

Bytes wordBlock(std::initializer_list<int64_t> words)
{
    Bytes block;
    for (const int64_t word : words) {
        append(block, static_cast<uint32_t>(word));
    }
    return block;
}

void Fields::setText(uint16_t tag, std::string_view text)
{
    Bytes bytes(text.begin(), text.end());
    bytes.push_back(0);
    set(tag, std::move(bytes));
}

const Value* Fields::find(uint16_t tag) const
{
    const auto found = mValues.find(tag);
    return found == mValues.end() ? nullptr : &found->second;
}

const Bytes& Fields::bytes(uint16_t tag) const
{
    static const auto& nothing = *new Bytes; // outlives the delivery thread at exit
    const Value* value = find(tag);
    const Bytes* bytes = value != nullptr ? std::get_if<Bytes>(value) : nullptr;
    return bytes != nullptr ? *bytes : nothing;
}

const std::vector<Bytes>& Fields::elements(uint16_t tag) const
{
    static const auto& nothing = *new std::vector<Bytes>; // outlives the delivery thread at exit
    const Value* value = find(tag);
    const auto* elements = value != nullptr ? std::get_if<std::vector<Bytes>>(value) : nullptr;
    return elements != nullptr ? *elements : nothing;
}

std::string_view Fields::text(uint16_t tag) const
{
    const Bytes& all = bytes(tag);
    const auto length = static_cast<size_t>(std::ranges::find(all, 0) - all.begin());
    return {reinterpret_cast<const char*>(all.data()), length};
}

Message makeMessage(const vorn_msg_hdr_t& header, const Fields& fields)
{
    Message message(vorn_msg_init_with_txid(header.msg_id, header.slot_id, header.tx_id));
    for (const auto& field : fields) {
        const uint16_t tag = field.first;
        const auto add = [&](const auto& contents) { return addField(message.get(), tag, contents); };
        if (message == nullptr || !std::visit(add, field.second)) {
            return nullptr;
        }
    }
    return message;
}

const MessageSpec& requestFromJson(const JsonNode& node)
{
    const Protocol& protocol = Protocol::instance();
    const MessageSpec* spec = protocol.find(node.text());
    if (spec == nullptr || spec->kind != MessageKind::Request) {
        node.failUnknown("unknown request", protocol.namesOf(MessageKind::Request));
    }
    return *spec;
}

Value valueFromJson(const JsonNode& node, const FieldSpec& spec)
{
    if (!spec.isArray) {
        return bytesFromJson(node, spec);
    }
    std::vector<Bytes> elements;
    for (const auto& item : node.items(spec.maxCount)) {
        elements.push_back(bytesFromJson(item, spec));
    }
    return elements;
}

Fields fieldsFromJson(JsonNode node, const std::vector<FieldSpec>& specs, Extent extent)
{
    Fields fields;
    for (const auto& spec : specs) {
        const bool isRequired = extent == Extent::Whole && !spec.isOptional;
        if (isRequired || node.has(spec.name)) {
            fields.set(spec.tag, valueFromJson(node.member(spec.name), spec));
        }
    }
    node.finish();
    return fields;
}

json valueToJson(const Value& value, const FieldSpec& spec)
{
    if (const auto* bytes = std::get_if<Bytes>(&value)) {
        return bytesToJson(*bytes, spec);
    }
    json list = json::array();
    for (const auto& element : std::get<std::vector<Bytes>>(value)) {
        list.push_back(bytesToJson(element, spec));
    }
    return list;
}

json fieldsToJson(const Fields& fields, const std::vector<FieldSpec>& specs)
{
    json object = json::object();
    for (const auto& spec : specs) {
        if (const Value* value = fields.find(spec.tag)) {
            object[spec.name] = valueToJson(*value, spec);
        }
    }
    return object;
}

} // namespace sim
