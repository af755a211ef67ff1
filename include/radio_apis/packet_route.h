/// @file
/// \domain{Packet routes}
///
/// Which way packets take.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetDataActPacketRoute and radioGetDataIfupPacketRoute.
struct RadioPacketRoute {
    uint32_t failure; ///< 1 when the modem reported a failure, otherwise 0
    uint32_t route;   ///< as the modem numbers it, 0 to 255
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
