#include "requests.h"

#include "at_interpreter.h"
#include "contents.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace sim {
namespace {

Answer executeAtCommand(Slot& slot, const Request& request)
{
    const AtAnswer reply = executeAt(slot, request.fields.text(kAtText));
    Answer answer;
    answer.fields.setText(kAtText, reply.text);
    answer.restart = reply.restart;
    return answer;
}

/// What was never set reads as zeros.
Answer readStored(const Slot& slot, const Request& request, const StoredField& field)
{
    const Fields* stored = slot.settings.find(field.setter, keyOf(request.spec, request.fields));
    const auto spec = std::ranges::find(request.spec.response, field.answerField, &FieldSpec::tag);
    Answer answer;
    answer.fields.set(field.answerField,
                      stored != nullptr ? stored->bytes(field.setterField) : Bytes(spec->minLength));
    return answer;
}

const MessageRow* findRow(std::string_view message)
{
    static const auto& rows = *[] {
        auto* all = new std::unordered_map<std::string_view, MessageRow>;
        all->emplace("AtCommand", MessageRow{"AtCommand", executeAtCommand});
        for (const Domain& domain : domains()) {
            for (const MessageRow& row : domain.messages) {
                all->emplace(row.message, row);
            }
        }
        return all;
    }();
    const auto found = rows.find(message);
    return found != rows.end() ? &found->second : nullptr;
}

} // namespace

std::span<const Domain> domains()
{
    static const Domain all[] = {
        antennaRequests(),
        atomRequests(),
        bandsRequests(),
        campingRequests(),
        carrierAggregationRequests(),
        cellInfoRequests(),
        deviceStateRequests(),
        imsRequests(),
        metricsRequests(),
        multiSimRequests(),
        networkActionRequests(),
        nvRequests(),
        operationModeRequests(),
        packetRouteRequests(),
        policyRequests(),
        powerRequests(),
        qosRequests(),
        rfRequests(),
        rfIccRequests(),
        rtpRedundancyRequests(),
        sarRequests(),
        sceneRequests(),
        searchRequests(),
        serviceModeRequests(),
        simRequests(),
    };
    return all;
}

Answer handle(Slot& slot, const Request& request)
{
    const MessageRow* row = findRow(request.spec.name);
    if (row == nullptr) {
        slot.settings.store(request.spec, request.fields);
        return {};
    }
    return row->handler != nullptr ? row->handler(slot, request) : readStored(slot, request, row->reads);
}

Answer blockAnswer(Bytes block)
{
    return {ModemResult::Success, blockContents(std::move(block))};
}

std::vector<int32_t> wantedIds(std::vector<Bytes> ids, const StoredSettings::ByKey& stored, size_t max)
{
    if (ids.empty()) {
        for (const auto& [key, fields] : stored) {
            ids.push_back(key);
        }
    }
    ids.resize(std::min(ids.size(), max));
    std::vector<int32_t> numbers;
    std::ranges::transform(ids, std::back_inserter(numbers),
                           [](const Bytes& id) { return toNumber<int32_t>(id); });
    return numbers;
}

} // namespace sim
