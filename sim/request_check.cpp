#include "request_check.h"

#include <algorithm>
#include <cstring>

namespace sim {
namespace {

struct Misfit {
    std::string reason;
};

void requireLength(const Bytes& bytes, const FieldSpec& spec, bool terminated)
{
    if (bytes.size() < spec.minLength || bytes.size() > spec.maxLength) {
        const std::string wanted =
            spec.minLength == spec.maxLength
                ? std::to_string(spec.minLength)
                : std::to_string(spec.minLength) + " to " + std::to_string(spec.maxLength);
        throw Misfit{"has " + std::to_string(bytes.size()) + " bytes instead of " + wanted};
    }
    if (terminated && (bytes.empty() || std::memchr(bytes.data(), 0, bytes.size()) != &bytes.back())) {
        throw Misfit{"is not a text with one NUL at its end"};
    }
}

Bytes copy(const void* data, uint16_t length)
{
    const auto* bytes = static_cast<const uint8_t*>(data);
    return {bytes, bytes + length};
}

std::vector<Bytes> readElements(const vorn_msg_t& request, const FieldSpec& spec)
{
    const uint16_t count = vorn_msg_get_tlv_num(&request, spec.tag);
    if (count > spec.maxCount) {
        throw Misfit{"has " + std::to_string(count) + " elements, at most " + std::to_string(spec.maxCount)};
    }
    std::vector<Bytes> elements;
    for (uint16_t i = 0; i < count; ++i) {
        uint16_t length = 0;
        const void* data = vorn_msg_get_idx_ptr(&request, spec.tag, i, &length);
        if (data == nullptr) {
            throw Misfit{"lacks element " + std::to_string(i)};
        }
        elements.push_back(copy(data, length));
        requireLength(elements.back(), spec, false);
    }
    return elements;
}

std::optional<Value> readField(const vorn_msg_t& request, const FieldSpec& spec)
{
    uint16_t length = 0;
    const void* data = vorn_msg_get_val_ptr(&request, spec.tag, &length);
    if (spec.isArray) {
        if (data != nullptr) {
            throw Misfit{"is not an array"};
        }
        return readElements(request, spec);
    }
    if (data == nullptr) {
        if (vorn_msg_get_tlv_num(&request, spec.tag) != 0) {
            throw Misfit{"is an array"};
        }
        if (!spec.isOptional) {
            throw Misfit{"is missing"};
        }
        return std::nullopt;
    }
    Bytes bytes = copy(data, length);
    requireLength(bytes, spec, spec.kind == FieldKind::String);
    return bytes;
}

bool hasField(const vorn_msg_t& request, uint16_t tag)
{
    return vorn_msg_get_val_ptr(&request, tag, nullptr) != nullptr ||
           vorn_msg_get_tlv_num(&request, tag) != 0;
}

/// Why the request does not fit the row; empty when it does, and `fields` are filled.
std::string compare(const vorn_msg_t& request, const MessageSpec& message, const Protocol& protocol,
                    Fields& fields)
{
    for (const auto& spec : message.request) {
        try {
            if (auto value = readField(request, spec)) {
                fields.set(spec.tag, std::move(*value));
            }
        } catch (const Misfit& misfit) {
            return "field " + std::to_string(spec.tag) + " (" + spec.name + ") " + misfit.reason;
        }
    }
    for (const uint16_t tag : protocol.tags()) {
        const bool known = std::ranges::find(message.request, tag, &FieldSpec::tag) != message.request.end();
        if (!known && hasField(request, tag)) {
            return "field " + std::to_string(tag) + " is unexpected";
        }
    }
    return {};
}

} // namespace

CheckedRequest checkRequest(const vorn_msg_t& request, const Protocol& protocol)
{
    CheckedRequest checked;
    for (const auto& message : protocol.byId(request.hdr.msg_id)) {
        if (message.kind != MessageKind::Request) {
            continue;
        }
        Fields fields;
        const std::string reason = compare(request, message, protocol, fields);
        if (reason.empty()) {
            return {&message, std::move(fields), {}};
        }
        checked.reason += (checked.reason.empty() ? "" : "; ") + message.name + ": " + reason;
    }
    if (checked.reason.empty()) {
        checked.reason = "unknown message";
    }
    return checked;
}

} // namespace sim
