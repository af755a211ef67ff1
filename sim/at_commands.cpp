#include "at_commands.h"

#include "at_handlers.h"
#include "at_interpreter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace sim {
namespace {

using Type = AtRule::Type;

std::optional<int64_t> toInteger(const std::string& text)
{
    int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [parsed, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && parsed == end ? std::optional(value) : std::nullopt;
}

bool fits(const AtParameter& parameter, const AtRule& rule)
{
    if (parameter.omitted()) {
        return rule.optional;
    }
    if (parameter.quoted != (rule.type == Type::Text)) {
        return false;
    }
    const auto measure = parameter.quoted ? std::optional(static_cast<int64_t>(parameter.text.size()))
                                          : toInteger(parameter.text);
    return measure && *measure >= rule.min && *measure <= rule.max;
}

} // namespace

bool parametersFit(const AtCall& call)
{
    const auto& rules = call.command.rules;
    if (call.parameters.size() > rules.size()) {
        return false;
    }
    for (size_t i = 0; i < rules.size(); ++i) {
        if (!fits(i < call.parameters.size() ? call.parameters[i] : AtParameter{}, rules[i])) {
            return false;
        }
    }
    return true;
}

AtReply setStored(const AtCall& call)
{
    if (!parametersFit(call)) {
        return {AtResult::BadParameters};
    }
    const auto [entry, isNew] = call.slot.at.try_emplace(std::string(call.command.name));
    auto& stored = entry->second;
    if (isNew) {
        stored.emplace_back(call.command.initial);
    }
    stored.resize(std::max(stored.size(), call.parameters.size()));
    for (size_t i = 0; i < call.parameters.size(); ++i) {
        const AtParameter& parameter = call.parameters[i];
        if (!parameter.omitted()) {
            stored[i] = parameter.quoted ? '"' + parameter.text + '"' : parameter.text;
        }
    }
    return {};
}

AtReply queryStored(const AtCall& call)
{
    return {AtResult::Ok, {std::string(call.command.name) + ": " + atValue(call.slot, call.command.name)}};
}

AtReply testStored(const AtCall& call)
{
    std::string line;
    for (const AtRule& rule : call.command.rules) {
        line += line.empty() ? std::string(call.command.name) + ": (" : ",(";
        if (rule.type == Type::Number) {
            line += std::to_string(rule.min) + "-" + std::to_string(rule.max);
        }
        line += ")";
    }
    return {AtResult::Ok, {line}};
}

namespace {

AtReply ok(const AtCall&)
{
    return {};
}

/// ATE0 and ATE1; ATE alone means ATE0.
AtReply setEcho(const AtCall& call)
{
    if (!parametersFit(call)) {
        return {AtResult::Error};
    }
    call.slot.at["E"] = {call.parameters.empty() ? "0" : call.parameters.front().text};
    return {};
}

/// +CFUN=<fun>[,<rst>]: of the levels the modem has 0 minimum, 1 full and 4 radio off. <rst> 1 restarts it
/// first.
AtReply setFunctionality(const AtCall& call)
{
    if (!parametersFit(call)) {
        return {AtResult::BadParameters};
    }
    const std::string& level = call.parameters.front().text;
    if (level != "0" && level != "1" && level != "4") {
        return {AtResult::NotSupported};
    }
    AtReply reply;
    reply.restart = call.parameters.size() > 1 && call.parameters[1].text == "1";
    call.slot.setLevel(level);
    return reply;
}

AtReply testFunctionality(const AtCall&)
{
    return {AtResult::Ok, {"+CFUN: (0,1,4),(0-1)"}};
}

/// What the queries may tell by now.
const RadioMode& knownMode(const Slot& slot)
{
    return slot.now < slot.modeKnownFrom ? slot.modeBefore : slot.mode;
}

/// +EFUN=<fun>: 0 off, 1 to 3 on for some or all slots. It takes the modem its time.
AtReply setSlotsOn(const AtCall& call)
{
    if (!parametersFit(call)) {
        return {AtResult::BadParameters};
    }
    Slot& slot = call.slot;
    const std::string slotsOn = std::to_string(toInteger(call.parameters.front().text).value_or(0));
    const RadioMode before = knownMode(slot);
    if (slotsOn != "0") {
        slot.setLevel("1");
    } else if (slot.radioOn()) {
        slot.setLevel("4");
    }
    slot.mode.slotsOn = slotsOn;
    slot.modeBefore = before;
    slot.modeKnownFrom = slot.now + slot.modeChangeTime;
    return {};
}

AtReply querySlotsOn(const AtCall& call)
{
    return {AtResult::Ok, {"+EFUN: " + knownMode(call.slot).slotsOn}};
}

AtReply queryFunctionality(const AtCall& call)
{
    return {AtResult::Ok, {"+CFUN: " + knownMode(call.slot).level}};
}

AtReply getImsi(const AtCall& call)
{
    return call.slot.card.present ? AtReply{AtResult::Ok, {call.slot.card.imsi}}
                                  : AtReply{AtResult::NoSimCard};
}

constexpr AtRule kEcho[] = {{Type::Number, 0, 1, true}};
constexpr AtRule kErrorMode[] = {{Type::Number, 0, 2, true}};
constexpr AtRule kFunctionality[] = {{Type::Number, 0, 127}, {Type::Number, 0, 1, true}};
constexpr AtRule kOperationMode[] = {{Type::Number, 0, 3}};

constexpr AtCommand kGeneralCommands[] = {
    {.name = "", .execute = ok},
    {.name = "E", .execute = setEcho, .rules = kEcho, .initial = "0"},
    {.name = "+CMEE",
     .set = setStored,
     .query = queryStored,
     .test = testStored,
     .rules = kErrorMode,
     .initial = "1"},
    {.name = "+CFUN",
     .set = setFunctionality,
     .query = queryFunctionality,
     .test = testFunctionality,
     .rules = kFunctionality},
    {.name = "+EFUN", .set = setSlotsOn, .query = querySlotsOn, .rules = kOperationMode},
    {.name = "+CEMODE",
     .set = setStored,
     .query = queryStored,
     .test = testStored,
     .rules = kOperationMode,
     .initial = "2"},
    {.name = "+CIMI", .execute = getImsi, .test = ok},
};

} // namespace

const AtCommand* findAtCommand(std::string_view name)
{
    for (const std::span<const AtCommand> table :
         {std::span<const AtCommand>(kGeneralCommands), bandCommands(), configurationCommands()}) {
        const auto found = std::ranges::find(table, name, &AtCommand::name);
        if (found != table.end()) {
            return &*found;
        }
    }
    return nullptr;
}

std::string errorText(AtResult error)
{
    switch (error) {
    case AtResult::NotAllowed:
        return "operation not allowed";
    case AtResult::NotSupported:
        return "operation not supported";
    case AtResult::NoSimCard:
        return "SIM not inserted";
    case AtResult::BadParameters:
        return "Incorrect parameters";
    default:
        return std::to_string(static_cast<int>(error));
    }
}

} // namespace sim
