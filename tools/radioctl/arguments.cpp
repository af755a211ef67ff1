#include "radioctl/arguments.h"

#include <fmt/format.h>

#include <cctype>
#include <charconv>
#include <fstream>
#include <iterator>

namespace radioctl {

namespace {

/// Decimal, or hexadecimal behind 0x.
std::optional<int64_t> parseNumber(std::string_view word)
{
    const bool negative = word.starts_with('-');
    std::string_view digits = word.substr(negative ? 1 : 0);
    const bool hexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
    if (hexadecimal) {
        digits.remove_prefix(2);
    }
    uint64_t value = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value, hexadecimal ? 16 : 10);
    if (error != std::errc() || end != digits.end() ||
        value > static_cast<uint64_t>(std::numeric_limits<int64_t>::max())) {
        return std::nullopt;
    }
    return negative ? -static_cast<int64_t>(value) : static_cast<int64_t>(value);
}

std::vector<uint8_t> readFile(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        throw UsageError(fmt::format("can't read {}", name));
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::optional<std::vector<uint8_t>> parseHex(std::string_view word)
{
    std::vector<uint8_t> bytes;
    if (word.size() % 2 != 0) {
        return std::nullopt;
    }
    for (; !word.empty(); word.remove_prefix(2)) {
        uint8_t byte = 0;
        const auto [end, error] = std::from_chars(word.begin(), word.begin() + 2, byte, 16);
        if (error != std::errc() || end != word.begin() + 2) {
            return std::nullopt;
        }
        bytes.push_back(byte);
    }
    return bytes;
}

} // namespace

std::string Argument::rangeText() const
{
    return kind == Kind::Number ? fmt::format("{} to {}", lowest, highest)
                                : fmt::format("hexadecimal digits or @FILE, at most {} bytes", maxBytes);
}

Argument bytes(std::string name, std::string help, size_t maxBytes)
{
    return {std::move(name), std::move(help), Argument::Kind::Bytes, 0, 0, maxBytes};
}

Arguments::Arguments(const std::vector<Argument>& descriptions, const std::vector<std::string>& words)
{
    for (size_t i = 0; i < descriptions.size(); ++i) {
        if (i >= words.size()) {
            throw UsageError(
                fmt::format("{} is missing ({})", descriptions[i].name, descriptions[i].rangeText()));
        }
        mValues.emplace(descriptions[i].name, parse(descriptions[i], words[i]));
    }
    if (words.size() > descriptions.size()) {
        throw UsageError(fmt::format("'{}' is one argument too many", words[descriptions.size()]));
    }
}

Arguments::Value Arguments::parse(const Argument& argument, const std::string& word)
{
    Value value;
    if (argument.kind == Argument::Kind::Number) {
        const auto parsed = parseNumber(word);
        if (!parsed || *parsed < argument.lowest || *parsed > argument.highest) {
            throw UsageError(
                fmt::format("{}: '{}' is not a number from {}", argument.name, word, argument.rangeText()));
        }
        value.number = *parsed;
        return value;
    }
    if (word.starts_with('@')) {
        value.bytes = readFile(word.substr(1));
    } else if (auto parsed = parseHex(word)) {
        value.bytes = std::move(*parsed);
    } else {
        throw UsageError(fmt::format("{}: '{}' is not pairs of hexadecimal digits", argument.name, word));
    }
    if (value.bytes.size() > argument.maxBytes) {
        throw UsageError(fmt::format("{}: {} bytes, at most {} are allowed", argument.name,
                                     value.bytes.size(), argument.maxBytes));
    }
    return value;
}

const Arguments::Value& Arguments::find(std::string_view name) const
{
    const auto found = mValues.find(name);
    if (found == mValues.end()) {
        throw std::logic_error(fmt::format("no argument is called {}", name));
    }
    return found->second;
}

} // namespace radioctl
