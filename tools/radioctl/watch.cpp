// One request again and again.
#include "interface/rows.h"
#include "radioctl/output.h"
#include "radioctl/program.h"
#include "radioctl/signals.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <deque>
#include <fstream>
#include <map>
#include <tuple>
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

/// What phones show: four bars from an RSRP of -85 dBm, none below -115 dBm.
std::string bars(int rsrp)
{
    constexpr std::array<std::pair<int, const char*>, 4> kLevels = {
        {{-85, "▂▄▆█"}, {-95, "▂▄▆ "}, {-105, "▂▄  "}, {-115, "▂   "}}};
    const auto* level = std::ranges::find_if(kLevels, [=](const auto& known) { return rsrp >= known.first; });
    return level != kLevels.end() ? level->second : "    ";
}

/// The signals of each cell over time.
class History {
public:
    /// Adds a cell's signal and returns the line of its last ones.
    std::string add(const Json& cell)
    {
        auto& signals =
            mSignals[{cell.value("rat", 0), cell.value("arfcn", int64_t{0}), cell.value("pci", int64_t{0})}];
        signals.push_back(cell.value("rsrp", 0));
        if (signals.size() > kMost) {
            signals.pop_front();
        }
        std::string line;
        for (const int rsrp : signals) {
            line += mark(rsrp);
        }
        return line;
    }

private:
    static constexpr size_t kMost = 40;

    /// A step for every 6 dB from -120 dBm on.
    static const char* mark(int rsrp)
    {
        constexpr std::array<const char*, 8> kMarks = {"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
        return kMarks[static_cast<size_t>(std::clamp((rsrp + 120) / 6, 0, 7))];
    }

    std::map<std::tuple<int, int64_t, int64_t>, std::deque<int>> mSignals;
};

/// The cells of an answer: the serving one and its neighbours, by the names under which they stand.
struct Cells {
    const Json* serving = nullptr;
    const Json* neighbours = nullptr;

    explicit Cells(const Json& record)
    {
        const bool isCell = record.is_object() && record.contains("rsrp");
        serving = isCell                                             ? &record
                  : record.is_object() && record.contains("serving") ? &record["serving"]
                                                                     : nullptr;
        neighbours = record.is_object() && record.contains("neighbours") ? &record["neighbours"] : nullptr;
    }
};

std::string cellLine(std::string_view which, const Json& cell, History& history)
{
    const auto number = [&](const char* name) { return cell.value(name, int64_t{0}); };
    const auto rsrp = static_cast<int>(number("rsrp"));
    const int64_t rat = number("rat");
    const std::string name = rat == RADIO_RAT_LTE ? "LTE" : rat == RADIO_RAT_NR ? "NR" : std::to_string(rat);
    return fmt::format("{:<10}{:>4}{:>6}{:>9}{:>6}{:>7}{:>6}{:>6}  {}  {}\n", which, name, number("band"),
                       number("arfcn"), number("pci"), rsrp, number("rsrq"), number("sinr"), bars(rsrp),
                       history.add(cell));
}

std::string cellsAsTable(const Cells& cells, History& history)
{
    std::string text = fmt::format("{:<10}{:>4}{:>6}{:>9}{:>6}{:>7}{:>6}{:>6}\n", "", "RAT", "band", "ARFCN",
                                   "PCI", "RSRP", "RSRQ", "SINR");
    text += cells.serving->value("rat", 0) != 0 ? cellLine("serving", *cells.serving, history)
                                                : "no serving cell\n";
    for (size_t i = 0; cells.neighbours != nullptr && i < cells.neighbours->size(); ++i) {
        text += cellLine("neighbour", (*cells.neighbours)[i], history);
    }
    return text;
}

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
    CLI::App app;
    WatchOptions options;
    addWatchOptions(app, options);
    return optionTexts(app);
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
    History history;
    Clock::time_point next = Clock::now();
    for (uint64_t answers = 1;; ++answers) {
        const Outcome outcome = program.send(request, call.arguments, line.options);
        const Cells cells(outcome.record);
        if (line.options.json || !outcome.succeeded()) {
            const int status = printOutcome(request, outcome, line.options, {{"time", now()}});
            if (status != kExitSuccess) {
                return status;
            }
        } else if (cells.serving != nullptr && !line.options.raw) {
            show(cellsAsTable(cells, history));
        } else {
            show(outcome.record.is_null() ? "ok\n"
                                          : asText(outcome.record, request.answer, line.options.raw));
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
