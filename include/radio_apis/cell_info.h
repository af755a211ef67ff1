/// @file
/// \domain{Cells}
///
/// What the radio link looks like: serving cell, neighbours, RRC state (3GPP TS 36.331, TS 38.331).
#pragma once

#include "radio_apis/rat.h"
#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetLteCellInfo: a summary of the LTE cell.
struct RadioLteCellInfo {
    uint32_t arfcn;    ///< downlink EARFCN of the LTE cell (3GPP TS 36.101)
    uint32_t pci;      ///< physical cell identity \range{0 to 503}
    int32_t connected; ///< whether the modem reports an LTE connection \values{0: no, 1: yes}
};

/// Result of radioGetServingCellularCellInfo: the serving cell. The library passes the modem's words through as they
/// are; the names tell what they stand for.
struct RadioServingCell {
    uint32_t failure;       ///< whether the modem failed, 1 or 0 \failure; the others are what came along
    uint32_t rat;           ///< radio access technology \values{RADIO_RAT_LTE, RADIO_RAT_NR}
    uint32_t mcc;           ///< mobile country code of the PLMN (3GPP TS 23.003)
    uint32_t mnc;           ///< mobile network code of the PLMN
    uint32_t tac;           ///< tracking area code
    uint32_t pci;           ///< physical cell identity
    uint32_t arfcn;         ///< downlink EARFCN or NR-ARFCN
    uint32_t cellIdLow;     ///< cell identity, low 32 bits
    uint32_t cellIdHigh;    ///< cell identity, bits above the low 32 (NR has 36)
    uint32_t band;          ///< operating band
    uint32_t rsrp;          ///< reference signal received power \unit{dBm} \signed
    uint32_t rsrq;          ///< reference signal received quality \unit{dB} \signed
    uint32_t sinr;          ///< signal to interference and noise ratio \unit{dB} \signed
    uint32_t rssi;          ///< received signal strength \unit{dBm} \signed
    uint32_t dlBandwidth;   ///< downlink bandwidth \unit{kHz}
    uint32_t ulArfcn;       ///< uplink EARFCN or NR-ARFCN
    uint32_t ulBandwidth;   ///< uplink bandwidth \unit{kHz}
    uint32_t timingAdvance; ///< timing advance, as the modem counts it
    uint32_t cqi;           ///< channel quality indicator \range{0 to 15}
    uint32_t rrcState;      ///< state of the radio resource control \values{RadioRrcState}
    uint8_t mncDigits;      ///< number of digits of the MNC \range{2 to 3}
    uint8_t rxAntennas;     ///< number of receive antennas in use
    uint8_t txAntennas;     ///< number of transmit antennas in use
};

/// A neighbour cell. As on the wire.
struct RadioNeighbourCell {
    uint32_t rat;       ///< radio access technology \values{RADIO_RAT_LTE, RADIO_RAT_NR}
    uint32_t arfcn;     ///< downlink EARFCN or NR-ARFCN
    uint32_t pci;       ///< physical cell identity
    uint32_t band;      ///< operating band
    uint32_t rsrp;      ///< reference signal received power \unit{dBm} \signed
    uint32_t rsrq;      ///< reference signal received quality \unit{dB} \signed
    uint32_t sinr;      ///< signal to interference and noise ratio \unit{dB} \signed
    uint32_t cellIdLow; ///< cell identity, low 32 bits; 0 when not known
};
static_assert(sizeof(RadioNeighbourCell) == 32);

inline constexpr unsigned kRadioMaxNeighbourCells = 64; ///< neighbours in one answer

/// Result of radioGetAllCellularCellInfo: the serving cell and its neighbours.
struct RadioAllCellInfo {
    RadioServingCell serving; ///< serving cell
    uint32_t neighbourCount;  ///< number of neighbours, at most 64; in an event as the modem has it
    RadioNeighbourCell neighbours[kRadioMaxNeighbourCells]; ///< neighbour cells \countedby{neighbourCount}
};

/// Result of radioGetRRCStatus: the state of the radio resource control.
struct RadioRrcStatus {
    /// state of the radio resource control \values{RadioRrcState}; idle when the modem does not say
    uint32_t status;
};

extern "C" {

/// A summary of the LTE cell. A failure of the modem is not told: the record is what its answer carried all the same,
/// and zero where that is nothing.
///
/// \fills{lteCellInfo}
/// \sent
RADIO_API int radioGetLteCellInfo(void* userData, RadioRequestCallback callback);

/// The state of the radio resource control. A failure of the modem is not told: the status is then idle unless its
/// answer carried another one.
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
