#include "radioctl/program.h"

#include "radioctl/help.h"
#include "radioctl/output.h"
#include "radioctl/special.h"

#include <fmt/format.h>

#include <algorithm>

namespace radioctl {

namespace {

bool isHelp(const std::string& word)
{
    return word == "--help" || word == "-h";
}

const Command* findCommand(std::string_view name)
{
    const auto found = std::ranges::find(commands(), name, &Command::name);
    return found != commands().end() ? &*found : nullptr;
}

[[noreturn]] void refuseName(const std::string& name)
{
    refuseUnknownOptions(std::span(&name, 1));
    std::vector<std::string_view> names = interface::namesOf(interface::requests());
    std::ranges::transform(commands(), std::back_inserter(names), &Command::name);
    const std::string suggestion = interface::suggestion(name, names);
    throw UsageError(fmt::format("no request is called '{}'{}", name,
                                 suggestion.empty() ? "; 'radioctl list' shows them all" : suggestion));
}

/// Only words that the command itself knows may follow it.
void expectNoMore(const Line& line, size_t known)
{
    refuseUnknownOptions(line.words);
    if (line.words.size() > known) {
        throw UsageError(fmt::format("'{}' is one argument too many", line.words[known]));
    }
}

int list(Program& /*program*/, const Line& line)
{
    expectNoMore(line, 1);
    fmt::print("{}", requestList(line.options.json));
    return kExitSuccess;
}

int help(Program& program, const Line& line)
{
    expectNoMore(line, 2);
    if (line.words.size() == 1) {
        fmt::print("{}", programHelp());
        return kExitSuccess;
    }
    return program.runChecked({{line.words[1], "--help"}, line.options});
}

int man(Program& /*program*/, const Line& line)
{
    expectNoMore(line, 1);
    fmt::print("{}", manPage());
    return kExitSuccess;
}

int completion(Program& /*program*/, const Line& line)
{
    const std::string shell = line.words.size() == 2 ? line.words[1] : "";
    if (shell != "bash" && shell != "zsh") {
        throw UsageError("completion wants a shell: bash or zsh");
    }
    fmt::print("{}", shell == "bash" ? bashCompletion() : zshCompletion());
    return kExitSuccess;
}

constexpr Command kCommands[] = {
    {"list", "", "tell all requests", list},
    {"help", "[REQUEST]", "tell what radioctl can, or all of one request", help},
    {"batch", "FILE", "run the commands in FILE, one per line; batch --help tells more", runBatch,
     batchOptions},
    {"events", "[NAME]...", "print events as they come; events --help tells their names", runEvents,
     eventsOptions},
    {"watch", "REQUEST [ARGUMENT]...", "send one request again and again and show its answer", runWatch,
     watchOptions},
    {"sim", "[COMMAND]...", "command the simulated modem; sim alone tells how", runSimulation},
    {"completion", "bash|zsh", "print the completion of command lines for that shell", completion},
    {"man", "", "print the manual page", man},
};

} // namespace

std::span<const Command> commands()
{
    return kCommands;
}

RequestCall parseRequest(std::span<const std::string> words)
{
    const interface::Request* request = interface::findRequest(words.front());
    if (request == nullptr) {
        refuseName(words.front());
    }
    return {request, parseArguments(*request, words.subspan(1))};
}

Session& Program::session(const Options& options)
{
    if (!mSession) {
        mSession = std::make_unique<Session>(options);
    }
    mSession->use(options);
    return *mSession;
}

Outcome Program::send(const interface::Request& request, const interface::Arguments& arguments,
                      const Options& options)
{
    mLastRequest = &request;
    mLast = session(options).run(request, arguments, options);
    failure = mLast->succeeded() ? "" : mLast->reason();
    return *mLast;
}

int Program::runChecked(const Line& line)
{
    if (line.options.version) {
        fmt::print("radioctl {}\n", RADIOCTL_VERSION);
        return kExitSuccess;
    }
    if (line.words.empty()) {
        throw UsageError("no command; 'radioctl help' tells them");
    }
    if (isHelp(line.words.front())) {
        fmt::print("{}", programHelp());
        return kExitSuccess;
    }
    if (const Command* command = findCommand(line.words.front()); command != nullptr) {
        return command->run(*this, line);
    }
    const interface::Request* request = interface::findRequest(line.words.front());
    if (request != nullptr && std::ranges::any_of(line.words, isHelp)) {
        fmt::print("{}", helpOf(*request));
        return kExitSuccess;
    }
    const RequestCall call = parseRequest(line.words);
    return printOutcome(*call.request, send(*call.request, call.arguments, line.options), line.options);
}

int Program::guarded(const std::string& name, const Options& options, const std::function<int()>& operation)
{
    const auto fail = [&](const char* error, const std::exception& exception, int status) {
        failure = exception.what();
        printError(name, error, failure, options);
        return status;
    };
    try {
        return operation();
    } catch (const UsageError& error) {
        return fail("usage", error, kExitUsage);
    } catch (const Unreachable& error) {
        return fail("unreachable", error, kExitUnreachable);
    } catch (const std::exception& error) {
        return fail("failed", error, kExitFailure);
    }
}

int Program::run(Words words)
{
    // Even what can't be parsed is told in the form that was asked for.
    Options options;
    options.json = std::ranges::find(words, "--json") != words.end();
    std::string name;
    return guarded(name, options, [&] {
        options = takeOptions(words, {});
        name = words.empty() ? "" : words.front();
        const int status = runChecked({std::move(words), options});
        std::fflush(stdout);
        return status;
    });
}

} // namespace radioctl
