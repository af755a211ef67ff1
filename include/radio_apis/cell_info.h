/// @file
/// \domain{Cells}
///
/// What the radio link looks like: serving cell, neighbours, RRC state (3GPP TS 36.331, TS 38.331).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetLteCellInfo.
struct RadioLteCellInfo {
    uint32_t arfcn;    ///< downlink EARFCN of the LTE cell (3GPP TS 36.101)
    uint32_t pci;      ///< physical cell identity, 0 to 503
    int32_t connected; ///< 1 when the modem reports an LTE connection, otherwise 0
};

/// A serving cell. The library passes the modem's words through as they are; the names tell what they stand
/// for. Signal values are two's complement: cast to int32_t.
struct RadioServingCell {
    uint32_t failure;       ///< 1 when the modem failed; the others are what came along
    uint32_t rat;           ///< 4: LTE, 5: NR
    uint32_t mcc;           ///< mobile country code of the PLMN (3GPP TS 23.003)
    uint32_t mnc;           ///< mobile network code of the PLMN
    uint32_t tac;           ///< tracking area code
    uint32_t pci;           ///< physical cell identity
    uint32_t arfcn;         ///< downlink EARFCN or NR-ARFCN
    uint32_t cellIdLow;     ///< cell identity, low 32 bits
    uint32_t cellIdHigh;    ///< cell identity, bits above them (NR has 36)
    uint32_t band;          ///< operating band
    uint32_t rsrp;          ///< reference signal received power, dBm
    uint32_t rsrq;          ///< reference signal received quality, dB
    uint32_t sinr;          ///< signal to interference and noise ratio, dB
    uint32_t rssi;          ///< received signal strength, dBm
    uint32_t dlBandwidth;   ///< downlink bandwidth, kHz
    uint32_t ulArfcn;       ///< uplink EARFCN or NR-ARFCN
    uint32_t ulBandwidth;   ///< uplink bandwidth, kHz
    uint32_t timingAdvance; ///< timing advance as the modem counts it
    uint32_t cqi;           ///< channel quality indicator, 0 to 15
    uint32_t rrcState;      ///< as RadioRrcStatus
    uint8_t mncDigits;      ///< number of digits of the MNC, 2 or 3
    uint8_t rxAntennas;     ///< receive antennas in use
    uint8_t txAntennas;     ///< transmit antennas in use
};

/// A neighbour cell, passed through like RadioServingCell.
struct RadioNeighbourCell {
    uint32_t rat;       ///< 4: LTE, 5: NR
    uint32_t arfcn;     ///< downlink EARFCN or NR-ARFCN
    uint32_t pci;       ///< physical cell identity
    uint32_t band;      ///< operating band
    uint32_t rsrp;      ///< dBm, two's complement
    uint32_t rsrq;      ///< dB, two's complement
    uint32_t sinr;      ///< dB, two's complement
    uint32_t cellIdLow; ///< cell identity, low 32 bits; 0 when not known
};
static_assert(sizeof(RadioNeighbourCell) == 32);

inline constexpr unsigned kRadioMaxNeighbourCells = 64; ///< that an answer holds

/// Result of radioGetAllCellularCellInfo.
struct RadioAllCellInfo {
    RadioServingCell serving; ///< the serving cell
    uint32_t neighbourCount;  ///< at most 64 in an answer; in an event as the modem has it
    RadioNeighbourCell neighbours[kRadioMaxNeighbourCells]; ///< the first `neighbourCount` count
};

/// Result of radioGetRRCStatus.
struct RadioRrcStatus {
    uint32_t status; ///< 1: idle, 2: connected, 3: inactive; 1 when the modem does not say
};

extern "C" {

/// Summary of the LTE cell. A failure of the modem is not told: the record is what its answer carried all the same,
/// and zero where that is nothing.
///
/// \fills{lteCellInfo}
/// \sent
RADIO_API int radioGetLteCellInfo(void* userData, RadioRequestCallback callback);

/// State of the radio resource control. A failure of the modem is not told: the status is then 1 unless its answer
/// carried another one.
///
/// \fills{rrcStatus}
/// \sent
RADIO_API int radioGetRRCStatus(void* userData, RadioRequestCallback callback);

/// The serving cell.
///
/// \fills{servingCellInfo}
/// \sent
RADIO_API int radioGetServingCellularCellInfo(void* userData, RadioRequestCallback callback);

/// The serving cell and its neighbours.
///
/// \fills{allCellInfo}
/// \sent
RADIO_API int radioGetAllCellularCellInfo(void* userData, RadioRequestCallback callback);

} // extern "C"
