#include "support/fields.h"
#include "support/log_capture.h"
#include "vs/measurement_report.h"

#include <gmock/gmock.h>

using namespace test;

namespace {

/// Puts a number into a block.
template <typename Number>
void put(Bytes& block, size_t offset, Number value)
{
    std::memcpy(block.data() + offset, &value, sizeof value);
}

/// How many groups, entries and cells each subscription claims; every record is filled, whatever is claimed.
Bytes report(size_t subscriptions, uint8_t groups, uint8_t entries, uint8_t cells, uint8_t plmnValid = 1)
{
    Bytes block(subscriptions * 2172);
    for (size_t s = 0; s < subscriptions; ++s) {
        const size_t subscription = s * 2172;
        put(block, subscription, uint64_t{100 + s});
        block[subscription + 8] = groups;
        for (size_t g = 0; g < 2; ++g) {
            const size_t group = subscription + 12 + g * 1080;
            block[group + 2] = 2;
            block[group + 3] = entries;
            put(block, group + 4, uint16_t{0x460});
            put(block, group + 6, uint16_t{0x001});
            put(block, group + 8, uint64_t{200 + g});
            for (size_t e = 0; e < 10; ++e) {
                const size_t entry = group + 20 + e * 106;
                put(block, entry, static_cast<uint32_t>(1000 * s + 100 * g + 10 * e));
                block[entry + 4] = 4;
                block[entry + 5] = cells;
                put(block, entry + 6, int16_t{-3});
                for (size_t c = 0; c < 8; ++c) {
                    const size_t cell = entry + 10 + c * 12;
                    put(block, cell, static_cast<uint16_t>(c));
                    block[cell + 2] = 7;
                    block[cell + 3] = plmnValid;
                    put(block, cell + 4, int16_t{-85});
                    put(block, cell + 6, int16_t{-10});
                    put(block, cell + 8, int16_t{18});
                    put(block, cell + 10, uint16_t{99});
                }
            }
        }
    }
    return block;
}

std::unique_ptr<RadioVeyraCellInfo> convert(const Bytes& block, uint8_t count)
{
    auto out = std::make_unique<RadioVeyraCellInfo>();
    convertMeasurementReport(block, count, *out);
    return out;
}

} // namespace

TEST(MeasurementReport, ConvertsDigits)
{
    const std::pair<uint16_t, int> mccs[] = {{0x460, 460}, {0x001, 1},   {0x999, 999}, {0x99A, 0},
                                             {0xFFFF, 0},  {0x4AF, 515}, {0, 0}};
    for (const auto& [digits, expected] : mccs) {
        EXPECT_EQ(veyra_convert_mcc(digits), expected) << digits;
    }
    const std::tuple<int16_t, uint8_t, int> mncs[] = {{0x001, 2, 1},   {0x123, 3, 123}, {0x123, 2, 23},
                                                      {0x123, 1, 3},   {0x123, 0, 0},   {0x123, 255, 123},
                                                      {0x999, 3, 999}, {0x99A, 3, 0},   {-1, 3, 0}};
    for (const auto& [digits, count, expected] : mncs) {
        EXPECT_EQ(veyra_convert_mnc(digits, count), expected) << digits << " " << int{count};
    }
}

