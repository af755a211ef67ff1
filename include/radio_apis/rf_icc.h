/// @file
/// \domain{Coexistence with other radios}
///
/// Coexistence of the modem with the device's other radios.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

#pragma pack(push, 1)

/// One disturbed range of frequencies. As on the wire.
struct RfIccClatEntry {
    uint32_t freq;      ///< centre frequency of the disturbed range \unit{kHz}
    uint16_t bandwidth; ///< width of the disturbed range \unit{kHz}
    uint8_t level;      ///< how much the range is disturbed, as the modem defines it
};

/// Indicators of coexistence: the frequency in use, and what is disturbed. As on the wire.
struct RfIccClatKpi {
    uint32_t freq;              ///< frequency in use \unit{kHz}
    uint8_t num;                ///< number of disturbed ranges, at most 23
    uint8_t subPolicy;          ///< policy of the coexistence, as the modem defines it
    RfIccClatEntry entries[23]; ///< disturbed ranges \countedby{num}
};

/// An error of another radio. As on the wire.
struct RfIccDeviceErr {
    uint8_t type;     ///< kind of error, as the modem defines it
    uint8_t data[32]; ///< details of the error, as the modem defines them; all bytes are sent
};

#pragma pack(pop)

static_assert(sizeof(RfIccClatKpi) == 167);
static_assert(sizeof(RfIccDeviceErr) == 33);

/// Result of radioGetRfIccInfo.
struct RfIccInfo {
    uint8_t mode;  ///< mode of the coexistence, as the modem defines it
    uint16_t band; ///< band concerned, as the modem numbers it
};

extern "C" {

/// The state of the coexistence with other radios.
///
/// \fills{rfIccInfo}
/// \sent
RADIO_API int radioGetRfIccInfo(void* userData, RadioRequestCallback callback);

/// Tells the modem indicators of coexistence.
///
/// @param kpi  indicators of coexistence; sent as they are
/// \verdict
/// \sent
RADIO_API int radioSendRfIccClatKpi(const RfIccClatKpi& kpi, void* userData, RadioRequestCallback callback);

/// Tells the modem the modes of the other radios.
///
/// @param mode1  mode of the first radio, as the modem defines it
/// @param mode2  mode of the second radio, as the modem defines it
/// @param mode3  mode of the third radio, as the modem defines it
/// @param mode4  mode of the fourth radio, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSendRfIccModeState(unsigned char mode1, unsigned char mode2, unsigned char mode3,
                                      unsigned char mode4, void* userData, RadioRequestCallback callback);

/// Tells the modem of an error of another radio.
///
/// @param error  error of the other radio; sent as it is
/// \verdict
/// \sent
RADIO_API int radioSendRfIccDeviceErr(const RfIccDeviceErr& error, void* userData,
                                      RadioRequestCallback callback);

} // extern "C"
