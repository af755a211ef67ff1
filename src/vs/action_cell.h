/// How a network action's cells lie in its message: packed, and in part only when present.
#pragma once

#include "radio_apis/network_action.h"

#include <cstddef>
#include <cstdint>

#pragma pack(push, 1)

struct vorn_vs_action_list_entry_s_type {
    uint16_t value1;
    uint16_t value2;
    uint8_t value3;
};

struct vorn_vs_action_cell_info_s_type {
    uint16_t value1;
    uint16_t value2;
    uint8_t value3;
    uint32_t value4;
    uint8_t value5;
    uint32_t value6;
    uint16_t value7;
    uint8_t value8;
    uint64_t value9;
    uint8_t aPresent;
    uint32_t a;
    uint8_t bPresent;
    uint32_t b;
    uint8_t cCount;
    uint32_t c[kRadioMaxActionListEntries];
    uint8_t dPresent;
    uint32_t d;
    uint8_t ePresent;
    uint32_t e;
    uint8_t fPresent;
    uint32_t f;
    uint8_t gPresent;
    uint32_t g[2];
    uint8_t hPresent;
    uint32_t h[3];
    uint8_t iPresent;
    uint8_t jCount;
    vorn_vs_action_list_entry_s_type j[kRadioMaxActionListEntries];
};

struct vorn_vs_action_cell_list_s_type {
    uint8_t present;
    uint8_t count;
    vorn_vs_action_cell_info_s_type cells[kRadioMaxActionCells];
};

/// The block that carries all cells of an action.
struct vorn_vs_action_cells_s_type {
    uint32_t header;
    uint8_t headerByte;
    uint8_t optionalPresent;
    uint32_t optional;
    vorn_vs_action_cell_list_s_type first;
    vorn_vs_action_cell_list_s_type second;
};

#pragma pack(pop)

static_assert(sizeof(vorn_vs_action_cell_info_s_type) == 219);
static_assert(offsetof(vorn_vs_action_cells_s_type, first.cells) == 12);
static_assert(offsetof(vorn_vs_action_cells_s_type, second) == 14028);
static_assert(sizeof(vorn_vs_action_cells_s_type) == 28046);

/// Fills `count` zeroed records from the caller's. What is not present stays zero; counts are cut to what a
/// record holds.
void copyRadioActionCellInfo(uint8_t count, vorn_vs_action_cell_info_s_type* out,
                             const RadioActionCellInfo* in);
