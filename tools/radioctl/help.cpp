#include "radioctl/help.h"

#include "interface/text.h"
#include "radioctl/program.h"
#include "radioctl/special.h"

#include <fmt/format.h>

#include <algorithm>

namespace radioctl {

namespace {

using interface::Request;

constexpr char kExitStatus[] =
    "Exit status: 0 success, 1 refused or failed, 2 wrong usage, 3 no answer in time, "
    "4 the modem can't be reached.";

} // namespace

std::string programHelp()
{
    std::string text = "Requests to the vendor features of a cellular modem.\n"
                       "Usage: radioctl [OPTION]... COMMAND [ARGUMENT]...\n\nCommands:\n";
    const auto add = [&](const std::string& usage, std::string_view help) {
        text += fmt::format("  {:<26} {}\n", usage, help);
    };
    add("REQUEST [ARGUMENT]...", "send one request and print its answer");
    for (const Command& command : commands()) {
        add(fmt::format("{} {}", command.name, command.arguments), command.help);
    }
    text += "\nOptions, anywhere in the line:\n";
    for (const OptionText& option : globalOptionTexts()) {
        add(option.name + ' ' + option.value, option.help);
    }
    return text + "\n" + kExitStatus + "\n'radioctl list' tells all requests, 'radioctl help REQUEST' one.\n";
}

std::string requestList(bool json)
{
    Json list = Json::array();
    std::string text;
    for (const interface::Domain& domain : interface::domains()) {
        text += fmt::format("{}{}\n", text.empty() ? "" : "\n", domain.title);
        for (const Request& request : interface::requests()) {
            if (request.domain == &domain) {
                text += fmt::format("  {:<38} {}\n", request.name, request.text);
                list.push_back({{"name", request.name},
                                {"entryPoint", request.function},
                                {"domain", domain.name},
                                {"group", domain.title},
                                {"help", request.text},
                                {"supported", request.isSupported},
                                {"example", interface::exampleOf(request)}});
            }
        }
    }
    return json ? list.dump() + "\n" : text;
}

std::string eventList()
{
    std::string text;
    for (const interface::Event& event : interface::events()) {
        text += fmt::format("  {:<24} {}\n", event.name, event.text);
    }
    return text;
}

} // namespace radioctl
