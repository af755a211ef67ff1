/// The state of one slot of the modem: what is in it, where it camps, what was set.
#pragma once

#include "bands.h"
#include "cell.h"
#include "nv_items.h"
#include "sim_card.h"
#include "stored_settings.h"

#include <array>
#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace sim {

/// The parameters last set by AT commands, by command name; one that was never set has the value of the
/// command table.
using AtValues = std::map<std::string, std::vector<std::string>, std::less<>>;

/// What +CFUN and +EFUN tell of the radio. Each moves the other.
struct RadioMode {
    std::string level = "1";   ///< +CFUN: 0 minimum, 1 full, 4 radio off
    std::string slotsOn = "3"; ///< +EFUN: 1 to 3 at level 1, else 0
};

struct Slot {
    int number = 0;
    Plmn plmn;
    SimCard card;
    std::vector<int32_t> simTrays; ///< of the whole device
    std::optional<Cell> serving;
    std::optional<Cell> lteAnchor; ///< when NR is served next to LTE
    std::vector<Cell> neighbours;
    NvItems nv;
    StoredSettings settings;
    AtValues at;
    Bands bands = supportedBands();
    std::chrono::steady_clock::time_point now; ///< when the request came that is being carried out
    std::chrono::milliseconds modeChangeTime{
        0}; ///< how long AT+EFUN? still tells the mode before the last AT+EFUN=
    RadioMode mode;
    RadioMode modeBefore;
    std::chrono::steady_clock::time_point modeKnownFrom;
    std::map<uint16_t, uint32_t> indicationsSent; ///< how often, by message id
    uint32_t metricsReadings = 0;
    uint32_t previousMcc = 0; ///< of the network it was registered in before; 0: none

    bool radioOn() const { return mode.level == "1"; }

    /// Moves to a level at once.
    void setLevel(std::string level);

    /// The cell it camps on; null without service.
    const Cell* camped() const;

    /// How often an indication was sent, by its message id.
    uint32_t timesIndicated(uint16_t id) const;

    /// The country it is registered in; 0 without service.
    uint32_t servedMcc() const;

    /// The LTE cell among those it uses; null when there is none.
    const Cell* lteCell() const;
};

/// Slot `number` of a scenario; reads the members that describe its state only. Throws ScenarioError.
Slot slotFromJson(JsonNode& node, int number);

/// What `control` shows of a slot.
nlohmann::json slotToJson(const Slot& slot);

} // namespace sim
