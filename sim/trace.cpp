#include "sim/trace.h"

#include "host/quiet_write.h"
#include "value.h"
#include "zor/log.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace sim {
namespace {

using nlohmann::ordered_json;

constexpr const char* kTraceTag = "trace";
constexpr const char* kStandardError = "-";

constexpr uint16_t kAtMessage = 3;
constexpr uint16_t kAtAnswer = 0x8100;

/// Of the commands whose answers name them, those that tell who the subscriber or the device is.
constexpr std::array<std::string_view, 4> kIdentities = {"+CCID:", "+CNUM:", "+EGMR:", "+ICCID:"};

/// Whether an answer to an AT command may tell an identity. IMSI and IMEI come on a line without the name of a
/// command (3GPP TS 27.007, +CIMI and +CGSN), and so may what is cut off: whatever is no line of another kind
/// counts, therefore.
bool tellsIdentity(std::string_view answer)
{
    while (!answer.empty()) {
        const size_t end = std::min(answer.find_first_of("\r\n"), answer.size());
        const std::string_view line = answer.substr(0, end);
        answer.remove_prefix(std::min(end + 1, answer.size()));
        const bool isEcho = line.size() >= 2 && (line[0] | 0x20) == 'a' && (line[1] | 0x20) == 't';
        const bool isVerdict = line.empty() || line == "OK" || line == "ERROR";
        const bool isNamed = line.starts_with('+') && line.find(':') != std::string_view::npos;
        const auto names = [&](std::string_view name) { return line.starts_with(name); };
        if (!isEcho && !isVerdict && (!isNamed || std::ranges::any_of(kIdentities, names))) {
            return true;
        }
    }
    return false;
}

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

/// Whether a field may be shown by its length only.
bool isPrivate(const vorn_msg_t& message, const FieldSpec& spec, const Value& value, bool isRequest)
{
    if (isRequest || message.hdr.msg_id != kAtMessage || spec.tag != kAtAnswer) {
        return spec.isPrivate;
    }
    const auto* bytes = std::get_if<Bytes>(&value);
    return bytes == nullptr ||
           tellsIdentity({reinterpret_cast<const char*>(bytes->data()),
                          static_cast<size_t>(std::ranges::find(*bytes, 0) - bytes->begin())});
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
            const Value value = valueOf(message, spec.tag);
            spec.isPrivate = !options.showPrivate && isPrivate(message, spec, value, isRequest);
            fields[spec.name] = valueToJson(value, spec);
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

int openFile(const TraceOptions& options)
{
    // Without waiting: a pipe by name may have no reader, or one that does not read.
    constexpr int kFlags = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    const int descriptor = ::open(options.file.c_str(), kFlags, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        const int error = errno;
        throw std::runtime_error("can't write the trace " + options.file + ": " +
                                 (error == ENXIO ? "it is a pipe that nobody reads, or a socket"
                                                 : std::generic_category().message(error)));
    }
    // A file that was there stays as its owner made it.
    struct stat status {};
    const bool isForOthers = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
                             (status.st_mode & (S_IRGRP | S_IROTH)) != 0;
    if (isForOthers && options.showPrivate) {
        zorLogW(kTraceTag, "others may read %s, which shows private contents", options.file.c_str());
    }
    return descriptor;
}

} // namespace

Trace::Trace(const TraceOptions& options)
    : mOptions(options), mDescriptor(options.file == kStandardError ? STDERR_FILENO : openFile(options))
{}

Trace::~Trace()
{
    if (mDescriptor != STDERR_FILENO) {
        ::close(mDescriptor);
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
    if (mHasEnded) {
        return;
    }
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

    const std::string text = (mOptions.json ? dump(line) : toText(line)) + '\n';
    int error = 0;
    {
        const std::lock_guard lock(mMutex);
        error = mHasEnded ? 0 : host::writeQuietly(mDescriptor, text);
        mHasEnded = mHasEnded || error != 0;
    }
    if (error != 0) {
        zorLogW(kTraceTag, "the trace %s ends: %s", mOptions.file.c_str(),
                std::generic_category().message(error).c_str());
    }
}

} // namespace sim
