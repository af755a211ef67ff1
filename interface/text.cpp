#include "interface/text.h"

#include <fmt/format.h>

#include <algorithm>

namespace interface {

namespace {

/// A list of records that are shown as a table.
bool isTable(const Json& value)
{
    return value.is_array() && !value.empty() && value.front().is_object();
}

const Member* memberNamed(const Record* record, std::string_view name)
{
    if (record == nullptr) {
        return nullptr;
    }
    const auto found =
        std::ranges::find_if(record->members, [=](const Member& m) { return m.meaning.name == name; });
    return found != record->members.end() ? &*found : nullptr;
}

std::string valueText(const Json& value, const Member* member, bool raw)
{
    if (value.is_string()) {
        return value.get<std::string>();
    }
    if (value.is_array()) {
        std::vector<std::string> elements;
        for (const Json& element : value) {
            elements.push_back(valueText(element, member, true));
        }
        const std::string unit = raw || member == nullptr || member->meaning.unit.empty() || elements.empty()
                                     ? ""
                                     : fmt::format(" {}", member->meaning.unit);
        return fmt::format("{}{}", elements.empty() ? "-" : fmt::format("{}", fmt::join(elements, ", ")),
                           unit);
    }
    return raw || member == nullptr || !value.is_number() ? value.dump() : explained(member->meaning, value);
}

/// In a table the heading has the unit, and a name takes its number's place.
std::string cellText(const Json& value, const Member* member, bool raw)
{
    const std::string text = valueText(value, member, raw);
    const bool isNamed = !raw && member != nullptr && value.is_number() && text.ends_with(')');
    return isNamed ? text.substr(0, text.rfind(" (")) : !value.is_number() || raw ? text : value.dump();
}

/// Columns as wide as their widest value; numbers to the right, under their heading.
std::string table(const Json& rows, const Record* description, bool raw)
{
    std::vector<std::vector<std::string>> lines(rows.size() + 1);
    for (const auto& [name, ignored] : rows.front().items()) {
        const Member* member = memberNamed(description, name);
        const bool hasUnit = !raw && member != nullptr && !member->meaning.unit.empty();
        lines[0].push_back(hasUnit ? fmt::format("{} {}", name, member->meaning.unit) : name);
        for (size_t i = 0; i < rows.size(); ++i) {
            lines[i + 1].push_back(cellText(rows[i].at(name), member, raw));
        }
    }
    std::string text;
    for (const auto& line : lines) {
        for (size_t column = 0; column < line.size(); ++column) {
            size_t width = 0;
            std::ranges::for_each(lines,
                                  [&](const auto& other) { width = std::max(width, other[column].size()); });
            text += fmt::format("  {:>{}}", line[column], width);
        }
        text += '\n';
    }
    return text;
}

/// Mobile country and network code are one thing to people.
std::string plmnText(const Json& record)
{
    const auto mnc = record.at("mnc").get<int64_t>();
    const int digits = record.value("mncDigits", 2) == 3 || mnc > 99 ? 3 : 2;
    return fmt::format("{:03}/{:0{}}", record.at("mcc").get<int64_t>(), mnc, digits);
}

bool isTold(const Json& record, const std::string& name, const Json& value, const Member* member)
{
    if (member == nullptr) {
        return true;
    }
    const bool isCountOfShown = member->counts;
    const bool isNoFailure = member->meaning.tellsFailure && value == 0;
    const bool isOfPlmn = record.contains("mcc") && (name == "mnc" || name == "mncDigits");
    return !isCountOfShown && !isNoFailure && !isOfPlmn;
}

std::string indented(const std::string& text)
{
    std::string out;
    for (size_t begin = 0; begin < text.size();) {
        const size_t end = text.find('\n', begin) + 1;
        out += "  " + text.substr(begin, end - begin);
        begin = end;
    }
    return out;
}

} // namespace

std::string asText(const Json& record, const Record* description, bool raw)
{
    struct Line {
        std::string name;
        std::string text;
        bool isBlock;
    };
    std::vector<Line> lines;
    size_t width = 0;
    for (const auto& [name, value] : record.items()) {
        const Member* member = memberNamed(description, name);
        const Record* inner = member != nullptr ? member->record : nullptr;
        if (!raw && !isTold(record, name, value, member)) {
            continue;
        }
        if (isTable(value)) {
            lines.push_back({fmt::format("{} ({})", name, value.size()), table(value, inner, raw), true});
        } else if (value.is_object()) {
            lines.push_back({name, indented(asText(value, inner, raw)), true});
        } else if (!raw && name == "mcc" && record.contains("mnc")) {
            lines.push_back({"PLMN", plmnText(record), false});
        } else {
            lines.push_back({name, valueText(value, member, raw), false});
        }
        width = std::max(width, lines.back().isBlock ? 0 : lines.back().name.size());
    }
    std::string text = lines.empty() ? "ok\n" : "";
    for (const Line& line : lines) {
        text += line.isBlock ? fmt::format("{}\n{}", line.name, line.text)
                             : fmt::format("{:<{}}  {}\n", line.name, width, line.text);
    }
    return text;
}

} // namespace interface
