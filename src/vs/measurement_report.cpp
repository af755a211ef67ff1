#include "vs/measurement_report.h"

#include "channel/vorn_view.h"
#include "zor/log.h"

#include <algorithm>
#include <cstring>

using vs::kEventTag;

namespace {

constexpr size_t kSubscriptionSize = 2172;
constexpr size_t kGroups[] = {12, 1092};
constexpr size_t kGroupSize = 1080;
constexpr size_t kFirstEntry = 20;
constexpr size_t kEntrySize = 106;
constexpr size_t kMaxEntries = 10;
constexpr size_t kFirstCell = 10;
constexpr size_t kCellSize = 12;
constexpr size_t kMaxCells = 8;
constexpr uint32_t kMaxCountedSubscriptions = 10;
constexpr uint16_t kMaxDigits = 0x999;

/// The part of a block, as far as the block reaches.
ReportBlock part(ReportBlock block, size_t begin, size_t size)
{
    begin = std::min(begin, block.size());
    return block.subspan(begin, std::min(size, block.size() - begin));
}

uint8_t byteAt(ReportBlock block, size_t offset)
{
    return offset < block.size() ? block[offset] : uint8_t{0};
}

ReportBlock subscriptionAt(ReportBlock subscriptions, uint32_t index)
{
    return part(subscriptions, index * kSubscriptionSize, kSubscriptionSize);
}

/// Calls `use` with each entry that a group counts and that begins within it.
template <typename Use>
void forEachEntry(ReportBlock group, Use use)
{
    const size_t count = std::min<size_t>(byteAt(group, 3), kMaxEntries);
    for (size_t i = 0; i < count; ++i) {
        use(part(group, kFirstEntry + i * kEntrySize, kEntrySize));
    }
}

/// The cells that an entry counts and that are wholly in it.
ReportBlock cellsOf(ReportBlock entry)
{
    const size_t count = std::min<size_t>(byteAt(entry, 5), kMaxCells);
    const ReportBlock cells = part(entry, kFirstCell, count * kCellSize);
    return cells.first(cells.size() / kCellSize * kCellSize);
}

} // namespace

uint16_t veyra_convert_mcc(uint16_t digits)
{
    if (digits > kMaxDigits) {
        return 0;
    }
    return static_cast<uint16_t>((digits >> 8) * 100 + (digits >> 4 & 0xF) * 10 + (digits & 0xF));
}

uint16_t veyra_convert_mnc(int16_t digits, uint8_t digitCount)
{
    if (digits < 0 || digits > kMaxDigits || digitCount == 0) {
        return 0;
    }
    int number = digits & 0xF;
    if (digitCount >= 2) {
        number += (digits >> 4 & 0xF) * 10;
    }
    if (digitCount >= 3) {
        number += (digits >> 8) * 100;
    }
    return static_cast<uint16_t>(number);
}

uint32_t vorn_veyra_count_cell_info_cells_from_ind(ReportBlock subscriptions, uint32_t count)
{
    size_t cells = 0;
    for (uint32_t i = 0; i < std::min(count, kMaxCountedSubscriptions); ++i) {
        const ReportBlock subscription = subscriptionAt(subscriptions, i);
        const size_t groups = std::min<size_t>(byteAt(subscription, 8), std::size(kGroups));
        for (size_t g = 0; g < groups; ++g) {
            forEachEntry(part(subscription, kGroups[g], kGroupSize),
                         [&](ReportBlock entry) { cells += cellsOf(entry).size() / kCellSize; });
        }
    }
    return static_cast<uint32_t>(cells);
}

void veyra_convert_vorn_cell_detail_info_list(ReportBlock cells, const ReportEntry& entry,
                                              ReportCursor& cursor)
{
    for (; cells.size() >= kCellSize && cursor.produced < kRadioMaxReportCells;
         cells = cells.subspan(kCellSize)) {
        const uint8_t valid = cells[3];
        const bool hasPlmn = valid == 1 || valid == 2;
        RadioVeyraCell& out = *cursor.next++;
        ++cursor.produced;
        std::memset(static_cast<void*>(&out), 0, sizeof out);
        out.rat = entry.rat;
        out.subscription = entry.subscription;
        out.group = hasPlmn ? entry.group : 0;
        out.pci = numberAt<uint16_t>(cells, 0);
        out.mcc = hasPlmn ? entry.mcc : uint16_t{0};
        out.mnc = hasPlmn ? entry.mnc : uint16_t{0};
        out.arfcn = entry.arfcn;
        out.beam = cells[2];
        out.rsrp = numberAt<int16_t>(cells, 4);
        out.rsrq = numberAt<int16_t>(cells, 6);
        out.sinr = numberAt<int16_t>(cells, 8);
        out.quality = numberAt<uint16_t>(cells, 10);
        out.offset = entry.offset;
    }
}

