#include "radioctl/print.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>

namespace radioctl {

namespace {

std::string cellText(const Json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

bool isTable(const Json& value)
{
    return value.is_array() && !value.empty() && value.front().is_object();
}

/// Columns as wide as their widest value; numbers to the right, under their heading.
std::string table(const Json& rows)
{
    std::vector<std::string> names;
    std::vector<size_t> widths;
    for (const auto& [name, value] : rows.front().items()) {
        names.push_back(name);
        widths.push_back(name.size());
    }
    for (const Json& row : rows) {
        for (size_t i = 0; i < names.size(); ++i) {
            widths[i] = std::max(widths[i], cellText(row.at(names[i])).size());
        }
    }
    std::string text;
    for (size_t i = 0; i < names.size(); ++i) {
        text += fmt::format("  {:>{}}", names[i], widths[i]);
    }
    text += '\n';
    for (const Json& row : rows) {
        for (size_t i = 0; i < names.size(); ++i) {
            text += fmt::format("  {:>{}}", cellText(row.at(names[i])), widths[i]);
        }
        text += '\n';
    }
    return text;
}

} // namespace

std::string asTable(Json record)
{
    for (const char* verdict : {"failure", "result"}) {
        if (record.value(verdict, 1U) == 0) {
            record.erase(verdict); // no news
        }
    }
    size_t width = 0;
    for (const auto& [name, value] : record.items()) {
        width = std::max(width, isTable(value) ? 0 : name.size());
    }
    std::string text = record.empty() ? "ok\n" : "";
    for (const auto& [name, value] : record.items()) {
        text += isTable(value) ? fmt::format("{} ({})\n{}", name, value.size(), table(value))
                               : fmt::format("{:<{}}  {}\n", name, width, cellText(value));
    }
    return text;
}

int printOutcome(const Request& request, const Outcome& outcome, bool json)
{
    const std::string name = request.name();
    if (json && outcome.kind == Outcome::Kind::Answered) {
        fmt::print("{}\n",
                   Json{{"request", name}, {"result", outcome.result}, {"record", outcome.record}}.dump());
    } else if (outcome.succeeded()) {
        fmt::print("{}", outcome.record.is_null() ? "ok\n" : asTable(outcome.record));
    }
    std::fflush(stdout);
    if (outcome.succeeded()) {
        return kExitSuccess;
    }
    switch (outcome.kind) {
    case Outcome::Kind::TimedOut:
        fmt::print(stderr, "radioctl: {}: no answer in time\n", name);
        return kExitTimeout;
    case Outcome::Kind::Refused:
        fmt::print(stderr, "radioctl: {}: refused, result {}\n", name, outcome.result);
        return kExitFailure;
    case Outcome::Kind::Answered:
        break;
    }
    if (outcome.result == RADIO_APIS_SUCCESS) {
        fmt::print(stderr, "radioctl: {}: the modem reported a failure\n", name);
    } else {
        fmt::print(stderr, "radioctl: {}: failed, result {}\n", name, outcome.result);
    }
    return kExitFailure;
}

std::string requestList(bool json)
{
    if (json) {
        Json list = Json::array();
        for (const Request& request : requests()) {
            list.push_back({{"name", request.name()},
                            {"entryPoint", request.entryPoint},
                            {"group", request.group},
                            {"help", request.help}});
        }
        return list.dump() + "\n";
    }
    std::string text;
    std::string group;
    for (const Request& request : requests()) {
        if (request.group != group) {
            group = request.group;
            text += fmt::format("{}{}\n", text.empty() ? "" : "\n", group);
        }
        text += fmt::format("  {:<34} {}\n", request.name(), request.help);
    }
    return text;
}

} // namespace radioctl
