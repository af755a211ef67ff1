/// What the files of the standard client share.
#pragma once

#include "radio/vorn_radio_client.h"
#include "zor/log.h"

#include <algorithm>

namespace radio {

inline constexpr char kTag[] = "VornRadioClient";

/// The name under which handlers of answers log.
inline constexpr char kHandler[] = "operator()";

/// Copies a field of the modem's to an array, as much as fits and at most `limit` bytes; returns how much.
template <size_t size>
uint32_t fill(uint8_t (&to)[size], std::span<const uint8_t> from, size_t limit = size)
{
    const size_t length = std::min({from.size(), limit, size});
    copyBytes(from.first(length), 0, to);
    return static_cast<uint32_t>(length);
}

/// 1 when the modem reported a failure.
inline uint32_t failureOf(const VornView& answer)
{
    return answer.getResult() != 0;
}

inline constexpr int kQuarterStepRat = 4; ///< its thresholds are counted in quarters
inline constexpr int kWholeStepRat = 7;

/// Whether the modem has thresholds for a radio access technology.
constexpr bool hasThresholds(int rat)
{
    return rat == kQuarterStepRat || rat == kWholeStepRat;
}

} // namespace radio

/// Ids of the standard messages.
namespace RadioMessage {

inline constexpr uint16_t GetTxCarkit = 29;
inline constexpr uint16_t WriteNv = 51;
inline constexpr uint16_t ReadNv = 53;
inline constexpr uint16_t SendDeviceStateExt = 225;
inline constexpr uint16_t GetMsimSubModeState = 555;
inline constexpr uint16_t GetDataActPacketRoute = 607;
inline constexpr uint16_t GetDataIfupPacketRoute = 609;
inline constexpr uint16_t SyncImsRtpRedunDataPathConfig = 621;
inline constexpr uint16_t GetOperationMode = 1025;
inline constexpr uint16_t SetOperationMode = 1027;
inline constexpr uint16_t SetFastDormancyTimer = 1055;
inline constexpr uint16_t IccSimAuthentication = 1333;
inline constexpr uint16_t SetUimPower = 1353;
inline constexpr uint16_t GetImsRtpRedun = 2429; ///< the capability or a public key, as field 256 says
inline constexpr uint16_t SetImsRtpRedun = 2431; ///< a remote public key or control, by the fields present
inline constexpr uint16_t ConfigCellBarringParam = 4373;
inline constexpr uint16_t ClearForbiddenTai = 4415;
inline constexpr uint16_t PerformPlmnUnblock = 4427;
inline constexpr uint16_t SetImbState = 4429;
inline constexpr uint16_t SetRatThresholds = 4437; ///< of DSDA or of IDC, by the fields present
inline constexpr uint16_t SetOosSnifferCfg = 4469;

} // namespace RadioMessage
