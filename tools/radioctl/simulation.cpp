// Commands to the simulated modem.
#include "host/vorn_control.h"
#include "radioctl/output.h"
#include "radioctl/program.h"

#include "interface/arguments.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <fstream>

namespace radioctl {

namespace {

constexpr SimulationCommand kCommands[] = {
    {"state", "", "show the state of the modem's slots"},
    {"indicate", "NAME [--value V] [--times N] [--slot N] [FIELD=VALUE...]", "send an indication"},
    {"fault-add", "match={\"message\":NAME} action=ACTION [count=N] [ms=N]", "have answers go wrong"},
    {"fault-clear", "", "end all faults"},
    {"load", "SCENARIO.json", "start anew with another scenario"},
    {"restart", "", "drop the links and start anew, but for the NV items"},
};

std::string usage()
{
    std::string text = "Commands to the simulated modem:\n";
    for (const SimulationCommand& command : kCommands) {
        text += fmt::format("  sim {} {}\n      {}\n", command.name, command.arguments, command.help);
    }
    return text;
}

/// The members that MEMBER=VALUE words give. Unlike a record's, their types are the simulation's to know: a value is
/// what it is in JSON, or else a text.
Json membersFrom(const std::string& name, std::span<const std::string> words)
{
    Json members = interface::membersFromWords(name, words);
    for (Json& value : members) {
        if (value.is_string()) {
            Json parsed = Json::parse(value.get<std::string>(), nullptr, false);
            value = parsed.is_discarded() ? value : parsed;
        }
    }
    return members;
}

/// What stands behind `indicate`: --value V is short for an indication that has one value, --times N repeats it.
Json parseIndicate(std::span<const std::string> words)
{
    CLI::App app;
    Json command = {{"command", "indicate"}, {"message", ""}, {"slot", 0}};
    for (const char* name : {"value", "times", "slot"}) {
        const auto keep = [&command, name](int64_t number) { command[name] = number; };
        app.add_option_function<int64_t>(fmt::format("--{}", name), keep);
    }
    app.allow_extras();
    parseCommandOptions(app, {words.begin(), words.end()});
    Words fields = app.remaining();
    if (fields.empty()) {
        throw UsageError("sim indicate wants an indication's name");
    }
    command["message"] = fields.front();
    fields.erase(fields.begin());
    refuseUnknownOptions(fields, std::vector<std::string_view>{"--value", "--times", "--slot"});
    if (!fields.empty()) {
        command["fields"] = membersFrom("fields", fields);
    }
    return command;
}

Json readJson(const std::string& file)
{
    std::ifstream in(file);
    Json json = Json::parse(in, nullptr, false);
    if (json.is_discarded()) {
        throw UsageError(fmt::format("{} can't be read, or is not JSON", file));
    }
    return json;
}

Json parseCommand(std::span<const std::string> words)
{
    const std::string& name = words.front();
    const auto rest = words.subspan(1);
    if (name == "indicate") {
        return parseIndicate(words);
    }
    if (name == "load" && rest.size() == 1) {
        return {{"command", name}, {"scenario", readJson(rest.front())}};
    }
    if (name == "fault-add" && !rest.empty()) {
        return {{"command", name}, {"fault", membersFrom("fault", rest)}};
    }
    if ((name == "state" || name == "restart" || name == "fault-clear") && rest.empty()) {
        return {{"command", name}};
    }
    const auto names = interface::namesOf(std::span(kCommands));
    const bool isKnown = std::ranges::find(names, name) != names.end();
    throw UsageError(fmt::format(
        "sim {}: {}\n{}", name,
        isKnown ? "wrong arguments" : "no such command" + interface::suggestion(name, names), usage()));
}

/// The simulated modem's answer; an object without "ok" when it could not be asked.
Json ask(const Json& command)
{
    Json answer = {{"ok", false}, {"error", "there is no simulated modem behind this link"}};
    const auto keep = [](const char* json, void* user) { *static_cast<Json*>(user) = Json::parse(json); };
    vorn_host_control(command.dump().c_str(), keep, &answer);
    return answer;
}

/// TestInd may be called test.
std::string plainName(const std::string& indication)
{
    std::string name;
    for (const char c : indication.substr(0, indication.rfind("Ind"))) {
        const bool isCapital = std::isupper(static_cast<unsigned char>(c)) != 0;
        name += isCapital && !name.empty() ? "-" : "";
        name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return name;
}

/// What it refused, with the name that was perhaps meant.
std::string refusal(const Json& command, const Json& answer)
{
    std::string text = fmt::format("sim: {}", answer.value("error", "refused"));
    if (answer.contains("known")) {
        auto known = answer["known"].get<Words>();
        if (command.contains("message")) {
            std::ranges::transform(known, known.begin(), plainName);
        }
        const Json& fault = command.contains("fault") ? command["fault"] : command;
        const std::string given = fault.value("message", fault.value("action", ""));
        text += interface::suggestion(given, std::vector<std::string_view>(known.begin(), known.end()));
    }
    return text;
}

} // namespace

std::span<const SimulationCommand> simulationCommands()
{
    return kCommands;
}

int runSimulation(Program& program, const Line& line)
{
    const auto words = std::span(line.words).subspan(1);
    if (words.empty() || words.front() == "--help" || words.front() == "-h") {
        fmt::print("{}", usage());
        return kExitSuccess;
    }
    const Json command = parseCommand(words);
    Session& session = program.session(line.options);
    const unsigned lossesBefore = session.losses();
    Json answer = ask(command);
    if (!answer.value("ok", false)) {
        printError("sim", "failed", refusal(command, answer), line.options);
        return kExitFailure;
    }
    if (command["command"] == "restart") {
        session.expectLoss(lossesBefore + 1);
    }
    answer.erase("ok");
    fmt::print("{}\n", line.options.json ? answer.dump() : answer.empty() ? "ok" : answer.dump(2));
    return kExitSuccess;
}

} // namespace radioctl
