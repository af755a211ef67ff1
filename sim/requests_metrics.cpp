// What the modem measures, and tells about its protocols.

#include "requests.h"

namespace sim {
namespace {

constexpr size_t kMaxMetrics = 16384 / 8;

Answer stopMetrics(Slot& slot, const Request& request)
{
    const bool wasRunning = slot.settings.erase("StartMetricsCollect", keyOf(request.spec, request.fields));
    return {wasRunning ? ModemResult::Success : ModemResult::Failure};
}

/// Two words for each metric: id and value, which grows with every reading. A type that is not collected has
/// nothing.
Answer getMetrics(Slot& slot, const Request& request)
{
    const Fields* collected = slot.settings.find("StartMetricsCollect", keyOf(request.spec, request.fields));
    if (collected == nullptr) {
        return {ModemResult::Failure};
    }
    ++slot.metricsReadings;
    const auto& listed = request.fields.elements(258);
    const auto ids = wantedIds(listed.empty() ? collected->elements(257) : listed, {}, kMaxMetrics);
    Bytes block;
    for (const int32_t id : ids) {
        append(block, id);
        append(block, slot.metricsReadings);
    }
    Answer answer = blockAnswer(std::move(block));
    answer.fields.setNumber(257, request.fields.number<int32_t>(256));
    answer.fields.setNumber(258, static_cast<int32_t>(ids.size()));
    answer.fields.setNumber(259, request.fields.number<int32_t>(259));
    return answer;
}

/// The type asked for, the number of bytes that came with the request, and these.
Answer getNecData(Slot&, const Request& request)
{
    const auto& elements = request.fields.elements(257);
    Bytes block = toBytes(request.fields.number<int32_t>(256));
    append(block, static_cast<uint32_t>(elements.size()));
    for (const Bytes& element : elements) {
        block.push_back(element.front());
    }
    return blockAnswer(std::move(block));
}

/// The serving cell block, or nothing without service.
Answer getProtocolInfo(Slot& slot, const Request&)
{
    const Cell* cell = slot.camped();
    return blockAnswer(cell != nullptr ? servingCellBlock(*cell, slot.plmn) : Bytes());
}

} // namespace

Domain metricsRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetMetricsData", getMetrics},
        {"GetModemProtocolInfo", getProtocolInfo},
        {"GetNecData", getNecData},
        {"StopMetricsCollect", stopMetrics},
    };
    return {messages};
}

} // namespace sim
