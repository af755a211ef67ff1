// The modem's configuration.

#include "at_handlers.h"

namespace sim {
namespace {

/// An item of the modem's configuration, NAME=OPERATION,"ITEM"[,VALUE...]: set with one of `setters`, read
/// with `getter` once it was set.
AtReply configureItem(const AtCall& call, std::string_view setters, std::string_view getter)
{
    const auto& parameters = call.parameters;
    if (parameters.size() < 2 || !parameters[1].quoted) {
        return {AtResult::BadParameters};
    }
    const std::string& operation = parameters[0].text;
    const std::string name(call.command.name);
    const std::string key = name + " " + parameters[1].text;
    if (operation.size() == 1 && setters.find(operation) != std::string_view::npos && parameters.size() > 2) {
        auto& values = call.slot.at[key];
        values.clear();
        for (size_t i = 2; i < parameters.size(); ++i) {
            values.push_back(parameters[i].text);
        }
        return {};
    }
    const auto item = call.slot.at.find(key);
    if (operation != getter || parameters.size() != 2 || item == call.slot.at.end()) {
        return {AtResult::BadParameters};
    }
    std::string line = name + ": \"" + parameters[1].text + '"';
    for (const std::string& value : item->second) {
        line += "," + value;
    }
    return {AtResult::Ok, {line}};
}

AtReply configureModem(const AtCall& call)
{
    if (call.parameters.size() == 4 && call.parameters[1].text == "QueryTxVerifyIdx") {
        return countTransmitPaths(call);
    }
    return configureItem(call, "1", "0");
}

AtReply configureSwitch(const AtCall& call)
{
    return configureItem(call, "56", "7");
}

constexpr AtCommand kCommands[] = {
    {.name = "+EGMC", .set = configureModem},
    {.name = "+ESBP", .set = configureSwitch},
};

} // namespace

std::span<const AtCommand> configurationCommands()
{
    return kCommands;
}

} // namespace sim
