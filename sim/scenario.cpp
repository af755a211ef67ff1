#include "sim/scenario.h"

#include "embedded.h"
#include "scenario_data.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace sim {
namespace {

using nlohmann::json;

constexpr size_t kMaxListed = 10'000;
constexpr size_t kMaxCommands = 4096;
constexpr uint32_t kMaxTime = 24 * 60 * 60 * 1000;

const json& builtInJson()
{
    // Never destroyed: the process may end while the modem is in use.
    static const json& parsed = *new json(json::parse(embedded::defaultScenario));
    return parsed;
}

/// The built-in scenario with the changes of another laid over it: objects member by member, slots one by
/// one, every other list as a whole. A null removes what is built in.
json laidOverBuiltIn(const json& changes)
{
    json merged = builtInJson();
    json others = changes;
    const auto slots = others.find("slots");
    if (slots != others.end() && slots->is_array() && slots->size() <= merged["slots"].size()) {
        for (size_t i = 0; i < slots->size(); ++i) {
            merged["slots"][i].merge_patch((*slots)[i]);
        }
        others.erase(slots);
    }
    merged.merge_patch(others);
    return merged;
}

} // namespace

ScenarioData readScenario(const json& scenarioJson)
{
    ScenarioData scenario;
    JsonNode root(scenarioJson, "");
    scenario.seed = root.member("seed").number<uint32_t>();

    std::vector<int32_t> trays;
    for (const JsonNode& tray : root.member("simTrays").items(kSlots)) {
        trays.push_back(tray.number<int32_t>());
    }
    auto slots = root.member("slots").items(kSlots);
    if (slots.size() != kSlots) {
        root.member("slots").fail("must have " + std::to_string(kSlots) + " entries");
    }
    for (int i = 0; i < kSlots; ++i) {
        JsonNode& node = slots.at(static_cast<size_t>(i));
        Slot& slot = scenario.slots.at(static_cast<size_t>(i));
        slot = slotFromJson(node, i);
        slot.simTrays = trays;
        for (const JsonNode& command : node.member("at").items(kMaxCommands)) {
            scenario.commands.push_back({i, command.text(), command.path()});
        }
        node.finish();
    }
    if (const auto file = root.optionalMember("nvFile")) {
        scenario.nvFile = file->text();
        if (auto kept = readNvFile(*scenario.nvFile)) {
            for (size_t i = 0; i < scenario.slots.size(); ++i) {
                scenario.slots.at(i).nv = std::move(kept->at(i));
            }
        }
    }
    for (const JsonNode& fault : root.member("faults").items(kMaxListed)) {
        scenario.faults.push_back(faultFromJson(fault));
    }
    for (JsonNode entry : root.member("timeline").items(kMaxListed)) {
        TimedIndication timed;
        timed.at = std::chrono::milliseconds(entry.member("at").number<uint32_t>(0, kMaxTime));
        timed.indication = indicationFromJson(entry);
        entry.finish();
        scenario.timeline.push_back(std::move(timed));
    }
    std::ranges::stable_sort(scenario.timeline, {}, &TimedIndication::at);
    root.finish();
    return scenario;
}

Scenario Scenario::builtIn()
{
    return Scenario(builtInJson());
}

Scenario Scenario::fromJson(const nlohmann::json& json)
{
    if (!json.is_object()) {
        throw ScenarioError("/: must be an object");
    }
    auto merged = laidOverBuiltIn(json);
    slotsAtStart(readScenario(merged));
    return Scenario(std::move(merged));
}

Scenario Scenario::fromFile(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    std::ostringstream text;
    if (!stream || !(text << stream.rdbuf())) {
        throw ScenarioError(file.string() + ": can't be read");
    }
    try {
        auto contents = nlohmann::json::parse(text.str());
        if (contents.is_object() && contents.contains("nvFile") && contents["nvFile"].is_string()) {
            contents["nvFile"] = file.parent_path() / contents["nvFile"].get<std::string>();
        }
        return fromJson(contents);
    } catch (const nlohmann::json::exception& error) {
        throw ScenarioError(file.string() + ": " + error.what());
    } catch (const ScenarioError& error) {
        throw ScenarioError(file.string() + ": " + error.what());
    }
}

} // namespace sim
