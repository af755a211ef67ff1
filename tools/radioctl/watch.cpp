#include "radioctl/watch.h"

#include "radioctl/print.h"
#include "radioctl/signals.h"

#include <fmt/format.h>

#include <array>
#include <unistd.h>

namespace radioctl {

namespace {

using Clock = std::chrono::steady_clock;

/// To the upper left corner; what stands below is erased after the new picture, so that nothing flickers.
constexpr std::string_view kHome = "\033[H";
constexpr std::string_view kEraseBelow = "\033[J";
constexpr std::string_view kEraseLine = "\033[K";

/// What phones show: four bars from an RSRP of -85 dBm, none below -115 dBm.
std::string bars(int rsrp)
{
    constexpr std::array<std::pair<int, const char*>, 4> kLevels = {
        {{-85, "▂▄▆█"}, {-95, "▂▄▆ "}, {-105, "▂▄  "}, {-115, "▂   "}}};
    for (const auto& [least, shown] : kLevels) {
        if (rsrp >= least) {
            return shown;
        }
    }
    return "    ";
}

std::string ratName(int64_t rat)
{
    constexpr int64_t kLte = 4;
    constexpr int64_t kNr = 5;
    return rat == kLte ? "LTE" : rat == kNr ? "NR" : std::to_string(rat);
}

std::string cellLine(std::string_view which, const Json& cell)
{
    const auto number = [&](const char* name) { return cell.value(name, int64_t{0}); };
    const auto rsrp = static_cast<int>(number("rsrp"));
    return fmt::format("{:<10}{:>4}{:>6}{:>9}{:>6}{:>7}{:>6}{:>6}  {}\n", which, ratName(number("rat")),
                       number("band"), number("arfcn"), number("pci"), rsrp, number("rsrq"), number("sinr"),
                       bars(rsrp));
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

} // namespace

std::string cellsAsTable(const Json& record)
{
    if (!record.contains("rsrp")) {
        return asTable(record);
    }
    std::string text = fmt::format("{:<10}{:>4}{:>6}{:>9}{:>6}{:>7}{:>6}{:>6}\n", "", "RAT", "band", "ARFCN",
                                   "PCI", "RSRP", "RSRQ", "SINR");
    text += record.value("rat", 0) != 0 ? cellLine("serving", record) : "no serving cell\n";
    for (const Json& neighbour : record.value("neighbours", Json::array())) {
        text += cellLine("neighbour", neighbour);
    }
    return text;
}

int watch(const WatchOptions& options, const Request& request, const Arguments& arguments,
          const Session& session)
{
    Clock::time_point next = Clock::now();
    for (uint64_t answers = 1;; ++answers) {
        const Outcome outcome = session.run(request, arguments);
        if (options.json || !outcome.succeeded()) {
            const int status = printOutcome(request, outcome, options.json);
            if (status != kExitSuccess) {
                return status;
            }
        } else {
            show(outcome.record.is_null() ? "ok\n" : cellsAsTable(outcome.record));
        }
        std::fflush(stdout);
        // An answer that took longer than the period does not make the next ones come in a hurry.
        next = std::max(next + options.every, Clock::now());
        const auto pause = std::chrono::ceil<std::chrono::milliseconds>(next - Clock::now());
        if (answers == options.count || awaitEnd(pause)) {
            return kExitSuccess;
        }
    }
}

} // namespace radioctl
