/// The standard indications and the events they become.
#pragma once

#include "channel/rpc_client.h"

#include <array>

namespace RadioIndication {

inline constexpr int MsimSubMode = 0x4213;
inline constexpr int DataIfupPacketRoute = 0x4220;
inline constexpr int NwEtxPower = 0x4421;
inline constexpr int CallRtpSessionMlc = 0x492B;

} // namespace RadioIndication

extern const std::array<rpcEventHandlerMap, 4> kRadioIndications;
