#include "radioctl/command.h"

#include "host/vorn_control.h"
#include "radioctl/describe.h"
#include "radioctl/print.h"

#include <fmt/format.h>

#include <fstream>

namespace radioctl {

namespace {

/// The simulated modem's answer; an object without "ok" when it could not be asked.
Json askSimulation(const Json& command)
{
    Json answer = {{"ok", false}, {"error", "there is no simulated modem behind this link"}};
    const auto keep = [](const char* json, void* user) { *static_cast<Json*>(user) = Json::parse(json); };
    vorn_host_control(command.dump().c_str(), keep, &answer);
    return answer;
}

/// The members that MEMBER=VALUE words give. Unlike a record's, their types are the simulation's to know: a
/// value is what it is in JSON, or else a text.
Json membersFromWords(const std::string& name, std::span<const std::string> words)
{
    Json members = recordFromWords(name, words);
    for (Json& value : members) {
        if (value.is_string()) {
            Json parsed = Json::parse(value.get<std::string>(), nullptr, false);
            value = parsed.is_discarded() ? value : parsed;
        }
    }
    return members;
}

/// `indicate NAME [FIELD=VALUE...]`; --value V is short for an indication that has one value, --times N
/// repeats it.
Json parseIndicate(std::span<const std::string> words)
{
    if (words.empty()) {
        throw UsageError("sim indicate wants an indication's name");
    }
    Json command = {{"command", "indicate"}, {"message", words.front()}, {"slot", 0}};
    std::vector<std::string> fields;
    for (size_t i = 1; i < words.size(); ++i) {
        const bool isOption = words[i] == "--value" || words[i] == "--times" || words[i] == "--slot";
        if (!isOption) {
            fields.push_back(words[i]);
        } else if (++i < words.size()) {
            command[words[i - 1].substr(2)] = parseNumber<int64_t>(words[i - 1], words[i]);
        } else {
            throw UsageError(fmt::format("{} wants a number", words.back()));
        }
    }
    if (!fields.empty()) {
        command["fields"] = membersFromWords("fields", fields);
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

Json parseSimulation(std::span<const std::string> words)
{
    const std::string name = words.empty() ? "" : words.front();
    const auto rest = words.empty() ? words : words.subspan(1);
    if (name == "indicate") {
        return parseIndicate(rest);
    }
    if (name == "load" && rest.size() == 1) {
        return {{"command", name}, {"scenario", readJson(rest.front())}};
    }
    if (name == "fault-add" && !rest.empty()) {
        return {{"command", name}, {"fault", membersFromWords("fault", rest)}};
    }
    if ((name == "state" || name == "restart" || name == "fault-clear") && rest.empty()) {
        return {{"command", name}};
    }
    throw UsageError(kSimUsage);
}

int runSimulation(const Json& command, bool json)
{
    Json answer = askSimulation(command);
    if (!answer.value("ok", false)) {
        fmt::print(stderr, "radioctl: sim: {}\n", answer.value("error", "refused"));
        return kExitFailure;
    }
    answer.erase("ok");
    if (json) {
        fmt::print("{}\n", answer.dump());
    } else {
        fmt::print("{}\n", answer.empty() ? "ok" : answer.dump(2));
    }
    std::fflush(stdout);
    return kExitSuccess;
}

} // namespace

const char* const kSimUsage = R"(sim state
sim indicate NAME [--value V] [--times N] [--slot N] [FIELD=VALUE...]
sim fault-add match={"message":NAME} action=ACTION [count=N] [ms=N]
sim fault-clear
sim load SCENARIO.json
sim restart)";

RequestCall parseRequest(std::span<const std::string> words)
{
    const Request* request = findRequest(words.front());
    if (request == nullptr) {
        throw UsageError(
            fmt::format("no request is called '{}'; 'radioctl list' shows them all", words.front()));
    }
    Arguments arguments(request->arguments, words.subspan(1));
    if (request->check) {
        request->check(arguments);
    }
    return {request, std::move(arguments)};
}

Command parseCommand(const std::vector<std::string>& words, bool json)
{
    const std::string& name = words.front();
    const std::span<const std::string> rest(words.begin() + 1, words.end());
    if (name == "sim") {
        return
            [command = parseSimulation(rest), json](const Session&) { return runSimulation(command, json); };
    }
    return [call = parseRequest(words), json](const Session& session) {
        return printOutcome(*call.request, session.run(*call.request, call.arguments), json);
    };
}

} // namespace radioctl
