#include "slot.h"

#include <algorithm>

namespace sim {
namespace {

constexpr size_t kMaxNeighbours = 128;
constexpr size_t kMaxListed = 4096;
constexpr uint32_t kMaxModeChange = 60'000; // milliseconds

/// Settings of a scenario are requests that are carried out before anything else.
void applySettings(const JsonNode& node, StoredSettings& settings)
{
    for (JsonNode item : node.items(kMaxListed)) {
        const MessageSpec& spec = requestFromJson(item.member("message"));
        settings.store(spec, fieldsFromJson(item.member("fields"), spec.request));
        item.finish();
    }
}

} // namespace

void Slot::setLevel(std::string level)
{
    if (level != mode.level) {
        mode.slotsOn = level == "1" ? RadioMode().slotsOn : "0";
    }
    mode.level = std::move(level);
    modeKnownFrom = {};
}

const Cell* Slot::camped() const
{
    return serving && radioOn() ? &*serving : nullptr;
}

uint32_t Slot::timesIndicated(uint16_t id) const
{
    const auto sent = indicationsSent.find(id);
    return sent != indicationsSent.end() ? sent->second : 0;
}

uint32_t Slot::servedMcc() const
{
    return camped() != nullptr ? plmn.mcc : 0;
}

const Cell* Slot::lteCell() const
{
    const Cell* cell = camped();
    if (cell != nullptr && cell->rat != Rat::Lte) {
        return lteAnchor ? &*lteAnchor : nullptr;
    }
    return cell;
}

Slot slotFromJson(JsonNode& node, int number)
{
    Slot slot;
    slot.number = number;
    slot.plmn = plmnFromJson(node.member("operator"));
    slot.card = simCardFromJson(node.member("sim"));
    if (const auto serving = node.optionalMember("serving")) {
        slot.serving = servingCellFromJson(*serving);
    }
    if (const auto anchor = node.optionalMember("lteAnchor")) {
        slot.lteAnchor = servingCellFromJson(*anchor);
        if (slot.lteAnchor->rat != Rat::Lte) {
            anchor->fail("must be an LTE cell");
        }
    }
    for (const JsonNode& cell : node.member("neighbours").items(kMaxNeighbours)) {
        slot.neighbours.push_back(neighbourFromJson(cell));
    }
    slot.nv = nvItemsFromJson(node.member("nv"));
    slot.modeChangeTime =
        std::chrono::milliseconds(node.member("modeChangeMs").number<uint32_t>(0, kMaxModeChange));
    applySettings(node.member("settings"), slot.settings);
    return slot;
}

nlohmann::json slotToJson(const Slot& slot)
{
    nlohmann::json neighbours = nlohmann::json::array();
    for (const Cell& cell : slot.neighbours) {
        neighbours.push_back(cellToJson(cell));
    }
    nlohmann::json nv = nlohmann::json::array();
    for (const auto& [key, data] : slot.nv) {
        nv.push_back({{"id", key.first}, {"index", key.second}, {"length", data.size()}});
    }
    AtValues at = slot.at;
    at["+CFUN"] = {slot.mode.level};
    at["+EFUN"] = {slot.mode.slotsOn};
    const auto cell = [](const Cell* shown) {
        return shown != nullptr ? cellToJson(*shown) : nlohmann::json();
    };
    return {{"radioOn", slot.radioOn()},
            {"serving", cell(slot.camped())},
            {"lteCell", cell(slot.lteCell())},
            {"neighbours", neighbours},
            {"simPresent", slot.card.present},
            {"nv", nv},
            {"at", at},
            {"settings", slot.settings.toJson()}};
}

} // namespace sim
