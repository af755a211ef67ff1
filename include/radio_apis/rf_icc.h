/// @file
/// \domain{Coexistence with other radios}
///
/// Coexistence of the modem with the device's other radios.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

#pragma pack(push, 1)

/// One disturbed range. As on the wire.
struct RfIccClatEntry {
    uint32_t freq;      ///< centre frequency, kHz
    uint16_t bandwidth; ///< kHz
    uint8_t level;      ///< how much it is disturbed
};

/// Indicators of coexistence. As on the wire.
struct RfIccClatKpi {
    uint32_t freq;              ///< frequency in use, kHz
    uint8_t num;                ///< entries that count
    uint8_t subPolicy;          ///< passed through
    RfIccClatEntry entries[23]; ///< the first `num` count
};

/// An error of another radio. As on the wire.
struct RfIccDeviceErr {
    uint8_t type;     ///< kind of error
    uint8_t data[32]; ///< details, passed through
};

#pragma pack(pop)

static_assert(sizeof(RfIccClatKpi) == 167);
static_assert(sizeof(RfIccDeviceErr) == 33);

/// Result of radioGetRfIccInfo.
struct RfIccInfo {
    uint8_t mode;  ///< as the modem defines it
    uint16_t band; ///< as the modem defines it
};

extern "C" {

/// The state of the coexistence.
///
/// \fills{rfIccInfo}
/// \sent
RADIO_API int radioGetRfIccInfo(void* userData, RadioRequestCallback callback);

/// Tells the modem indicators.
///
/// @param kpi  sent as it is
/// \verdict
/// \sent
RADIO_API int radioSendRfIccClatKpi(const RfIccClatKpi& kpi, void* userData, RadioRequestCallback callback);

/// Tells the modem modes of the other radios.
///
/// @param mode1  passed through, as the others
/// @param mode2  see `mode1`
/// @param mode3  see `mode1`
/// @param mode4  see `mode1`
/// \verdict
/// \sent
RADIO_API int radioSendRfIccModeState(unsigned char mode1, unsigned char mode2, unsigned char mode3,
                                      unsigned char mode4, void* userData, RadioRequestCallback callback);

/// Tells the modem an error of another radio.
///
/// @param error  sent as it is
/// \verdict
/// \sent
RADIO_API int radioSendRfIccDeviceErr(const RfIccDeviceErr& error, void* userData,
                                      RadioRequestCallback callback);

} // extern "C"
