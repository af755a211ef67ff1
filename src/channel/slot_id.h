/// Instance numbers of this library and slot bits of the modem library.
#pragma once

#include <cstdint>

/// The slot bit of an instance: 1 gives 2, 2 gives 4, 3 gives 8, everything else 1.
constexpr uint8_t changeToVornSlotId(int instance)
{
    return instance >= 1 && instance <= 3 ? static_cast<uint8_t>(1 << instance) : uint8_t{1};
}

/// The number of a slot bit, of which only the low four bits count: 2 gives 1, 4 gives 2, 8 gives 3,
/// everything else 0. Slot bits count from 0 here although instance 0 has bit 1: the modem's numbering, kept
/// for its log lines.
constexpr int changeToSlotId(uint8_t slotId)
{
    switch (slotId & 0x0F) {
    case 2:
        return 1;
    case 4:
        return 2;
    case 8:
        return 3;
    default:
        return 0;
    }
}
