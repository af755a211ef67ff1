#include "at_interpreter.h"

#include "at_commands.h"

#include <algorithm>

namespace sim {
namespace {

constexpr size_t kMaxEcho = 4096;

AtHandler handlerOf(const AtCommand& command, AtForm form)
{
    switch (form) {
    case AtForm::Execute:
        return command.execute;
    case AtForm::Set:
        return command.set;
    case AtForm::Query:
        return command.query;
    case AtForm::Test:
        return command.test;
    }
    return nullptr;
}

AtReply reply(Slot& slot, std::string_view command)
{
    const auto normalized = normalizeAt(command);
    const auto line = normalized ? parseAt(*normalized) : std::nullopt;
    const AtCommand* known = line ? findAtCommand(line->name) : nullptr;
    const AtHandler handler = known != nullptr ? handlerOf(*known, line->form) : nullptr;
    return handler != nullptr ? handler({slot, *known, line->parameters}) : AtReply{AtResult::Error};
}

std::string finalLine(const Slot& slot, AtResult result)
{
    if (result == AtResult::Ok) {
        return "OK";
    }
    const std::string mode = atValue(slot, "+CMEE");
    if (result == AtResult::Error || mode == "0") {
        return "ERROR";
    }
    return "+CME ERROR: " + (mode == "2" ? errorText(result) : std::to_string(static_cast<int>(result)));
}

} // namespace

AtAnswer executeAt(Slot& slot, std::string_view command)
{
    const bool echo = atValue(slot, "E") == "1";
    const AtReply result = reply(slot, command);

    AtAnswer answer;
    answer.accepted = result.result == AtResult::Ok;
    answer.restart = result.restart;
    if (echo) {
        const size_t end = std::min(command.find_first_of("\r\n"), kMaxEcho);
        answer.text = std::string(command.substr(0, end)) + "\r";
    }
    for (const auto& line : result.lines) {
        answer.text += (&line == &result.lines.front() ? "\r\n" : "") + line + "\r\n";
    }
    answer.text += "\r\n" + finalLine(slot, result.result) + "\r\n";
    return answer;
}

std::string atValue(const Slot& slot, std::string_view name)
{
    const auto found = slot.at.find(name);
    if (found == slot.at.end()) {
        const AtCommand* command = findAtCommand(name);
        return command != nullptr ? std::string(command->initial) : std::string();
    }
    std::string list;
    for (const auto& value : found->second) {
        list += (&value == &found->second.front() ? "" : ",") + value;
    }
    return list;
}

} // namespace sim
