/// @file
/// \domain{Packet routes}
///
/// Which way the packets of data connections take.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetDataActPacketRoute and radioGetDataIfupPacketRoute.
struct RadioPacketRoute {
    uint32_t failure; ///< whether the modem reported a failure: 1, otherwise 0 \failure
    uint32_t route;   ///< route of the packets, as the modem numbers it \range{0 to 255}
};

extern "C" {

/// The route of packets on activated data connections.
///
/// \fills{packetRoute}
/// \sent
RADIO_API int radioGetDataActPacketRoute(void* userData, RadioRequestCallback callback);

/// The route of packets on network interfaces that are up.
///
/// \fills{packetRoute}
/// \sent
RADIO_API int radioGetDataIfupPacketRoute(void* userData, RadioRequestCallback callback);

} // extern "C"
