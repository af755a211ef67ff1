// What the modem gathers over time: atoms, metrics, scene modes, and the record of its indications.

#include "handlers.h"

#include <algorithm>
#include <iterator>

namespace sim {
namespace {

constexpr size_t kMaxAtoms = 4096 / 12;
constexpr size_t kMaxMetrics = 16384 / 8;
constexpr size_t kMaxScenes = 64;
constexpr size_t kSceneRecordSize = 516;
constexpr size_t kMaxReportRecords = 100;

/// The ids that a request lists; when it lists none, all that were stored. At most `max`.
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

Answer blockAnswer(Bytes block)
{
    Answer answer;
    answer.fields.set(256, std::move(block));
    return answer;
}

} // namespace

Answer unloadAtomApplication(Slot& slot, const Request& request)
{
    const bool wasLoaded = slot.settings.erase("LoadAtomApplication", keyOf(request.spec, request.fields));
    return {wasLoaded ? ModemResult::Success : ModemResult::Failure};
}

Bytes atomRecord(const Slot& slot, int32_t id)
{
    const Fields* atom = slot.settings.find("SetAtomStatus", keyOf(id));
    Bytes record = toBytes(id);
    append(record, atom != nullptr ? atom->number<int32_t>(257) : 0);
    append(record, atom != nullptr ? atom->number<int32_t>(258) : 0);
    return record;
}

Answer getAtomData(Slot& slot, const Request& request)
{
    Bytes block;
    const auto& atoms = slot.settings.all("SetAtomStatus");
    for (const int32_t id : wantedIds(request.fields.elements(258), atoms, kMaxAtoms)) {
        append(block, atomRecord(slot, id));
    }
    return blockAnswer(std::move(block));
}

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

/// One record for each scene asked for: the number of pairs in it, which is 1, then the scene and its mode.
Answer getSceneModes(Slot& slot, const Request& request)
{
    const Bytes& asked = request.fields.bytes(256);
    const size_t count = std::min<size_t>(toNumber<uint32_t>(asked), kMaxScenes);
    Bytes block;
    for (size_t i = 0; i < count; ++i) {
        const auto scene = toNumber<int32_t>(asked, 4 + 4 * i);
        const Fields* stored = slot.settings.find("SetSceneMode", keyOf(scene));
        append(block, uint32_t{1});
        append(block, scene);
        append(block, stored != nullptr ? stored->number<uint32_t>(257) : 0U);
        block.resize((i + 1) * kSceneRecordSize);
    }
    return blockAnswer(std::move(block));
}

/// Their number, then two words for each indication that was sent: its id and how often.
Answer getReportRecords(Slot& slot, const Request&)
{
    Bytes block = toBytes(static_cast<uint32_t>(std::min(slot.indicationsSent.size(), kMaxReportRecords)));
    for (const auto& [id, times] : slot.indicationsSent) {
        if (block.size() < 4 + 8 * kMaxReportRecords) {
            append(block, uint32_t{id});
            append(block, times);
        }
    }
    return blockAnswer(std::move(block));
}

} // namespace sim
