#include "radioctl/describe.h"

namespace radioctl {

/// Values are words, but for those that begin like a list or a record.
Json valueFromWord(const std::string& where, const std::string& word)
{
    if (!word.starts_with('[') && !word.starts_with('{')) {
        return word;
    }
    Json value = Json::parse(word, nullptr, false);
    if (value.is_discarded()) {
        throw UsageError(fmt::format("{}: '{}' is not JSON", where, word));
    }
    return value;
}

/// Numbers may be written as texts too, for hexadecimal ones.
std::string wordOf(const Json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string textFrom(const std::string& where, const Json& value, size_t most)
{
    if (!value.is_string()) {
        throw UsageError(fmt::format("{}: {} is not a text", where, wordOf(value)));
    }
    auto text = value.get<std::string>();
    if (text.size() > most) {
        throw UsageError(fmt::format("{}: {} characters, at most {} are allowed", where, text.size(), most));
    }
    return text;
}

void checkList(const std::string& where, const Json& value, size_t most)
{
    if (!value.is_array()) {
        throw UsageError(fmt::format("{}: '{}' is not a list like [1,2]", where, wordOf(value)));
    }
    if (value.size() > most) {
        throw UsageError(fmt::format("{}: {} elements, at most {} are allowed", where, value.size(), most));
    }
}

void checkKeys(const std::string& where, const Json& value, const std::vector<const char*>& known)
{
    if (!value.is_object()) {
        throw UsageError(
            fmt::format("{}: '{}' is not a record like {{\"{}\":1}}", where, wordOf(value), known.front()));
    }
    for (const auto& [key, ignored] : value.items()) {
        if (std::ranges::find(known, key) == known.end()) {
            throw UsageError(
                fmt::format("{} has no member '{}'; it has {}", where, key, fmt::join(known, ", ")));
        }
    }
}

/// The modem's characters might mean something to a terminal, or be no valid JSON.
std::string textOf(std::string_view bytes)
{
    std::string text;
    for (const char c : bytes) {
        if (c >= ' ' && c <= '~') {
            text += c;
        } else {
            text += fmt::format("\\x{:02x}", static_cast<unsigned char>(c));
        }
    }
    return text;
}

std::string memberText(size_t indent, const char* name, const std::string& form, const char* help)
{
    const std::string_view text = help;
    return fmt::format("{:{}}{:<16} {}{}{}\n", "", indent, name, form, text.empty() ? "" : "; ", text);
}

Json recordFromWords(const std::string& name, std::span<const std::string> words)
{
    if (words.size() == 1 && words.front().starts_with('{')) {
        return valueFromWord(name, words.front());
    }
    Json members = Json::object();
    for (const std::string& word : words) {
        const size_t equals = word.find('=');
        if (equals == std::string::npos) {
            throw UsageError(fmt::format("{}: '{}' is not MEMBER=VALUE", name, word));
        }
        const std::string key = word.substr(0, equals);
        if (members.contains(key)) {
            throw UsageError(fmt::format("{}.{} is given twice", name, key));
        }
        members[key] = valueFromWord(fmt::format("{}.{}", name, key), word.substr(equals + 1));
    }
    return members;
}

} // namespace radioctl
