#include "interface/cells.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace interface {

namespace {

/// What phones show: four bars from an RSRP of -85 dBm, none below -115 dBm.
std::string bars(int rsrp)
{
    constexpr std::array<std::pair<int, const char*>, 4> kLevels = {
        {{-85, "▂▄▆█"}, {-95, "▂▄▆ "}, {-105, "▂▄  "}, {-115, "▂   "}}};
    const auto* level = std::ranges::find_if(kLevels, [=](const auto& known) { return rsrp >= known.first; });
    return level != kLevels.end() ? level->second : "    ";
}

/// A step for every 6 dB from -120 dBm on.
std::string_view mark(int rsrp)
{
    constexpr std::array<std::string_view, 8> kMarks = {"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
    return kMarks[static_cast<size_t>(std::clamp((rsrp + 120) / 6, 0, 7))];
}

} // namespace

std::string CellTable::history(const Json& cell)
{
    constexpr size_t kMost = 40;
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

std::string CellTable::line(std::string_view which, const Json& cell)
{
    const auto number = [&](const char* name) { return cell.value(name, int64_t{0}); };
    const auto rsrp = static_cast<int>(number("rsrp"));
    const int64_t rat = number("rat");
    const std::string name = rat == RADIO_RAT_LTE ? "LTE" : rat == RADIO_RAT_NR ? "NR" : std::to_string(rat);
    return fmt::format("{:<10}{:>4}{:>6}{:>9}{:>6}{:>7}{:>6}{:>6}  {}  {}\n", which, name, number("band"),
                       number("arfcn"), number("pci"), rsrp, number("rsrq"), number("sinr"), bars(rsrp),
                       history(cell));
}

std::optional<std::string> CellTable::of(const Json& record)
{
    const bool isCell = record.is_object() && record.contains("rsrp");
    const bool hasCell = record.is_object() && record.contains("serving");
    if (!isCell && !hasCell) {
        return std::nullopt;
    }
    const Json& serving = isCell ? record : record["serving"];
    std::string text = fmt::format("{:<10}{:>4}{:>6}{:>9}{:>6}{:>7}{:>6}{:>6}\n", "", "RAT", "band", "ARFCN",
                                   "PCI", "RSRP", "RSRQ", "SINR");
    text += serving.value("rat", 0) != 0 ? line("serving", serving) : "no serving cell\n";
    for (const Json& neighbour : record.value("neighbours", Json::array())) {
        text += line("neighbour", neighbour);
    }
    return text;
}

} // namespace interface
