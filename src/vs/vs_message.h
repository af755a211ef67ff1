/// Ids of the vendor messages.
#pragma once

#include <cstdint>

namespace VsMessage {

inline constexpr uint16_t SendScreenState = 0x3801;
inline constexpr uint16_t SetMicroMotionState = 0x3805;
inline constexpr uint16_t GetLteCellInfo = 0x3813;
inline constexpr uint16_t GetServingCellularCellInfo = 0x381F;
inline constexpr uint16_t GetAllCellularCellInfo = 0x3821;
inline constexpr uint16_t GetRRCStatus = 0x3825;
inline constexpr uint16_t SetSarState = 0x3895;

} // namespace VsMessage
