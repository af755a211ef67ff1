/// The modem's measurement report, flattened into a list of cells.
///
/// The report is a block of packed, little-endian records, one per subscription. Its own counts say how much
/// of a record is filled; they are cut to what a record holds, and a record that the block ends in yields
/// what is wholly there.
///
///   subscription, 2172 bytes:  0 a 64-bit value, 8 number of groups (1 or 2), 12 group 1, 1092 group 2
///   group, 1080 bytes:         2 digits of the MNC, 3 number of entries (at most 10), 4 MCC and 6 MNC as
///   4-bit digits,
///                              8 a 64-bit value, 20 ten entries
///   entry, 106 bytes:          0 a 32-bit value, 4 a byte, 5 number of cells (at most 8), 6 a signed 16-bit
///   value,
///                              10 eight cells
///   cell, 12 bytes:            0 a 16-bit value, 2 a byte, 3 whether the PLMN is valid (1 or 2), 4, 6 and 8
///   signed
///                              16-bit values, 10 a 16-bit value
///
/// A cell becomes one RadioVeyraCell, which repeats what it needs of its entry, group and subscription. Cells
/// stand in the order of the report; those that find no room are left out.
#pragma once

#include "radio_apis/events.h"

#include <span>

namespace vs {

/// The log tag of everything that makes events.
inline constexpr char kEventTag[] = "VornVsClientEvent";

} // namespace vs

/// Decimal numbers from 4-bit digits, hundreds in the upper byte. 0 for a value above 0x999, and for an MNC
/// that is negative or has no digits.
uint16_t veyra_convert_mcc(uint16_t digits);
uint16_t veyra_convert_mnc(int16_t digits, uint8_t digitCount);

using ReportBlock = std::span<const uint8_t>;

/// Where cells are written: the next record, and how many were written. At most kRadioMaxReportCells are.
struct ReportCursor {
    RadioVeyraCell* next;
    uint32_t produced = 0;
};

/// What the cells of one entry share.
struct ReportEntry {
    uint64_t subscription;
    uint64_t group;
    uint16_t mcc;
    uint16_t mnc;
    uint32_t arfcn;
    uint8_t rat;
    int16_t offset;
};

/// The cells of a report of `count` subscriptions, of which at most 10 are counted.
uint32_t vorn_veyra_count_cell_info_cells_from_ind(ReportBlock subscriptions, uint32_t count);

/// Append the cells of a list of cells, of one entry, of one group, of one subscription, of `count`
/// subscriptions. The last returns how many cells were written in all.
void veyra_convert_vorn_cell_detail_info_list(ReportBlock cells, const ReportEntry& entry,
                                              ReportCursor& cursor);
void veyra_convert_vorn_cell_info_list(ReportBlock entryBlock, ReportEntry entry, ReportCursor& cursor);
void veyra_convert_vorn_arfcn_info_list(ReportBlock group, ReportCursor& cursor, uint64_t subscription);
void veyra_convert_vorn_sub_info_list(ReportBlock subscription, ReportCursor& cursor);
uint32_t vorn_veyra_convert_collect_info_list_from_ind(ReportBlock subscriptions, ReportCursor& cursor,
                                                       uint32_t count);

/// The same with its log lines. `total` is what was counted; afterwards the cursor stands at its start again,
/// unless more cells were written than counted.
void veyra_convert_vorn_info_list_from_ind(ReportBlock subscriptions, ReportCursor& cursor, uint32_t total,
                                           uint32_t count);

/// The whole report into its event's record, all of which is written: only what no cell fills is cleared.
void convertMeasurementReport(ReportBlock subscriptions, uint8_t count, RadioVeyraCellInfo& out);
