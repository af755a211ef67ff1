/// Makes one table of what the benchmarks measured, with the limit of each row: on standard output, as bench.json and as
/// a chart, bench.svg. Ends with 1 when a limit is broken.
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using json = nlohmann::ordered_json; // rows stay in the order in which they were written
using std::filesystem::path;

enum class Unit { Ratio, Share, Count };
enum class Limit { AtMost, AtLeast };

struct Row {
    std::string name;
    std::string what;
    Unit unit;
    Limit kind;
    double limit;
    double value = 0;

    bool holds() const { return kind == Limit::AtMost ? value <= limit : value >= limit; }

    /// How much of what is allowed it takes.
    double used() const
    {
        if (kind == Limit::AtLeast) {
            return limit / value;
        }
        return limit == 0 ? (value > 0 ? 2 : 0) : value / limit;
    }
};

/// A row that shows one counter of one benchmark.
struct Counter {
    Row row;
    const char* run;
    const char* benchmark;
    const char* counter;
};

// Which processors and which modem each run had, is the business of whoever made it.
constexpr char kPinned[] = "pinned";
constexpr char kPinnedSocket[] = "pinned-socket";
constexpr char kFree[] = "free";
constexpr char kFreeSocket[] = "free-socket";
constexpr char kTrace[] = "trace";

/// The ratio of a pair.
Counter pairOf(const char* benchmark, const char* name, const char* what, double limit,
               const char* run = kPinned)
{
    return {{name, what, Unit::Ratio, Limit::AtMost, limit}, run, benchmark, "ratio"};
}

/// The ratio to a bare round trip of something that is a small part of one.
Counter shareOf(const char* benchmark, const char* name, double limit)
{
    return {
        {name, "share of a bare round trip", Unit::Share, Limit::AtMost, limit}, kPinned, benchmark, "ratio"};
}

Counter allocationsOf(const char* benchmark, const char* counter, const char* name, double limit)
{
    return {
        {name, "allocations by the library", Unit::Count, Limit::AtMost, limit}, kPinned, benchmark, counter};
}

const Counter kCounters[] = {
    pairOf("voidRequest", "void request", "beside the bare message", 1.10),
    pairOf("voidRequest", "void request, socket", "the modem in a process of its own", 1.10, kPinnedSocket),
    pairOf("voidRequestsInFlight", "64 in flight", "void requests beside bare messages", 1.30),
    pairOf("voidRequestsInFlight", "64 in flight, socket", "the modem in a process of its own", 1.10,
           kPinnedSocket),
    pairOf("allCells64", "all cells", "64 neighbours, beside the bare message", 1.10),
    pairOf("networkAction128", "network action", "2 x 64 cells, beside a finished block", 1.30),
    pairOf("nvWrite20480", "NV write", "20480 bytes, beside the bare message", 1.20),
    pairOf("nvRead20480", "NV read", "20480 bytes, beside the bare message", 1.30),
    pairOf("chainOfThree", "chain of three", "AT commands, beside three bare messages", 2.0),
    pairOf("block28046", "block of 28046 bytes", "2 x 64 cells packed, beside an array of packed ones", 2.0),
    pairOf("measurementReport", "measurement report", "200 cells, beside the copying of the same bytes", 15),
    pairOf("traceOff", "trace off", "beside a link that knows of no trace", 1.01, kTrace),
    pairOf("traceOn", "trace on", "the same, written to nowhere", 4, kTrace),
    shareOf("clearRecord", "record cleared", 0.03),
    shareOf("messageBuilt3", "3 fields built", 0.01),
    shareOf("messageRead3", "3 fields read", 0.005),
    shareOf("messageBuilt10", "10 fields built", 0.02),
    shareOf("messageRead10", "10 fields read", 0.02),
    shareOf("arrayBuilt64", "array of 64 built", 0.16),
    shareOf("arrayRead64", "array of 64 read", 0.08),
    shareOf("parseAnswer<1>", "AT answer, 1 field", 0.02),
    shareOf("parseAnswer<5>", "AT answer, 5 fields", 0.03),
    shareOf("parseAnswer<24>", "AT answer, 24 fields", 0.05),
    allocationsOf("voidRequest", "library_allocs", "void request", 2),
    allocationsOf("networkAction128", "library_allocs", "network action", 2),
    allocationsOf("voidRequest", "library_reply_allocs", "void request's answer", 0),
    allocationsOf("allCells64", "library_reply_allocs", "all cells' answer", 0),
    allocationsOf("nvRead20480", "library_reply_allocs", "NV read's answer", 0),
    allocationsOf("measurementReport", "own_allocs", "measurement report", 0),
};

