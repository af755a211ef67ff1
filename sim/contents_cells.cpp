// Indications about the cells around.

#include "contents.h"
#include "veyra_report.h"

#include <algorithm>

namespace sim {
namespace {

constexpr size_t kReservedWord = 24; ///< its offset in a serving cell block
constexpr size_t kMaxSubscriptions = 2;
constexpr size_t kMaxNeighbours = 64;
constexpr size_t kNeighbourSize = 32;
constexpr size_t kAllCellSize = 4280;

const Cell& campedOrNone(const Slot& slot)
{
    static const auto& none = *new Cell; // outlives the delivery thread at exit
    const Cell* cell = slot.camped();
    return cell != nullptr ? *cell : none;
}

/// The slots with service, the one that the indication is of before the others.
std::vector<const Slot*> slotsWithService(const Subject& subject)
{
    std::vector<const Slot*> slots;
    for (const Slot& slot : subject.slots) {
        if (slot.camped() != nullptr) {
            slots.push_back(&slot);
        }
    }
    std::stable_partition(slots.begin(), slots.end(),
                          [&](const Slot* slot) { return slot == &subject.slot; });
    return slots;
}

/// A serving cell block at the end of which records are aligned again.
Bytes alignedServingBlock(const Slot& slot)
{
    Bytes block = servingCellBlock(campedOrNone(slot), slot.camped() != nullptr ? slot.plmn : Plmn{});
    block.push_back(0);
    return block;
}

/// The cells of a subscription: the word that tells of failure, the serving cell without its reserved word,
/// and as many neighbours as there is room for.
Bytes subscriptionBlock(const Slot& slot)
{
    Bytes serving = alignedServingBlock(slot);
    serving.erase(serving.begin() + kReservedWord, serving.begin() + kReservedWord + 4);
    Bytes block = wordBlock({0});
    append(block, serving);
    const size_t count = std::min(slot.neighbours.size(), kMaxNeighbours);
    append(block, static_cast<uint32_t>(count));
    for (size_t i = 0; i < count; ++i) {
        append(block, neighbourBlock(slot.neighbours[i]));
    }
    block.resize(block.size() + (kMaxNeighbours - count) * kNeighbourSize);
    return block;
}

/// Words: a kind, the number of the report, radio access technology and signal.
Fields qosReport(int64_t kind, uint16_t id, const Slot& slot)
{
    const Cell& cell = campedOrNone(slot);
    return blockContents(wordBlock({kind, slot.timesIndicated(id) + 1, static_cast<int64_t>(cell.rat),
                                    cell.rsrp, cell.rsrq, cell.sinr}));
}

} // namespace

Fields alertContents(const Subject& subject)
{
    constexpr int32_t kSignalAlert = 1;
    constexpr int32_t kWeak = -100;
    constexpr int32_t kVeryWeak = -115;
    const Cell& cell = campedOrNone(subject.slot);
    Fields fields;
    fields.setNumber(256, kSignalAlert);
    fields.setNumber(257, int32_t{cell.rsrp < kWeak} + int32_t{cell.rsrp < kVeryWeak});
    fields.set(258, std::vector{toBytes(cell.rsrp), toBytes(cell.rsrq), toBytes(cell.sinr),
                                toBytes(cell.arfcn), toBytes(cell.pci)});
    return fields;
}

Fields allCellContents(const Subject& subject)
{
    const auto slots = slotsWithService(subject);
    const size_t count = std::min(slots.size(), kMaxSubscriptions);
    Bytes block = wordBlock({static_cast<int64_t>(count), 0});
    for (size_t i = 0; i < count; ++i) {
        append(block, subscriptionBlock(*slots[i]));
    }
    block.resize(kAllCellSize);
    return blockContents(std::move(block));
}

Fields mccContents(const Subject& subject)
{
    return blockContents(wordBlock({subject.slot.servedMcc(), subject.slot.previousMcc}));
}

/// As the answer to GetNecData: a type, the number of bytes that follow, and here the cell's identity.
Fields necContents(const Subject& subject)
{
    const Bytes identity = toBytes(campedOrNone(subject.slot).identity);
    Bytes data = wordBlock({0, static_cast<int64_t>(identity.size())});
    append(data, identity);
    return blockContents(std::move(data));
}

/// The strongest neighbour, or the serving cell where there is none.
Fields networkSelectContents(const Subject& subject)
{
    const auto& neighbours = subject.slot.neighbours;
    const auto best = std::ranges::max_element(neighbours, {}, &Cell::rsrp);
    const bool useBest = subject.slot.radioOn() && best != neighbours.end();
    const Cell& cell = useBest ? *best : campedOrNone(subject.slot);
    return blockContents(wordBlock({static_cast<int64_t>(cell.rat), cell.arfcn, cell.pci}));
}

Fields qosEventContents(const Subject& subject)
{
    return qosReport(0, 0x7E15, subject.slot);
}

/// Its kind is the period.
Fields qosPeriodContents(const Subject& subject)
{
    const Fields* period = subject.slot.settings.find("SetQosReportPeriod", {});
    return qosReport(period != nullptr ? period->number<int32_t>(256) : 0, 0x7E14, subject.slot);
}

/// The serving cell block, and why it is reported.
Fields servingCellContents(const Subject& subject)
{
    Bytes block = alignedServingBlock(subject.slot);
    append(block, uint32_t{0});
    return blockContents(std::move(block));
}

Fields veyraCellContents(const Subject& subject)
{
    const auto slots = slotsWithService(subject);
    Bytes report;
    for (const Slot* slot : slots) {
        append(report, veyraSubscription(*slot));
    }
    Fields fields;
    fields.setNumber(256, static_cast<uint8_t>(slots.size()));
    if (!slots.empty()) {
        fields.set(258, std::move(report));
    }
    return fields;
}

} // namespace sim
