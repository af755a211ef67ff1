/// A cell as the modem sees it, and its form in scenarios and answers.
#pragma once

#include "value.h"

namespace sim {

enum class Rat : uint32_t { None = 0, Lte = 4, Nr = 5 };
enum class RrcState : uint32_t { Idle = 1, Connected = 2, Inactive = 3 };

struct Cell {
    Rat rat = Rat::None;
    uint32_t tac = 0;
    uint32_t pci = 0;
    uint32_t arfcn = 0; ///< downlink: EARFCN or NR-ARFCN
    uint64_t identity = 0;
    uint32_t band = 0;
    int32_t rsrp = 0;       ///< dBm
    int32_t rsrq = 0;       ///< dB
    int32_t sinr = 0;       ///< dB
    int32_t rssi = 0;       ///< dBm
    uint32_t bandwidth = 0; ///< kHz
    uint32_t uplinkArfcn = 0;
    uint32_t uplinkBandwidth = 0;
    uint32_t timingAdvance = 0;
    uint32_t cqi = 0;
    RrcState rrc = RrcState::Idle;
    uint8_t rxAntennas = 0;
    uint8_t txAntennas = 0;
};

struct Plmn {
    uint32_t mcc = 0;
    uint32_t mnc = 0;
    uint8_t mncDigits = 2;
};

Plmn plmnFromJson(JsonNode node);
Cell servingCellFromJson(JsonNode node);
Cell neighbourFromJson(JsonNode node);

/// The blocks that answers and indications carry: 83 bytes and 32 bytes.
Bytes servingCellBlock(const Cell& cell, const Plmn& plmn);
Bytes neighbourBlock(const Cell& cell);

nlohmann::json cellToJson(const Cell& cell);

} // namespace sim
