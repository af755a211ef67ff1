#include "radioctl/variables.h"

#include <fmt/format.h>

#include <algorithm>

namespace radioctl {

namespace {

bool isNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::string_view takeName(std::string_view& text)
{
    const auto end = std::ranges::find_if_not(text, isNameCharacter);
    const std::string_view name = text.substr(0, static_cast<size_t>(end - text.begin()));
    text.remove_prefix(name.size());
    return name;
}

/// The member or element that `text` goes on with; null when it does not go on.
const Json* step(const Json& value, std::string_view& text)
{
    std::string_view rest = text.substr(std::min<size_t>(text.size(), 1));
    const std::string_view name = takeName(rest);
    if (text.starts_with('.') && !name.empty()) {
        if (!value.is_object() || !value.contains(name)) {
            throw UsageError(fmt::format("there is no member '{}' in {}", name, value.dump()));
        }
        text = rest;
        return &value.at(name);
    }
    if (text.starts_with('[') && rest.starts_with(']')) {
        const auto index = parseNumber<size_t>("index", name);
        if (!value.is_array() || index >= value.size()) {
            throw UsageError(fmt::format("there is no element {} in {}", index, value.dump()));
        }
        text = rest.substr(1);
        return &value.at(index);
    }
    return nullptr;
}

} // namespace

bool Variables::isName(std::string_view word)
{
    return !word.empty() && (word[0] < '0' || word[0] > '9') && std::ranges::all_of(word, isNameCharacter);
}

std::string Variables::take(std::string_view& text) const
{
    text.remove_prefix(1);
    if (text.starts_with('$')) {
        text.remove_prefix(1);
        return "$";
    }
    const bool isBraced = text.starts_with('{');
    text.remove_prefix(isBraced ? 1 : 0);
    const std::string_view name = takeName(text);
    const auto found = mRecords.find(name);
    if (found == mRecords.end()) {
        throw UsageError(fmt::format("no earlier line sets '${}'", name));
    }
    const Json* value = &found->second;
    while (const Json* next = step(*value, text)) {
        value = next;
    }
    if (isBraced) {
        if (!text.starts_with('}')) {
            throw UsageError(fmt::format("'${{{}' is not closed", name));
        }
        text.remove_prefix(1);
    }
    return value->is_string() ? value->get<std::string>() : value->dump();
}

} // namespace radioctl
