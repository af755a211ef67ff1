/// radioctl: every request of the library from the command line.
#include "radioctl/batch.h"
#include "radioctl/command.h"
#include "radioctl/event_stream.h"
#include "radioctl/print.h"
#include "radioctl/program.h"
#include "radioctl/signals.h"
#include "radioctl/watch.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace {

using namespace radioctl;

bool isHelp(const std::string& word)
{
    return word == "--help" || word == "-h";
}

/// The words behind the command, as CLI11 wants them: the last one first.
std::vector<std::string> commandWords(const Options& options)
{
    return {options.words.rbegin(), options.words.rend() - 1};
}

constexpr char kBatchFooter[] = R"(
Each line is a command as it stands behind radioctl; # begins a comment.
  cell = get-serving-cellular-cell-info    keeps the answer's record
  write-nv 7 0 0$cell.rat                  puts a value of it in
Values: $NAME.MEMBER, $NAME.LIST[0].MEMBER, ${NAME.MEMBER}; $$ is a dollar
sign. Within single quotes a dollar sign is only that.)";

int batch(const Options& options)
{
    CLI::App app("Run the commands in a file, one per line, until one fails.", "radioctl batch");
    BatchOptions batch;
    app.add_option("FILE", batch.inputName, "the file; - is standard input")->required();
    app.footer(kBatchFooter);
    try {
        app.parse(commandWords(options));
    } catch (const CLI::CallForHelp&) {
        fmt::print("{}", app.help());
        return kExitSuccess;
    }
    const bool isFile = batch.inputName != "-";
    std::ifstream file;
    if (isFile) {
        file.open(batch.inputName);
        if (!file) {
            throw UsageError(fmt::format("can't read {}", batch.inputName));
        }
    }
    batch.json = options.json;
    // Where the answers go to the terminal they tell enough.
    batch.progress = isFile && isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
    const Session session(options.session);
    return runBatch(isFile ? file : std::cin, batch, session);
}

int watch(const Options& options)
{
    CLI::App app("Send one request again and again and show its answer.", "radioctl watch");
    WatchOptions how;
    unsigned every = 1000;
    app.add_option("--every", every, "the time from one to the next, in ms (default 1000)")
        ->check(CLI::Range(10, 3600000));
    app.add_option("--count", how.count, "stop after so many answers (default: at Ctrl-C)")
        ->check(CLI::PositiveNumber);
    app.allow_extras();
    app.footer("\nWhat is none of these options is the request and its arguments.");
    try {
        app.parse(commandWords(options));
    } catch (const CLI::CallForHelp&) {
        fmt::print("{}", app.help());
        return kExitSuccess;
    }
    const std::vector<std::string> words = app.remaining();
    if (words.empty()) {
        throw UsageError("watch wants a REQUEST; 'radioctl list' tells them");
    }
    const RequestCall call = parseRequest(words);
    how.every = std::chrono::milliseconds(every);
    how.json = options.json;
    holdSignals();
    const Session session(options.session);
    return radioctl::watch(how, *call.request, call.arguments, session);
}

int completion(const Options& options)
{
    const std::string shell = options.words.size() == 2 ? options.words[1] : "";
    if (shell != "bash" && shell != "zsh") {
        throw UsageError("completion wants a shell: bash or zsh");
    }
    fmt::print("{}", shell == "bash" ? bashCompletion() : zshCompletion());
    return kExitSuccess;
}

int events(const Options& options)
{
    CLI::App app("Print events as they come.", "radioctl events");
    StreamOptions stream;
    std::vector<std::string> then;
    app.add_option("NAMES", stream.names, "which events (default: all)");
    app.add_option("--count", stream.count, "stop after so many (default: at Ctrl-C)")
        ->check(CLI::PositiveNumber);
    app.add_option("--do", then, "a command to run once the events are subscribed; may be given repeatedly")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    app.footer("Events:\n" + eventList());
    try {
        app.parse(commandWords(options));
    } catch (const CLI::CallForHelp&) {
        fmt::print("{}", app.help());
        return kExitSuccess;
    }
    stream.instance = options.session.instance;
    stream.json = options.json;
    std::vector<Command> commands;
    commands.reserve(then.size());
    for (const std::string& line : then) {
        commands.push_back(parseCommand(splitWords(line), options.json));
    }
    holdSignals();
    const Session session(options.session);
    return streamEvents(stream, [&] {
        for (const Command& command : commands) {
            if (const int status = command(session); status != kExitSuccess) {
                return status;
            }
        }
        return kExitSuccess;
    });
}

int run(const Options& options)
{
    const std::string& name = options.words.front();
    const bool wantsHelp = std::any_of(options.words.begin() + 1, options.words.end(), isHelp);
    if (name == "list") {
        fmt::print("{}", requestList(options.json));
        return kExitSuccess;
    }
    if (name == "man") {
        fmt::print("{}", manPage());
        return kExitSuccess;
    }
    constexpr std::pair<std::string_view, int (*)(const Options&)> kPrograms[] = {
        {"batch", batch}, {"events", events}, {"watch", watch}, {"completion", completion}};
    for (const auto& [program, runIt] : kPrograms) {
        if (name == program) {
            return runIt(options);
        }
    }
    if (wantsHelp && name == "sim") {
        fmt::print("{}\n", kSimUsage);
        return kExitSuccess;
    }
    if (const Request* request = findRequest(name); wantsHelp && request != nullptr) {
        fmt::print("radioctl {}", request->usage());
        return kExitSuccess;
    }
    const Command command = parseCommand(options.words, options.json);
    const Session session(options.session);
    return command(session);
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Requests to the vendor features of a cellular modem.", "radioctl");
    Options options;
    addOptions(app, options);
    try {
        app.parse(argc, argv);
        options.words = app.remaining();
        options.session.timeout = std::chrono::milliseconds(options.timeout);
        options.session.traceJson = options.json;
        if (options.words.empty()) {
            throw UsageError("no command; 'radioctl --help' tells them");
        }
        if (isHelp(options.words.front())) {
            fmt::print("{}", app.help());
            return kExitSuccess;
        }
        return run(options);
    } catch (const CLI::ParseError& error) {
        fmt::print(stderr, "radioctl: {}\n", error.what());
        return kExitUsage;
    } catch (const UsageError& error) {
        fmt::print(stderr, "radioctl: {}\n", error.what());
        return kExitUsage;
    } catch (const std::exception& error) {
        fmt::print(stderr, "radioctl: {}\n", error.what());
        return kExitFailure;
    }
}
