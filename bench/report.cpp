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

constexpr auto ratio = Unit::Ratio;
constexpr auto share = Unit::Share;
constexpr auto count = Unit::Count;
constexpr auto atMost = Limit::AtMost;
constexpr auto atLeast = Limit::AtLeast;

const Counter kCounters[] = {
    {{"void request", "beside the bare message", ratio, atMost, 1.10}, kPinned, "voidRequest", "ratio"},
    {{"void request, socket", "the same with the modem in a process of its own", ratio, atMost, 1.10},
     kPinnedSocket,
     "voidRequest",
     "ratio"},
    {{"64 in flight", "void requests beside bare messages", ratio, atMost, 1.30},
     kPinned,
     "voidRequestsInFlight",
     "ratio"},
    {{"64 in flight, socket", "the same with the modem in a process of its own", ratio, atMost, 1.10},
     kPinnedSocket,
     "voidRequestsInFlight",
     "ratio"},
    {{"all cells", "64 neighbours, beside the bare message", ratio, atMost, 1.10},
     kPinned,
     "allCells64",
     "ratio"},
    {{"network action", "2 x 64 cells, beside a finished block", ratio, atMost, 1.30},
     kPinned,
     "networkAction128",
     "ratio"},
    {{"NV write", "20480 bytes, beside the bare message", ratio, atMost, 1.20},
     kPinned,
     "nvWrite20480",
     "ratio"},
    {{"NV read", "20480 bytes, beside the bare message", ratio, atMost, 1.30},
     kPinned,
     "nvRead20480",
     "ratio"},
    {{"chain of three", "AT commands, beside three bare messages", ratio, atMost, 2.0},
     kPinned,
     "chainOfThree",
     "ratio"},
    {{"block of 28046 bytes", "2 x 64 cells packed, beside an array of packed ones", ratio, atMost, 2.0},
     kPinned,
     "block28046",
     "ratio"},
    {{"measurement report", "200 cells, beside the copying of the same bytes", ratio, atMost, 15},
     kPinned,
     "measurementReport",
     "ratio"},
    {{"trace off", "beside a link that knows of no trace", ratio, atMost, 1.01}, kTrace, "traceOff", "ratio"},
    {{"trace on", "the same, written to nowhere", ratio, atMost, 4}, kTrace, "traceOn", "ratio"},
    {{"record cleared", "share of a bare round trip", share, atMost, 0.03}, kPinned, "clearRecord", "ratio"},
    {{"3 fields built", "share of a bare round trip", share, atMost, 0.01},
     kPinned,
     "messageBuilt3",
     "ratio"},
    {{"3 fields read", "share of a bare round trip", share, atMost, 0.005}, kPinned, "messageRead3", "ratio"},
    {{"10 fields built", "share of a bare round trip", share, atMost, 0.02},
     kPinned,
     "messageBuilt10",
     "ratio"},
    {{"10 fields read", "share of a bare round trip", share, atMost, 0.02},
     kPinned,
     "messageRead10",
     "ratio"},
    {{"array of 64 built", "share of a bare round trip", share, atMost, 0.16},
     kPinned,
     "arrayBuilt64",
     "ratio"},
    {{"array of 64 read", "share of a bare round trip", share, atMost, 0.08},
     kPinned,
     "arrayRead64",
     "ratio"},
    {{"AT answer, 1 field", "share of a bare round trip", share, atMost, 0.02},
     kPinned,
     "parseAnswer<1>",
     "ratio"},
    {{"AT answer, 5 fields", "share of a bare round trip", share, atMost, 0.03},
     kPinned,
     "parseAnswer<5>",
     "ratio"},
    {{"AT answer, 24 fields", "share of a bare round trip", share, atMost, 0.05},
     kPinned,
     "parseAnswer<24>",
     "ratio"},
    {{"void request", "allocations by the library", count, atMost, 2},
     kPinned,
     "voidRequest",
     "library_allocs"},
    {{"void request's answer", "allocations by the library", count, atMost, 0},
     kPinned,
     "voidRequest",
     "library_reply_allocs"},
    {{"all cells' answer", "allocations by the library", count, atMost, 0},
     kPinned,
     "allCells64",
     "library_reply_allocs"},
    {{"NV read's answer", "allocations by the library", count, atMost, 0},
     kPinned,
     "nvRead20480",
     "library_reply_allocs"},
    {{"network action", "allocations by the library", count, atMost, 2},
     kPinned,
     "networkAction128",
     "library_allocs"},
    {{"measurement report", "allocations by the library", count, atMost, 0},
     kPinned,
     "measurementReport",
     "own_allocs"},
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

const Throughput kThroughputs[] = {
    {{"2 callers", "requests per second, beside one caller", ratio, atLeast, 0.9},
     kFree,
     "callers/instances:1/real_time/threads:2",
     kOneCaller,
     1},
    {{"4 callers", "the same", ratio, atLeast, 0.9},
     kFree,
     "callers/instances:1/real_time/threads:4",
     kOneCaller,
     1},
    {{"8 callers", "the same", ratio, atLeast, 0.9}, kFree, kEightCallers, kOneCaller, 1},
    {{"8 callers, socket", "the same", ratio, atLeast, 0.9}, kFreeSocket, kEightCallers, kOneCaller, 1},
    {{"8 callers on each of 3", "beside 8 on one instance", ratio, atLeast, 0.9},
     kFree,
     kThreeTimesEight,
     kEightCallers,
     1},
    {{"8 callers on each of 3, socket", "the same", ratio, atLeast, 1.3},
     kFreeSocket,
     kThreeTimesEight,
     kEightCallers,
     1},
    {{"8 listeners", "calls per second, beside one listener's", ratio, atLeast, 1},
     kFree,
     "listeners/8",
     "listeners/1",
     1.0 / 8},
    {{"64 listeners", "the same", ratio, atLeast, 1}, kFree, "listeners/64", "listeners/1", 1.0 / 64},
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
        rows.push_back(
            {name, "instructions", count, atMost, counted.at("limit"), counted.at("instructions")});
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
