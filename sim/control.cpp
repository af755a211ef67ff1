// Commands to the simulation itself.

#include "modem_state.h"

#include <algorithm>

namespace sim {

using nlohmann::json;

const Modem::State::ControlCommand Modem::State::kControlCommands[] = {
    {"state", &State::controlState},
    {"fault-add", &State::controlFaultAdd},
    {"fault-clear", &State::controlFaultClear},
    {"indicate", &State::controlIndicate},
    {"restart", &State::controlRestart},
    {"load", &State::controlLoad},
};

json Modem::State::control(const json& command, TimePoint now)
{
    json answer = {{"ok", true}};
    try {
        JsonNode arguments(command, "");
        const JsonNode name = arguments.member("command");
        const auto* known = std::ranges::find(kControlCommands, name.text(), &ControlCommand::name);
        if (known == std::end(kControlCommands)) {
            name.fail("unknown command");
        }
        (this->*known->run)(arguments, now, answer);
    } catch (const std::exception& error) {
        answer = {{"ok", false}, {"error", error.what()}};
    }
    return answer;
}

void Modem::State::controlState(JsonNode& arguments, TimePoint, json& answer)
{
    arguments.finish();
    answer["slots"] = json::array();
    for (const Slot& slot : mSlots) {
        answer["slots"].push_back(slotToJson(slot));
    }
}

void Modem::State::controlFaultAdd(JsonNode& arguments, TimePoint, json&)
{
    Fault fault = faultFromJson(arguments.member("fault"));
    arguments.finish();
    mFaults.add(std::move(fault));
}

void Modem::State::controlFaultClear(JsonNode& arguments, TimePoint, json&)
{
    arguments.finish();
    mFaults.clear();
}

void Modem::State::controlIndicate(JsonNode& arguments, TimePoint, json&)
{
    const Indication indication = indicationFromJson(arguments);
    arguments.finish();
    indicate(indication);
}

void Modem::State::controlRestart(JsonNode& arguments, TimePoint, json&)
{
    arguments.finish();
    restart(kRestartTime);
}

void Modem::State::controlLoad(JsonNode& arguments, TimePoint now, json&)
{
    const auto scenario = Scenario::fromJson(arguments.member("scenario").json());
    arguments.finish();
    load(readScenario(scenario.json()));
    mStart = now;
}

} // namespace sim
