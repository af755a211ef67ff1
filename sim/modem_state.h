/// The inside of the modem.
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

class Modem::State {
public:
    State(const Scenario& scenario, Output& output);

    void receive(ClientId client, const vorn_msg_t& request, TimePoint now);
    std::optional<TimePoint> nextDeadline() const;
    void advance(TimePoint now);
    void forget(ClientId client);

    nlohmann::json control(const nlohmann::json& command, TimePoint now);

private:
    static constexpr std::chrono::milliseconds kRestartTime{3'000};

    struct DueAnswer {
        ClientId client;
        vorn_msg_hdr_t header;
        Fields fields;
        Consequences consequences = {}; ///< they come after it
    };

    /// Puts an answer on its way, or what a fault makes of it.
    void send(DueAnswer due, const std::optional<Fault>& fault, TimePoint now);
    void deliver(const DueAnswer& due);
    void follow(const DueAnswer& due, TimePoint now);
    void indicate(const Indication& indication);

    void load(ScenarioData scenario);
    void disconnect(std::chrono::milliseconds downFor);

    /// Drops the links; the slots are as the scenario has them again, except for their NV items and what the
    /// SIM cards remember.
    void restart(std::chrono::milliseconds downFor);

    /// What control() can be told to do. Each reads its arguments and adds to the answer.
    struct ControlCommand {
        const char* name;
        void (State::*run)(JsonNode& arguments, TimePoint now, nlohmann::json& answer);
    };
    static const ControlCommand kControlCommands[];
    void controlState(JsonNode& arguments, TimePoint now, nlohmann::json& answer);
    void controlFaultAdd(JsonNode& arguments, TimePoint now, nlohmann::json& answer);
    void controlFaultClear(JsonNode& arguments, TimePoint now, nlohmann::json& answer);
    void controlIndicate(JsonNode& arguments, TimePoint now, nlohmann::json& answer);
    void controlRestart(JsonNode& arguments, TimePoint now, nlohmann::json& answer);
    void controlLoad(JsonNode& arguments, TimePoint now, nlohmann::json& answer);

    /// Keeps the NV items in the scenario's file, if it names one; whether that went well.
    bool saveNv() const;

    Output& mOutput;
    std::array<Slot, kSlots> mInitialSlots;
    std::array<Slot, kSlots> mSlots;
    std::optional<std::filesystem::path> mNvFile;
    FaultInjector mFaults{{}};
    std::mt19937 mRandom;
    std::vector<TimedIndication> mTimeline;
    size_t mNextIndication = 0;
    std::optional<TimePoint> mStart; ///< of the timeline; not before the modem is told the time
    std::multimap<TimePoint, DueAnswer> mDue;
    PeriodicReports mReports;
};

} // namespace sim
