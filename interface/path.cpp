#include "interface/path.h"

#include "interface/names.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

namespace interface {

namespace {

bool isNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

/// The member or element that `text` goes on with; null when it does not go on.
const Json* step(const Json& value, std::string_view& text)
{
    std::string_view rest = text.substr(std::min<size_t>(text.size(), 1));
    const std::string_view name = takeName(rest);
    if (text.starts_with('.') && !name.empty()) {
        if (!value.is_object() || !value.contains(name)) {
            std::vector<std::string_view> names;
            for (const auto& [member, ignored] : value.items()) {
                names.push_back(member);
            }
            throw ArgumentError(
                fmt::format("there is no member '{}' in {}{}", name, value.dump(), suggestion(name, names)));
        }
        text = rest;
        return &value.at(name);
    }
    if (text.starts_with('[') && rest.starts_with(']')) {
        size_t index = 0;
        const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), index);
        if (error != std::errc() || end != name.data() + name.size() || !value.is_array() ||
            index >= value.size()) {
            throw ArgumentError(fmt::format("there is no element {} in {}", name, value.dump()));
        }
        text = rest.substr(1);
        return &value.at(index);
    }
    return nullptr;
}

} // namespace

std::string_view takeName(std::string_view& text)
{
    const auto end = std::ranges::find_if_not(text, isNameCharacter);
    const std::string_view name = text.substr(0, static_cast<size_t>(end - text.begin()));
    text.remove_prefix(name.size());
    return name;
}

const Json& follow(const Json& value, std::string_view& path)
{
    const Json* at = &value;
    while (const Json* next = step(*at, path)) {
        at = next;
    }
    return *at;
}

const Json& valueAt(const Json& record, std::string_view path)
{
    const std::string text = '.' + std::string(path);
    std::string_view rest = text;
    const Json& value = follow(record, rest);
    if (!rest.empty()) {
        throw ArgumentError(fmt::format("'{}' is not a member like neighbours[0].rsrp", path));
    }
    return value;
}

} // namespace interface
