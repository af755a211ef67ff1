/// What the modem is made of.
#pragma once

#include "consequences.h"
#include "periodic_reports.h"
#include "scenario_data.h"
#include "sim/modem.h"

#include <filesystem>
#include <map>
#include <optional>
#include <random>

namespace sim {

/// For how long its links are down when the modem restarts.
constexpr std::chrono::milliseconds kRestartTime{3'000};

struct Modem::DueAnswer {
    ClientId client;
    vorn_msg_hdr_t header;
    Fields fields;
    Consequences consequences = {}; ///< they come after it
};

struct Modem::State {
    explicit State(Output& links) : output(links) {}

    Output& output;
    std::array<Slot, kSlots> initialSlots;
    std::array<Slot, kSlots> slots;
    std::optional<std::filesystem::path> nvFile;
    FaultInjector faults{{}};
    std::mt19937 random;
    std::vector<TimedIndication> timeline;
    size_t nextIndication = 0;
    std::optional<TimePoint> start; ///< of the timeline; not before the modem is told the time
    std::multimap<TimePoint, DueAnswer> due;
    PeriodicReports reports;
};

} // namespace sim
