#include "radioctl/output.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <cstdio>

namespace radioctl {

void addRecord(Json& out, const Json& record, const interface::Record* description, const Options& options)
{
    out["record"] = record;
    if (options.explain && description != nullptr && record.is_object()) {
        out["explained"] = interface::explanations(*description, record);
    }
}

std::string textOf(const interface::Request& request, const Outcome& outcome, const Options& options)
{
    return outcome.record.is_null() ? "ok\n" : interface::asText(outcome.record, request.answer, options.raw);
}

int printOutcome(const interface::Request& request, const Outcome& outcome, const Options& options,
                 Json front)
{
    if (options.json) {
        front["request"] = request.name;
        if (outcome.kind != Outcome::Kind::TimedOut) {
            front["result"] = outcome.result;
        }
        if (!outcome.succeeded()) {
            front["error"] = outcome.error();
            front["reason"] = outcome.reason();
        }
        addRecord(front, outcome.record, request.answer, options);
        fmt::print("{}\n", front.dump());
    } else if (outcome.succeeded()) {
        fmt::print("{}", textOf(request, outcome, options));
    } else {
        std::fflush(stdout);
        fmt::print(stderr, "radioctl: {}: {}\n", request.name, outcome.reason());
    }
    std::fflush(stdout);
    return exitStatus(outcome);
}

void printError(const std::string& command, const char* error, const std::string& reason,
                const Options& options)
{
    if (options.json) {
        Json out = Json::object();
        if (!command.empty()) {
            out["request"] = command;
        }
        out["error"] = error;
        out["reason"] = reason;
        fmt::print("{}\n", out.dump(-1, ' ', false, Json::error_handler_t::replace));
        std::fflush(stdout);
    } else {
        std::fflush(stdout);
        fmt::print(stderr, "radioctl: {}\n", reason);
    }
}

std::string now()
{
    using namespace std::chrono;
    const auto time = floor<milliseconds>(system_clock::now());
    const auto milli = duration_cast<milliseconds>(time.time_since_epoch()).count() % 1000;
    return fmt::format("{:%FT%T}.{:03}Z", fmt::gmtime(system_clock::to_time_t(time)), milli);
}

} // namespace radioctl