/// A row that compares how much two benchmarks of a run do per second.
struct Throughput {
    Row row;
    const char* run;
    const char* benchmark;
    const char* beside;
    double times; ///< what the other one does counts so often
};

constexpr char kOneCaller[] = "callers/instances:1/real_time/threads:1";
constexpr char kEightCallers[] = "callers/instances:1/real_time/threads:8";
constexpr char kThreeTimesEight[] = "callers/instances:3/real_time/threads:24";

Throughput callersOf(const char* benchmark, const char* name, double limit, const char* run = kFree,
                     const char* beside = kOneCaller,
                     const char* what = "requests per second, beside one caller")
{
    return {{name, what, Unit::Ratio, Limit::AtLeast, limit}, run, benchmark, beside, 1};
}

Throughput listenersOf(const char* benchmark, const char* name, int listeners)
{
    constexpr char kWhat[] = "calls per second, beside one listener's";
    return {{name, kWhat, Unit::Ratio, Limit::AtLeast, 1}, kFree, benchmark, "listeners/1", 1.0 / listeners};
}

constexpr char kThreeWhat[] = "requests per second, beside 8 on one instance";

const Throughput kThroughputs[] = {
    callersOf("callers/instances:1/real_time/threads:2", "2 callers", 0.9),
    callersOf("callers/instances:1/real_time/threads:4", "4 callers", 0.9),
    callersOf(kEightCallers, "8 callers", 0.9),
    callersOf(kEightCallers, "8 callers, socket", 0.9, kFreeSocket),
    callersOf(kThreeTimesEight, "8 callers on each of 3", 0.9, kFree, kEightCallers, kThreeWhat),
    callersOf(kThreeTimesEight, "8 callers on each of 3, socket", 1.3, kFreeSocket, kEightCallers,
              kThreeWhat),
    listenersOf("listeners/8", "8 listeners", 8),
    listenersOf("listeners/64", "64 listeners", 64),
};

json parsed(const path& file)
{
    std::ifstream in(file);
    if (!in) {
        throw std::runtime_error(file.string() + " can't be read");
    }
    return json::parse(in);
}

/// What one run measured of a benchmark.
const json& find(const json& run, const std::string& benchmark)
{
    for (const json& each : run.at("benchmarks")) {
        if (each.at("name") == benchmark) {
            return each;
        }
    }
    throw std::runtime_error("no benchmark " + benchmark);
}

std::vector<Row> rowsOf(const path& folder)
{
    std::map<std::string, json> runs;
    for (const char* run : {kPinned, kPinnedSocket, kFree, kFreeSocket, kTrace}) {
        runs[run] = parsed(folder / (std::string(run) + ".json"));
    }
    std::vector<Row> rows;
    for (const Counter& counter : kCounters) {
        rows.push_back(counter.row);
        rows.back().value = find(runs[counter.run], counter.benchmark).at(counter.counter);
    }
    const auto perSecond = [](const json& run, const char* benchmark) {
        return find(run, benchmark).at("items_per_second").get<double>();
    };
    for (const Throughput& throughput : kThroughputs) {
        const json& run = runs[throughput.run];
        rows.push_back(throughput.row);
        rows.back().value =
            perSecond(run, throughput.benchmark) / (perSecond(run, throughput.beside) * throughput.times);
    }
    const json instructions = parsed(folder / "instructions.json");
    for (const auto& [name, counted] : instructions.items()) {
        rows.push_back({name, "instructions", Unit::Count, Limit::AtMost, counted.at("limit"),
                        counted.at("instructions")});
    }
    return rows;
}

