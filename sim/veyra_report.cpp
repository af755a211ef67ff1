#include "veyra_report.h"

#include <algorithm>

namespace sim {
namespace {

constexpr size_t kMaxFrequencies = 10;
constexpr size_t kMaxCells = 8;
constexpr size_t kFrequencySize = 106;
constexpr size_t kGroupSize = 1080;
constexpr size_t kSubscriptionSize = 2172;

using Cells = std::vector<const Cell*>;

/// The decimal digits of a number, four bits for each.
uint16_t toDigits(uint32_t number)
{
    return static_cast<uint16_t>((number / 100 % 10) << 8U | (number / 10 % 10) << 4U | number % 10);
}

/// Everything measured with one radio access technology, the cell in use first.
Cells measured(const Slot& slot, bool ofServing)
{
    Cells cells{&*slot.serving};
    if (slot.lteAnchor) {
        cells.push_back(&*slot.lteAnchor);
    }
    for (const Cell& neighbour : slot.neighbours) {
        cells.push_back(&neighbour);
    }
    std::erase_if(cells, [&](const Cell* cell) { return (cell->rat == slot.serving->rat) != ofServing; });
    return cells;
}

/// The network of a cell without an identity was never read.
void appendCell(Bytes& block, const Cell& cell)
{
    append(block, static_cast<uint16_t>(cell.pci));
    append(block, uint8_t{0}); // beam
    append(block, static_cast<uint8_t>(cell.identity != 0 ? 1 : 0));
    append(block, static_cast<int16_t>(cell.rsrp));
    append(block, static_cast<int16_t>(cell.rsrq));
    append(block, static_cast<int16_t>(cell.sinr));
    append(block, static_cast<uint16_t>(cell.cqi));
}

/// The cells on the frequency of the first; takes them off the list.
Bytes takeFrequency(Cells& cells)
{
    const Cell& first = *cells.front();
    const auto others = std::stable_partition(cells.begin(), cells.end(),
                                              [&](const Cell* cell) { return cell->arfcn == first.arfcn; });
    const auto onFrequency = static_cast<size_t>(others - cells.begin());
    const size_t count = std::min(onFrequency, kMaxCells);

    Bytes block;
    append(block, first.arfcn);
    append(block, static_cast<uint8_t>(first.rat));
    append(block, static_cast<uint8_t>(count));
    append(block, uint32_t{0}); // offset of the frequency, two unused bytes
    for (size_t i = 0; i < count; ++i) {
        appendCell(block, *cells[i]);
    }
    block.resize(kFrequencySize);
    cells.erase(cells.begin(), others);
    return block;
}

Bytes groupOf(Cells cells, const Plmn& plmn)
{
    if (cells.empty()) {
        return Bytes(kGroupSize);
    }
    const uint64_t identity = cells.front()->identity;
    Bytes frequencies;
    uint8_t count = 0;
    for (; !cells.empty() && count < kMaxFrequencies; ++count) {
        append(frequencies, takeFrequency(cells));
    }
    Bytes block(2);
    append(block, plmn.mncDigits);
    append(block, count);
    append(block, toDigits(plmn.mcc));
    append(block, toDigits(plmn.mnc));
    append(block, identity);
    append(block, uint32_t{0});
    append(block, frequencies);
    block.resize(kGroupSize);
    return block;
}

} // namespace

Bytes veyraSubscription(const Slot& slot)
{
    const Cells others = measured(slot, false);
    Bytes block;
    append(block, static_cast<uint64_t>(slot.number) + 1);
    append(block, uint32_t{others.empty() ? 1U : 2U});
    append(block, groupOf(measured(slot, true), slot.plmn));
    append(block, groupOf(others, slot.plmn));
    block.resize(kSubscriptionSize);
    return block;
}

} // namespace sim
