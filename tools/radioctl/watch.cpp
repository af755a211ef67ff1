// One request again and again.
#include "interface/cells.h"
#include "interface/rows.h"
#include "radioctl/output.h"
#include "radioctl/program.h"
#include "radioctl/signals.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <unistd.h>

namespace radioctl {

namespace {

using Clock = std::chrono::steady_clock;

struct WatchOptions {
    unsigned every = 1000; ///< ms
    uint64_t count = 0;    ///< stop after so many answers; 0: at SIGINT or SIGTERM
    std::string log;
};

void addWatchOptions(CLI::App& app, WatchOptions& options)
{
    app.add_option("--every", options.every, "the time from one to the next, in ms (default 1000)")
        ->type_name("MS")
        ->check(CLI::Range(10, 3600000));
    app.add_option("--count", options.count, "stop after so many answers (default: at Ctrl-C)")
        ->type_name("N")
        ->check(CLI::PositiveNumber);
    app.add_option("--log", options.log, "write every answer's numbers into a table that spreadsheets read")
        ->type_name("FILE.csv");
}

/// To the upper left corner; what stands below is erased after the new picture, so that nothing flickers.
constexpr std::string_view kHome = "\033[H";
constexpr std::string_view kEraseBelow = "\033[J";
constexpr std::string_view kEraseLine = "\033[K";

void show(const std::string& text)
{
    if (isatty(STDOUT_FILENO) == 0) {
        fmt::print("{}", text);
        return;
    }
    std::string picture(kHome);
    for (const char c : text) {
        picture += c == '\n' ? std::string(kEraseLine) + c : std::string(1, c);
    }
    fmt::print("{}{}", picture, kEraseBelow);
}

/// The file of all answers' numbers.
class Log {
public:
    Log(const std::string& name, const interface::Record& record) : mName(name), mFile(name), mRows(record)
    {
        write(mRows.heading());
    }

    void add(const Json& record) { write(mRows.of(now(), record)); }

private:
    void write(const std::string& text)
    {
        if (!(mFile << text << std::flush)) {
            throw std::runtime_error(fmt::format("can't write {}: {}", mName, std::strerror(errno)));
        }
    }

    std::string mName;
    std::ofstream mFile;
    interface::Rows mRows;
};

} // namespace

std::vector<OptionText> watchOptions()
{
    return optionTexts(addWatchOptions);
}

int runWatch(Program& program, const Line& line)
{
    CLI::App app("Send one request again and again and show its answer.", "radioctl watch");
    WatchOptions how;
    addWatchOptions(app, how);
    app.allow_extras();
    app.footer("\nWhat is none of these options is the request and its arguments.");
    if (!parseCommandOptions(app, line.words)) {
        return kExitSuccess;
    }
    const Words words = app.remaining();
    if (words.empty()) {
        throw UsageError("watch wants a REQUEST; 'radioctl list' tells them");
    }
    const RequestCall call = parseRequest(words);
    const interface::Request& request = *call.request;
    std::optional<Log> log;
    if (!how.log.empty()) {
        if (request.answer == nullptr) {
            throw UsageError(fmt::format("--log: {} answers nothing to log", request.name));
        }
        log.emplace(how.log, *request.answer);
    }
    holdSignals();
    program.session(line.options);
    interface::CellTable cells;
    Clock::time_point next = Clock::now();
    for (uint64_t answers = 1;; ++answers) {
        const Outcome outcome = program.send(request, call.arguments, line.options);
        if (line.options.json || !outcome.succeeded()) {
            const int status = printOutcome(request, outcome, line.options, {{"time", now()}});
            if (status != kExitSuccess) {
                return status;
            }
        } else {
            const auto table = line.options.raw ? std::nullopt : cells.of(outcome.record);
            show(table ? *table : textOf(request, outcome, line.options));
        }
        std::fflush(stdout);
        if (log && outcome.record.is_object()) {
            log->add(outcome.record);
        }
        // An answer that took longer than the period does not make the next ones come in a hurry.
        next = std::max(next + std::chrono::milliseconds(how.every), Clock::now());
        const auto pause = std::chrono::ceil<std::chrono::milliseconds>(next - Clock::now());
        if (answers == how.count || awaitEnd(pause)) {
            return kExitSuccess;
        }
    }
}

} // namespace radioctl
