/// What messages cost: those of a few fields and of an array beside a round trip, and a large packed block beside the
/// same cells copied one by one into an array.
#include "inputs.h"
#include "radio_apis/network_action.h"
#include "round_trip.h"
#include "vs/action_cell.h"

#include <cstring>
#include <vector>

namespace {

using bench::kFirstTag;
constexpr uint16_t kElements = 64;

template <uint16_t kFields>
void build()
{
    vorn_msg_deinit(bench::messageOfNumbers(kFields));
}

template <uint16_t kFields>
void read()
{
    static vorn_msg_t* const message = bench::messageOfNumbers(kFields);
    for (uint16_t i = 0; i < kFields; ++i) {
        uint16_t size = 0;
        benchmark::DoNotOptimize(vorn_msg_get_val_ptr(message, kFirstTag + i, &size));
    }
}

vorn_msg_t* messageOfArray()
{
    vorn_msg_t* message = vorn_msg_init(0x3895, 1);
    vorn_msg_add_array(message, kFirstTag, kElements);
    for (uint16_t i = 0; i < kElements; ++i) {
        const uint32_t value = i;
        vorn_msg_add_idx(message, kFirstTag, i, sizeof value, &value);
    }
    return message;
}

void buildArray()
{
    vorn_msg_deinit(messageOfArray());
}

void readArray()
{
    static vorn_msg_t* const message = messageOfArray();
    const uint16_t count = vorn_msg_get_tlv_num(message, kFirstTag);
    for (uint16_t i = 0; i < count; ++i) {
        uint16_t size = 0;
        benchmark::DoNotOptimize(vorn_msg_get_idx_ptr(message, kFirstTag, i, &size));
    }
}

/// Both lists of an action, every cell with all that it can have.
const std::vector<RadioActionCellInfo>& fullCells()
{
    static const auto cells = [] {
        RadioActionCellInfo cell;
        std::memset(&cell, 1, sizeof cell);
        cell.cCount = kRadioMaxActionListEntries;
        cell.jCount = kRadioMaxActionListEntries;
        return std::vector<RadioActionCellInfo>(2 * size_t{kRadioMaxActionCells}, cell);
    }();
    return cells;
}

/// The cells as one packed block in one field.
void sendableBlock()
{
    vorn_vs_action_cells_s_type block{};
    copyRadioActionCellInfo(kRadioMaxActionCells, block.first.cells, fullCells().data());
    copyRadioActionCellInfo(kRadioMaxActionCells, block.second.cells,
                            fullCells().data() + kRadioMaxActionCells);
    vorn_msg_t* message = vorn_msg_init(0x3871, 1);
    vorn_msg_add_tlv(message, kFirstTag, sizeof block, &block);
    vorn_msg_deinit(message);
}

/// As many records, packed already, as an array.
void sendableArray()
{
    constexpr uint16_t kCells = 2 * kRadioMaxActionCells;
    static const std::vector<vorn_vs_action_cell_info_s_type> cells(kCells);
    vorn_msg_t* message = vorn_msg_init(0x3871, 1);
    vorn_msg_add_array(message, kFirstTag, kCells);
    for (uint16_t i = 0; i < kCells; ++i) {
        vorn_msg_add_idx(message, kFirstTag, i, sizeof cells[i], &cells[i]);
    }
    vorn_msg_deinit(message);
}

template <Way way>
void message(benchmark::State& state)
{
    openLibrary();
    comparePairs(state, way, bareRoundTrip);
}
BENCHMARK(message<build<3>>)->Name("messageBuilt3")->Unit(benchmark::kMillisecond);
BENCHMARK(message<build<10>>)->Name("messageBuilt10")->Unit(benchmark::kMillisecond);
BENCHMARK(message<read<3>>)->Name("messageRead3")->Unit(benchmark::kMillisecond);
BENCHMARK(message<read<10>>)->Name("messageRead10")->Unit(benchmark::kMillisecond);
BENCHMARK(message<buildArray>)->Name("arrayBuilt64")->Unit(benchmark::kMillisecond);
BENCHMARK(message<readArray>)->Name("arrayRead64")->Unit(benchmark::kMillisecond);

void block28046(benchmark::State& state)
{
    comparePairs(state, sendableBlock, sendableArray);
}
BENCHMARK(block28046)->Unit(benchmark::kMillisecond);

} // namespace
