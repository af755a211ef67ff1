#include "sim/trace.h"

#include "value.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <stdexcept>

namespace sim {
namespace {

using nlohmann::ordered_json;

/// A field that the catalogue does not have here: its bytes are all that is known.
FieldSpec unknownField(const vorn_msg_t& message, uint16_t tag)
{
    FieldSpec spec;
    spec.tag = tag;
    spec.name = "field" + std::to_string(tag);
    spec.isArray = vorn_msg_get_val_ptr(&message, tag, nullptr) == nullptr;
    return spec;
}

FieldSpec resultField()
{
    FieldSpec spec;
    spec.name = "result";
    spec.kind = FieldKind::Int32;
    spec.minLength = spec.maxLength = sizeof(int32_t);
    return spec;
}

bool has(const vorn_msg_t& message, uint16_t tag)
{
    return vorn_msg_get_val_ptr(&message, tag, nullptr) != nullptr ||
           vorn_msg_get_tlv_num(&message, tag) != 0;
}

Bytes bytesAt(const void* data, uint16_t length)
{
    const auto* bytes = static_cast<const uint8_t*>(data);
    return bytes != nullptr ? Bytes(bytes, bytes + length) : Bytes();
}

Value valueOf(const vorn_msg_t& message, uint16_t tag)
{
    uint16_t length = 0;
    if (const void* data = vorn_msg_get_val_ptr(&message, tag, &length)) {
        return bytesAt(data, length);
    }
    std::vector<Bytes> elements;
    for (uint16_t i = 0; i < vorn_msg_get_tlv_num(&message, tag); ++i) {
        const void* data = vorn_msg_get_idx_ptr(&message, tag, i, &length);
        elements.push_back(bytesAt(data, length));
    }
    return elements;
}

const std::vector<FieldSpec>& fieldsOf(const MessageSpec& spec, bool isRequest)
{
    return isRequest ? spec.request : spec.response;
}

/// The row that knows most of the message's fields: several requests may share an id.
const MessageSpec* rowOf(const vorn_msg_t& message, bool isRequest)
{
    const MessageSpec* best = nullptr;
    ptrdiff_t most = -1;
    for (const MessageSpec& row : Protocol::instance().byId(message.hdr.msg_id)) {
        const auto& specs = fieldsOf(row, isRequest);
        const auto known = std::ranges::count_if(specs, [&](auto& spec) { return has(message, spec.tag); });
        const ptrdiff_t unknown = static_cast<ptrdiff_t>(specs.size()) - known;
        if (best == nullptr || known - unknown > most) {
            best = &row;
            most = known - unknown;
        }
    }
    return best;
}

ordered_json fieldsToJson(const vorn_msg_t& message, const MessageSpec* row, const TraceOptions& options,
                          bool isRequest)
{
    std::vector<FieldSpec> specs;
    if (row != nullptr) {
        specs = fieldsOf(*row, isRequest);
    }
    if (message.hdr.tx_id != 0 && !isRequest) {
        specs.insert(specs.begin(), resultField());
    }
    for (const uint16_t tag : Protocol::instance().tags()) {
        if (std::ranges::find(specs, tag, &FieldSpec::tag) == specs.end()) {
            specs.push_back(unknownField(message, tag));
        }
    }
    ordered_json fields = ordered_json::object();
    for (FieldSpec& spec : specs) {
        if (has(message, spec.tag)) {
            spec.isPrivate = spec.isPrivate && !options.showPrivate;
            fields[spec.name] = valueToJson(valueOf(message, spec.tag), spec);
        }
    }
    return fields;
}

/// In UTC: "2026-01-31T23:59:59.123Z".
std::string timeNow()
{
    using namespace std::chrono;
    const auto now = time_point_cast<milliseconds>(system_clock::now());
    const std::time_t seconds = system_clock::to_time_t(now);
    std::tm parts{};
    gmtime_r(&seconds, &parts);
    char text[sizeof "2026-01-31T23:59:59"];
    std::strftime(text, sizeof text, "%FT%T", &parts);
    std::string fraction = std::to_string(now.time_since_epoch().count() % 1000);
    return std::string(text) + '.' + std::string(3 - fraction.size(), '0') + fraction + 'Z';
}

std::string dump(const ordered_json& json)
{
    return json.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

/// The line's parts one behind the other, the fields as name=value.
std::string toText(const ordered_json& line)
{
    std::string text = line["time"].get<std::string>() + (line["kind"] == "request" ? " -> " : " <- ") +
                       "slot " + dump(line["slot"]);
    if (line.contains("transaction")) {
        text += " #" + dump(line["transaction"]);
    }
    text += ' ' + line["message"].get<std::string>();
    for (const auto& [name, value] : line["fields"].items()) {
        text += ' ' + name + '=' + dump(value);
    }
    return text;
}

bool isSet(const char* variable, std::string_view value)
{
    const char* text = std::getenv(variable);
    return text != nullptr && text == value;
}

} // namespace

Trace::Trace(const TraceOptions& options)
    : mOptions(options), mOut(options.file == "-" ? std::cerr : static_cast<std::ostream&>(mFile))
{
    if (options.file != "-") {
        mFile.open(options.file, std::ios::app);
        if (!mFile) {
            throw std::runtime_error("can't write the trace " + options.file);
        }
    }
}

std::unique_ptr<Trace> Trace::fromEnvironment()
{
    const char* file = std::getenv("RADIO_TRACE");
    if (file == nullptr || *file == '\0') {
        return nullptr;
    }
    return std::make_unique<Trace>(
        TraceOptions{file, isSet("RADIO_TRACE_FORMAT", "json"), isSet("RADIO_TRACE_PRIVATE", "1")});
}

void Trace::note(Direction direction, const vorn_msg_t& message)
{
    const bool isRequest = direction == Direction::ToModem;
    const MessageSpec* row = rowOf(message, isRequest);
    const bool isIndication = !isRequest && message.hdr.tx_id == 0;

    ordered_json line;
    line["time"] = timeNow();
    line["kind"] = isRequest ? "request" : isIndication ? "indication" : "answer";
    const auto slotBits = static_cast<unsigned>(message.hdr.slot_id);
    line["slot"] = std::has_single_bit(slotBits) ? std::countr_zero(slotBits) : -1;
    if (!isIndication) {
        line["transaction"] = message.hdr.tx_id;
    }
    line["message"] = row != nullptr ? row->name : "message" + std::to_string(message.hdr.msg_id);
    line["fields"] = fieldsToJson(message, row, mOptions, isRequest);

    const std::string text = mOptions.json ? dump(line) : toText(line);
    const std::lock_guard lock(mMutex);
    mOut << text << '\n' << std::flush;
}

} // namespace sim