std::string shown(Unit unit, double value)
{
    switch (unit) {
    case Unit::Ratio:
        return fmt::format("{:.3f}", value);
    case Unit::Share:
        return fmt::format("{:.2f} %", value * 100);
    default:
        return fmt::format("{:.0f}", value);
    }
}

std::string shownLimit(const Row& row)
{
    return (row.kind == Limit::AtMost ? "<= " : ">= ") + shown(row.unit, row.limit);
}

void print(const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        fmt::print("{:30} {:52} {:>10} {:>11}{}\n", row.name, row.what, shown(row.unit, row.value),
                   shownLimit(row), row.holds() ? "" : "  BROKEN");
    }
}

json asJson(const std::vector<Row>& rows)
{
    json all = json::array();
    for (const Row& row : rows) {
        all.push_back({{"name", row.name},
                       {"what", row.what},
                       {"value", row.value},
                       {row.kind == Limit::AtMost ? "at_most" : "at_least", row.limit},
                       {"holds", row.holds()}});
    }
    return all;
}

std::string escaped(std::string text)
{
    for (size_t at = 0; (at = text.find('<', at)) != std::string::npos;) {
        text.replace(at, 1, "&lt;");
    }
    return text;
}

/// A bar for each row: how much of what is allowed it takes.
std::string chart(const std::vector<Row>& rows)
{
    constexpr int kLine = 20;
    constexpr int kTop = 50;
    constexpr int kBarsLeft = 500;
    constexpr int kAllowed = 300; ///< how long a bar may be
    constexpr double kLongest = 1.3;
    const int height = kTop + kLine * static_cast<int>(rows.size()) + 20;
    std::string svg = fmt::format(
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="1080" height="{0}" font-family="sans-serif" font-size="12">
<rect width="1080" height="{0}" fill="white"/>
<text x="10" y="25" font-size="16">What the library costs: how much of its limit each row takes</text>
)",
        height);
    for (size_t i = 0; i < rows.size(); ++i) {
        const Row& row = rows[i];
        const int y = kTop + kLine * static_cast<int>(i);
        svg += fmt::format(R"(<text x="10" y="{0}">{1}: {2}</text>
<rect x="{3}" y="{4}" width="{5:.0f}" height="14" fill="{6}"/>
<text x="900" y="{0}">{7} ({8})</text>
)",
                           y + 12, escaped(row.name), escaped(row.what), kBarsLeft, y + 1,
                           kAllowed * std::min(row.used(), kLongest), row.holds() ? "#4a7ebb" : "#c0392b",
                           shown(row.unit, row.value), escaped(shownLimit(row)));
    }
    svg += fmt::format(
        R"(<line x1="{0}" y1="{1}" x2="{0}" y2="{2}" stroke="black" stroke-dasharray="4 3"/>
<text x="{0}" y="{3}" text-anchor="middle">limit</text>
</svg>
)",
        kBarsLeft + kAllowed, kTop - 5, height - 15, kTop - 10);
    return svg;
}

void write(const path& file, const std::string& text)
{
    std::ofstream out(file);
    out << text;
    out.close();
    if (!out) {
        throw std::runtime_error(file.string() + " can't be written");
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("Usage: bench_report MEASURED_DIR OUT_DIR\n", stderr);
        return 2;
    }
    try {
        const std::vector<Row> rows = rowsOf(argv[1]);
        print(rows);
        write(path(argv[2]) / "bench.json", asJson(rows).dump(2) + "\n");
        write(path(argv[2]) / "bench.svg", chart(rows));
        return std::ranges::all_of(rows, &Row::holds) ? 0 : 1;
    } catch (const std::exception& error) {
        fmt::print(stderr, "bench_report: {}\n", error.what());
        return 2;
    }
}