TEST(MeasurementReport, FillsACellFromAllLevels)
{
    for (uint8_t valid = 0; valid <= 3; ++valid) {
        const auto out = convert(report(1, 2, 1, 1, valid), 1);
        ASSERT_EQ(out->count, 2u);
        const RadioVeyraCell& cell = out->cells[1];
        const bool hasPlmn = valid == 1 || valid == 2;
        EXPECT_EQ(cell.rat, 4);
        EXPECT_EQ(cell.subscription, 100u);
        EXPECT_EQ(cell.group, hasPlmn ? 201u : 0u);
        EXPECT_EQ(cell.mcc, hasPlmn ? 460 : 0);
        EXPECT_EQ(cell.mnc, hasPlmn ? 1 : 0);
        EXPECT_EQ(cell.arfcn, 100u);
        EXPECT_EQ(cell.beam, 7);
        EXPECT_EQ(cell.rsrp, -85);
        EXPECT_EQ(cell.rsrq, -10);
        EXPECT_EQ(cell.sinr, 18);
        EXPECT_EQ(cell.quality, 99);
        EXPECT_EQ(cell.offset, -3);
        EXPECT_EQ(cell.reserved1, 0u);
    }
    Bytes tooLarge = report(1, 1, 1, 1);
    put(tooLarge, 12 + 6, uint16_t{0x99A});
    EXPECT_EQ(convert(tooLarge, 1)->cells[0].mnc, 0);
}

TEST(MeasurementReport, CutsCounts)
{
    const struct {
        size_t subscriptions;
        uint8_t count, groups, entries, cells;
        uint32_t delivered;
        const char* log; ///< how the walk ended
    } cases[] = {
        {1, 1, 1, 1, 12, 8, "consumed cells:[8] "},     {1, 1, 1, 15, 1, 10, "consumed cells:[10] "},
        {1, 1, 2, 3, 2, 12, "consumed cells:[12] "},    {1, 1, 7, 3, 2, 12, "consumed cells:[12] "},
        {1, 1, 0, 3, 2, 0, "consumed more cells:[6] "}, // the first group is walked all the same
        {2, 2, 2, 10, 8, 200, "consumed cells:[200] "}, {12, 12, 1, 1, 1, 10, "consumed more cells:[12] "},
        {1, 5, 1, 1, 1, 1, "consumed cells:[1] "}, // four of them are missing
        {1, 0, 2, 10, 8, 0, "consumed cells:[0] "},     {0, 1, 0, 0, 0, 0, nullptr},
    };
    for (const auto& row : cases) {
        LogCapture log;
        const auto out = convert(report(row.subscriptions, row.groups, row.entries, row.cells), row.count);
        EXPECT_EQ(out->count, row.delivered);
        if (row.log != nullptr) {
            EXPECT_TRUE(log.has(
                std::string("D VornVsClientEvent: Veyra:_veyra_convert_vorn_cell_info_list ") + row.log))
                << row.log;
        }
    }
    const auto most = convert(report(2, 2, 10, 8), 2);
    for (uint32_t i = 0; i < 200; ++i) { // in the order of the walk
        EXPECT_EQ(most->cells[i].arfcn, i / 160 * 1000 + i % 160 / 80 * 100 + i % 80 / 8 * 10);
        EXPECT_EQ(most->cells[i].pci, i % 8);
    }
    LogCapture log;
    RadioVeyraCellInfo out{};
    convertMeasurementReport({}, 1, out);
    EXPECT_TRUE(log.has("E VornVsClientEvent: vorn_vs_veyra_get_data - error"));
    EXPECT_TRUE(log.has("D VornVsClientEvent: NULL parameters passed"));
}

TEST(MeasurementReport, YieldsWhatIsWhollyThere)
{
    const Bytes whole = report(1, 2, 10, 8);
    uint32_t last = 0;
    for (size_t size = 0; size <= whole.size(); ++size) {
        const Bytes block(whole.begin(),
                          whole.begin() + static_cast<long>(size)); // on the heap: overruns are seen
        const auto out = convert(block, 1);
        EXPECT_GE(out->count, last);
        last = out->count;
        for (uint32_t i = 0; i < out->count; ++i) {
            ASSERT_EQ(out->cells[i].quality, 99) << size; // a cell's last bytes
        }
    }
    EXPECT_EQ(last, 160u);
    ReportCursor cursor{nullptr};
    veyra_convert_vorn_info_list_from_ind(whole, cursor, 160, 1);
    EXPECT_EQ(cursor.produced, 0u);
}
