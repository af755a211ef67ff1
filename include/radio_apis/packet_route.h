/// @file
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
/// @param userData  handed to `callback`
/// @param callback  called once with RADIO_APIS_SUCCESS, whatever the modem said, and `rsp.packetRoute`
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioGetDataActPacketRoute(void* userData, RadioRequestCallback callback);

/// The route of packets on network interfaces that are up.
///
/// @param userData  handed to `callback`
/// @param callback  called once with RADIO_APIS_SUCCESS, whatever the modem said, and `rsp.packetRoute`
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioGetDataIfupPacketRoute(void* userData, RadioRequestCallback callback);

} // extern "C"
