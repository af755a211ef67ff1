#include "interface/rows.h"

#include <fmt/format.h>

#include <algorithm>

namespace interface {

namespace {

/// Quoted where a comma or a quote would be taken for more.
std::string cell(const Json& value)
{
    std::string text = value.is_string() ? value.get<std::string>() : value.dump();
    if (text.find_first_of(",\"") == std::string::npos) {
        return text;
    }
    for (size_t at = 0; (at = text.find('"', at)) != std::string::npos; at += 2) {
        text.insert(at, 1, '"');
    }
    return fmt::format("\"{}\"", text);
}

} // namespace

void Rows::addColumns(const Record& record)
{
    for (const Member& member : record.members) {
        const std::string name(member.meaning.name);
        if (member.record != nullptr) {
            addColumns(*member.record);
        } else if (!member.meaning.isUnused && std::ranges::find(mColumns, name) == mColumns.end()) {
            mColumns.push_back(name);
        }
    }
}

std::string Rows::heading() const
{
    return fmt::format("time,part,{}\n", fmt::join(mColumns, ","));
}

std::string Rows::rows(const std::string& time, const std::string& part, const Json& record) const
{
    std::string text = fmt::format("{},{}", time, part);
    bool isEmpty = true;
    for (const std::string& column : mColumns) {
        const auto value = record.find(column);
        const bool isTold = value != record.end() && !value->is_object();
        isEmpty = isEmpty && !isTold;
        text += ',';
        text += isTold ? cell(*value) : "";
    }
    text = isEmpty ? "" : text + '\n';
    for (const auto& [name, value] : record.items()) {
        const std::string place = part.empty() ? name : fmt::format("{}.{}", part, name);
        if (value.is_object()) {
            text += rows(time, place, value);
        }
        for (size_t i = 0; value.is_array() && i < value.size() && value[i].is_object(); ++i) {
            text += rows(time, fmt::format("{}[{}]", place, i), value[i]);
        }
    }
    return text;
}

} // namespace interface
