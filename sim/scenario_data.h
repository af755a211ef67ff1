/// A scenario taken apart.
#pragma once

#include "fault.h"
#include "indication.h"
#include "slot.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <optional>
#include <vector>

namespace sim {

struct TimedIndication {
    std::chrono::milliseconds at{0}; ///< after the modem's start
    Indication indication;
};

struct ScenarioData {
    uint32_t seed = 0;
    std::optional<std::filesystem::path> nvFile; ///< its items are in the slots
    std::array<Slot, kSlots> slots;
    std::vector<Fault> faults;
    std::vector<TimedIndication> timeline; ///< in order of time
};

/// Throws ScenarioError.
ScenarioData readScenario(const nlohmann::json& json);

} // namespace sim