void veyra_convert_vorn_cell_info_list(ReportBlock entryBlock, ReportEntry entry, ReportCursor& cursor)
{
    entry.arfcn = numberAt<uint32_t>(entryBlock, 0);
    entry.rat = byteAt(entryBlock, 4);
    entry.offset = numberAt<int16_t>(entryBlock, 6);
    veyra_convert_vorn_cell_detail_info_list(cellsOf(entryBlock), entry, cursor);
}

void veyra_convert_vorn_arfcn_info_list(ReportBlock group, ReportCursor& cursor, uint64_t subscription)
{
    ReportEntry shared{};
    shared.subscription = subscription;
    shared.group = numberAt<uint64_t>(group, 8);
    shared.mcc = veyra_convert_mcc(numberAt<uint16_t>(group, 4));
    shared.mnc = veyra_convert_mnc(numberAt<int16_t>(group, 6), byteAt(group, 2));
    forEachEntry(group, [&](ReportBlock entry) { veyra_convert_vorn_cell_info_list(entry, shared, cursor); });
}

void veyra_convert_vorn_sub_info_list(ReportBlock subscription, ReportCursor& cursor)
{
    const auto value = numberAt<uint64_t>(subscription, 0);
    // The first group is there whatever the count says.
    veyra_convert_vorn_arfcn_info_list(part(subscription, kGroups[0], kGroupSize), cursor, value);
    if (byteAt(subscription, 8) >= 2) {
        veyra_convert_vorn_arfcn_info_list(part(subscription, kGroups[1], kGroupSize), cursor, value);
    }
}

uint32_t vorn_veyra_convert_collect_info_list_from_ind(ReportBlock subscriptions, ReportCursor& cursor,
                                                       uint32_t count)
{
    for (uint32_t i = 0; i < count; ++i) {
        veyra_convert_vorn_sub_info_list(subscriptionAt(subscriptions, i), cursor);
    }
    return cursor.produced;
}

void veyra_convert_vorn_info_list_from_ind(ReportBlock subscriptions, ReportCursor& cursor, uint32_t total,
                                           uint32_t count)
{
    zorLogD(kEventTag, "Veyra:_veyra_convert_vorn_cell_info_list totcells:[%d] ", static_cast<int>(total));
    if (subscriptions.data() == nullptr || cursor.next == nullptr) {
        zorLogD(kEventTag, "NULL parameters passed");
        return;
    }
    RadioVeyraCell* const start = cursor.next;
    const uint32_t produced = vorn_veyra_convert_collect_info_list_from_ind(subscriptions, cursor, count);
    if (produced > total) {
        zorLogD(kEventTag, "Veyra:_veyra_convert_vorn_cell_info_list consumed more cells:[%d] ",
                static_cast<int>(produced));
        return;
    }
    zorLogD(kEventTag, "Veyra:_veyra_convert_vorn_cell_info_list consumed cells:[%d] ",
            static_cast<int>(produced));
    cursor.next = start;
}

namespace {

/// How many cells the report counts, as far as a record holds them.
uint32_t convertCells(ReportBlock subscriptions, uint8_t count, ReportCursor& cursor)
{
    if (subscriptions.data() == nullptr) {
        zorLogE(kEventTag, "vorn_vs_veyra_get_data - error");
    }
    if (count == 0) {
        zorLogD(kEventTag, "Veyra:_veyra_convert_vorn_cell_info_list totcells:[%d] ", 0);
        zorLogD(kEventTag, "Veyra:_veyra_convert_vorn_cell_info_list consumed cells:[%d] ", 0);
        return 0;
    }
    const uint32_t total = vorn_veyra_count_cell_info_cells_from_ind(subscriptions, count);
    veyra_convert_vorn_info_list_from_ind(subscriptions, cursor, total, count);
    return std::min(total, kRadioMaxReportCells);
}

} // namespace

void convertMeasurementReport(ReportBlock subscriptions, uint8_t count, RadioVeyraCellInfo& out)
{
    ReportCursor cursor{out.cells};
    out.count = convertCells(subscriptions, count, cursor);
    out.reserved = 0;
    std::memset(static_cast<void*>(out.cells + cursor.produced), 0,
                (kRadioMaxReportCells - cursor.produced) * sizeof *out.cells);
}
