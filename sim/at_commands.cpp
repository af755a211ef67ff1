#include "at_commands.h"

#include "at_interpreter.h"
#include "requests.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>

namespace sim {
namespace {

bool fits(const AtParameter& parameter, const AtRule& rule)
{
    if (parameter.omitted()) {
        return rule.optional;
    }
    if (parameter.quoted != (rule.type == AtRule::Type::Text)) {
        return false;
    }
    const auto measure = parameter.quoted ? std::optional(static_cast<int64_t>(parameter.text.size()))
                                          : toInteger(parameter.text);
    return measure && *measure >= rule.min && *measure <= rule.max;
}

} // namespace

std::optional<int64_t> toInteger(const std::string& text)
{
    int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [parsed, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && parsed == end ? std::optional(value) : std::nullopt;
}

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

AtReply accept(const AtCall&)
{
    return {};
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
        if (rule.type == AtRule::Type::Number) {
            line += std::to_string(rule.min) + "-" + std::to_string(rule.max);
        }
        line += ")";
    }
    return {AtResult::Ok, {line}};
}

void setItem(Slot& slot, const std::string& key, std::span<const AtParameter> parameters)
{
    auto& values = slot.at[key];
    values.clear();
    for (const AtParameter& parameter : parameters) {
        values.push_back(parameter.text);
    }
}

AtReply setByKey(const AtCall& call)
{
    if (!parametersFit(call)) {
        return {AtResult::BadParameters};
    }
    const bool hasNumbers = call.command.rules.size() > 2;
    const std::span<const AtParameter> pair = std::span(call.parameters).subspan(hasNumbers ? 1 : 0, 2);
    setItem(call.slot, std::string(call.command.name) + " " + pair[0].text, pair.subspan(1));
    return {};
}

const AtCommand* findAtCommand(std::string_view name)
{
    static const auto& commands = *[] {
        auto* all = new std::unordered_map<std::string_view, const AtCommand*>;
        const auto add = [all](std::span<const AtCommand> table) {
            for (const AtCommand& command : table) {
                all->emplace(command.name, &command);
            }
        };
        add(sharedCommands());
        for (const Domain& domain : domains()) {
            add(domain.commands);
        }
        return all;
    }();
    const auto found = commands.find(name);
    return found != commands.end() ? found->second : nullptr;
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
