/// A scenario taken apart.
#pragma once

#include "fault.h"
#include "indication.h"
#include "slot.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace sim {

struct TimedIndication {
    std::chrono::milliseconds at{0}; ///< after the modem's start
    Indication indication;
};

/// An AT command that the modem carries out before anything else.
struct StartCommand {
    int slot = 0;
    std::string command;
    std::string place; ///< in the scenario
};

struct ScenarioData {
    uint32_t seed = 0;
    std::optional<std::filesystem::path> nvFile; ///< its items are in the slots
    std::array<Slot, kSlots> slots;
    std::vector<StartCommand> commands;
    std::vector<Fault> faults;
    std::vector<TimedIndication> timeline; ///< in order of time
};

/// Throws ScenarioError.
ScenarioData readScenario(const nlohmann::json& json);

/// The slots of a modem that has carried out the scenario's commands. Throws ScenarioError when it refuses one.
std::array<Slot, kSlots> slotsAtStart(const ScenarioData& scenario);

} // namespace sim
