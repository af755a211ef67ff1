#include "radioctl/arguments.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace radioctl {

namespace {

std::vector<uint8_t> readFile(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        throw UsageError(fmt::format("can't read {}", name));
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::optional<std::vector<uint8_t>> toBytes(std::string_view word)
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

std::string countText(size_t least, size_t most)
{
    return least == 0 ? fmt::format("at most {}", most) : fmt::format("{} to {}", least, most);
}

std::vector<int> parseList(const std::string& name, std::string_view word, size_t most)
{
    std::vector<int> numbers;
    if (word.empty() || word == "-") {
        return numbers;
    }
    for (size_t begin = 0; begin <= word.size();) {
        const size_t end = std::min(word.find(',', begin), word.size());
        numbers.push_back(parseNumber<int>(name, word.substr(begin, end - begin)));
        begin = end + 1;
    }
    if (numbers.size() > most) {
        throw UsageError(fmt::format("{}: {} numbers, at most {} are allowed", name, numbers.size(), most));
    }
    return numbers;
}

} // namespace

void refuseNumber(std::string_view where, std::string_view word, const std::string& range)
{
    throw UsageError(fmt::format("{}: '{}' is not a number from {}", where, word, range));
}

std::vector<uint8_t> parseBytes(std::string_view where, const std::string& word, size_t least, size_t most)
{
    const auto bytes = word.starts_with('@') ? readFile(word.substr(1)) : toBytes(word);
    if (!bytes) {
        throw UsageError(fmt::format("{}: '{}' is not pairs of hexadecimal digits", where, word));
    }
    if (bytes->size() < least || bytes->size() > most) {
        throw UsageError(
            fmt::format("{}: {} bytes, {} are allowed", where, bytes->size(), countText(least, most)));
    }
    return *bytes;
}

Argument text(const std::string& name, std::string help, size_t most)
{
    const auto parse = [=](std::span<const std::string> words) -> std::any {
        if (words.front().size() > most) {
            throw UsageError(
                fmt::format("{}: {} characters, at most {} are allowed", name, words.front().size(), most));
        }
        return words.front();
    };
    return {name, std::move(help), fmt::format("text of at most {} characters", most), parse};
}

Argument flag(const std::string& name, std::string help)
{
    const auto parse = [=](std::span<const std::string> words) -> std::any {
        return parseNumber<int>(name, words.front(), 0, 1) != 0;
    };
    return {name, std::move(help), rangeText(0, 1), parse};
}

Argument bytes(const std::string& name, std::string help, size_t least, size_t most)
{
    const auto parse = [=](std::span<const std::string> words) -> std::any {
        return parseBytes(name, words.front(), least, most);
    };
    return {name, std::move(help),
            fmt::format("hexadecimal digits or @FILE, {} bytes", countText(least, most)), parse};
}

Argument list(const std::string& name, std::string help, size_t most)
{
    const auto parse = [=](std::span<const std::string> words) -> std::any {
        return parseList(name, words.front(), most);
    };
    return {name, std::move(help),
            fmt::format("at most {} numbers with commas between them, - for none", most), parse};
}

Arguments::Arguments(const std::vector<Argument>& descriptions, std::span<const std::string> words)
{
    for (const Argument& argument : descriptions) {
        if (words.empty() && !argument.takesRest) {
            throw UsageError(fmt::format("{} is missing ({})", argument.name, argument.form));
        }
        const size_t taken = argument.takesRest ? words.size() : 1;
        mValues.push_back(argument.parse(words.first(taken)));
        words = words.subspan(taken);
    }
    if (!words.empty()) {
        throw UsageError(fmt::format("'{}' is one argument too many", words.front()));
    }
}

} // namespace radioctl
