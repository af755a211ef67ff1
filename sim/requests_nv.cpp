// The modem's non-volatile items.

#include "requests.h"

namespace sim {
namespace {

NvKey nvKey(const Request& request)
{
    return {request.fields.number<int32_t>(256), request.fields.number<int32_t>(257)};
}

Answer readNv(Slot& slot, const Request& request)
{
    const auto item = slot.nv.find(nvKey(request));
    if (item == slot.nv.end()) {
        return {ModemResult::Failure};
    }
    Answer answer;
    answer.fields.set(0x8100, item->second);
    return answer;
}

Answer writeNv(Slot& slot, const Request& request)
{
    const NvKey key = nvKey(request);
    if (slot.nv.size() >= kMaxNvItems && !slot.nv.contains(key)) {
        return {ModemResult::Failure};
    }
    slot.nv[key] = request.fields.bytes(0x8102);
    return {};
}

} // namespace

Domain nvRequests()
{
    static constexpr MessageRow messages[] = {
        {"ReadNv", readNv},
        {"WriteNv", writeNv},
    };
    return {messages};
}

} // namespace sim
