/// radioctl: every request of the library from the command line.
#include "radioctl/batch.h"
#include "radioctl/command.h"
#include "radioctl/event_stream.h"
#include "radioctl/print.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <iostream>

namespace {

using namespace radioctl;

struct Options {
    SessionOptions session;
    bool json = false;
    std::vector<std::string> words; ///< the command and its arguments
};

constexpr char kFooter[] = R"(
Commands:
  list              all requests
  batch FILE        run the commands in FILE, one per line; - is standard input
  events [NAMES]    print events as they come; events --help tells their names
  sim COMMAND       command the simulated modem: sim --help
  REQUEST [ARGS]    send one request and print its answer
  REQUEST --help    tell its arguments

Exit status: 0 success, 1 refused or failed, 2 wrong usage, 3 no answer in time.)";

bool isHelp(const std::string& word)
{
    return word == "--help" || word == "-h";
}

int batch(const Options& options)
{
    if (options.words.size() != 2) {
        throw UsageError("batch wants one FILE; - is standard input");
    }
    const std::string& name = options.words[1];
    std::ifstream file;
    if (name != "-") {
        file.open(name);
        if (!file) {
            throw UsageError(fmt::format("can't read {}", name));
        }
    }
    const Session session(options.session);
    return runBatch(name == "-" ? std::cin : file, name, session, options.json);
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
    std::vector<std::string> words(options.words.rbegin(), options.words.rend() - 1);
    try {
        app.parse(words);
    } catch (const CLI::CallForHelp&) {
        fmt::print("{}", app.help());
        return kExitSuccess;
    }
    stream.instance = options.session.instance;
    stream.json = options.json;
    std::vector<Command> commands;
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
    if (name == "batch") {
        return batch(options);
    }
    if (name == "events") {
        return events(options);
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
    unsigned timeout = 10000;
    app.add_option("--device", options.session.device,
                   "embedded, embedded:SCENARIO.json or unix:PATH (default: what the device file names)");
    app.add_option("--instance", options.session.instance, "the modem instance, 0 to 2")
        ->check(CLI::Range(0, 2));
    app.add_option("--timeout", timeout, "how long to wait for an answer, in ms")
        ->check(CLI::Range(1, 3600000));
    app.add_flag("--json", options.json, "print one JSON object per answer");
    app.add_flag("--trace", options.session.trace, "show every message on standard error");
    app.footer(kFooter);
    // What is no option of radioctl's own is the command's, wherever it stands.
    app.allow_extras();
    app.set_help_flag();
    try {
        app.parse(argc, argv);
        options.words = app.remaining();
        options.session.timeout = std::chrono::milliseconds(timeout);
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
