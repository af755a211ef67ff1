/// modem-sim: the simulated modem as a process of its own, for any number of programs at once.
#include "server.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <csignal>
#include <cstdio>

namespace {

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;
constexpr std::string_view kUnix = "unix:";

constexpr char kFooter[] = R"(
Programs reach it by the device name unix:PATH: radioctl --device unix:PATH REQUEST.
It ends on Ctrl-C and on SIGTERM.

Exit status: 0 ended when told, 1 can't listen or bad scenario, 2 wrong usage.)";

struct Options {
    std::string device;
    std::string scenario;
    sim::TraceOptions trace;
    bool quiet = false;
};

void serve(const Options& options)
{
    const auto report = [&](const std::string& what) {
        if (!options.quiet) {
            fmt::print("modem-sim: {}\n", what);
            std::fflush(stdout);
        }
    };
    asio::io_context context(1);
    asio::signal_set signals(context, SIGINT, SIGTERM);
    signals.async_wait([&](asio::error_code, int) { context.stop(); });
    const auto scenario =
        options.scenario.empty() ? sim::Scenario::builtIn() : sim::Scenario::fromFile(options.scenario);
    auto trace = options.trace.file.empty() ? nullptr : std::make_unique<sim::Trace>(options.trace);
    const modem_sim::Server server(context, options.device.substr(kUnix.size()), scenario, std::move(trace),
                                   report);
    fmt::print("modem-sim: listening at {}\n", options.device);
    std::fflush(stdout);
    context.run();
    report("stopped");
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("The simulated modem as a process of its own.", "modem-sim");
    Options options;
    app.add_option("--listen", options.device, "where to listen, unix:PATH")
        ->required()
        ->check([](const std::string& text) {
            const bool isPath = text.starts_with(kUnix) && text.size() > kUnix.size();
            return isPath ? std::string() : "must be unix:PATH";
        });
    app.add_option("--scenario", options.scenario, "what the modem starts with (default: built in)")
        ->check(CLI::ExistingFile);
    app.add_option("--trace", options.trace.file, "append every message to this file; - is standard error");
    app.add_flag("--trace-json", options.trace.json, "trace one JSON object per line")->needs("--trace");
    app.add_flag("--quiet", options.quiet, "print only that it listens");
    app.footer(kFooter);
    try {
        app.parse(argc, argv);
        serve(options);
        return 0;
    } catch (const CLI::CallForHelp&) {
        fmt::print("{}", app.help());
        return 0;
    } catch (const CLI::ParseError& error) {
        fmt::print(stderr, "modem-sim: {}\n", error.what());
        return kExitUsage;
    } catch (const std::exception& error) {
        fmt::print(stderr, "modem-sim: {}\n", error.what());
        return kExitFailure;
    }
}
