// Commands to the simulation itself.

#include "modem_state.h"

#include <algorithm>

namespace sim {

using nlohmann::json;

json Modem::control(const json& command, TimePoint now)
{
    /// Reads its arguments and adds to the answer.
    struct Command {
        std::string_view name;
        void (*run)(Modem& modem, JsonNode& arguments, TimePoint now, json& answer);
    };
    static constexpr Command kCommands[] = {
        {"state",
         [](Modem& modem, JsonNode& arguments, TimePoint, json& answer) {
             arguments.finish();
             answer["slots"] = json::array();
             for (const Slot& slot : modem.mState->slots) {
                 answer["slots"].push_back(slotToJson(slot));
             }
         }},
        {"fault-add",
         [](Modem& modem, JsonNode& arguments, TimePoint, json&) {
             Fault fault = faultFromJson(arguments.member("fault"));
             arguments.finish();
             modem.mState->faults.add(std::move(fault));
         }},
        {"fault-clear",
         [](Modem& modem, JsonNode& arguments, TimePoint, json&) {
             arguments.finish();
             modem.mState->faults.clear();
         }},
        {"indicate",
         [](Modem& modem, JsonNode& arguments, TimePoint, json&) {
             const Indication indication = indicationFromJson(arguments);
             arguments.finish();
             modem.indicate(indication);
         }},
        {"restart",
         [](Modem& modem, JsonNode& arguments, TimePoint, json&) {
             arguments.finish();
             modem.restart(kRestartTime);
         }},
        {"load",
         [](Modem& modem, JsonNode& arguments, TimePoint start, json&) {
             const auto scenario = Scenario::fromJson(arguments.member("scenario").json());
             arguments.finish();
             modem.load(readScenario(scenario.json()));
             modem.mState->start = start;
         }},
    };

    json answer = {{"ok", true}};
    try {
        JsonNode arguments(command, "");
        const JsonNode name = arguments.member("command");
        const auto* known = std::ranges::find(kCommands, name.text(), &Command::name);
        if (known == std::end(kCommands)) {
            name.fail("unknown command");
        }
        known->run(*this, arguments, now, answer);
    } catch (const UnknownName& error) {
        answer = {{"ok", false}, {"error", error.what()}, {"known", error.known()}};
    } catch (const std::exception& error) {
        answer = {{"ok", false}, {"error", error.what()}};
    }
    return answer;
}

std::string Modem::control(const std::string& command, TimePoint now)
{
    json answer;
    try {
        answer = control(json::parse(command), now);
    } catch (const json::exception& error) {
        answer = {{"ok", false}, {"error", error.what()}};
    }
    return answer.dump(-1, ' ', false, json::error_handler_t::replace);
}

} // namespace sim
