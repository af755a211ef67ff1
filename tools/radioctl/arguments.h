/// The arguments of a request, from the command line's words.
#pragma once

#include <fmt/format.h>

#include <algorithm>
#include <any>
#include <charconv>
#include <cstdint>
#include <functional>
#include <iterator>
#include <limits>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace radioctl {

/// Words that don't make a request; the message tells why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What one argument is, for checks and for help.
struct Argument {
    /// The value, of the type that the library's function wants. Throws UsageError.
    using Parser = std::function<std::any(std::span<const std::string> words)>;

    std::string name;
    std::string help; ///< what it means, with its unit
    std::string form; ///< how it is written, with its range
    Parser parse;
    bool takesRest = false;                ///< takes all words that are left, even none, instead of one
    std::string details;                   ///< further lines of help
    std::vector<std::string> choices = {}; ///< names of values
};

template <typename T>
std::string rangeText(T lowest, T highest)
{
    return fmt::format("{} to {}", lowest, highest);
}

[[noreturn]] void refuseNumber(std::string_view where, std::string_view word, const std::string& range);

/// A decimal number, or a hexadecimal one behind 0x; nothing when the word is none or T can't hold it.
template <typename T>
std::optional<T> toNumber(std::string_view word)
{
    const size_t sign = word.starts_with('-') ? 1 : 0;
    const std::string_view prefix = word.substr(sign, 2);
    const bool hexadecimal = prefix == "0x" || prefix == "0X";
    std::string digits(word);
    digits.erase(sign, hexadecimal ? 2 : 0);
    const char* end = digits.data() + digits.size();
    T value = 0;
    const auto [stop, error] = std::from_chars(digits.data(), end, value, hexadecimal ? 16 : 10);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

/// As toNumber. Throws UsageError, naming `where`, for what is no number or out of the range.
template <typename T>
T parseNumber(std::string_view where, std::string_view word, T lowest = std::numeric_limits<T>::lowest(),
              T highest = std::numeric_limits<T>::max())
{
    const auto value = toNumber<T>(word);
    if (!value || *value < lowest || *value > highest) {
        refuseNumber(where, word, rangeText(lowest, highest));
    }
    return *value;
}

/// Hexadecimal digits, or the contents of @FILE. Throws UsageError, naming `where`.
std::vector<uint8_t> parseBytes(std::string_view where, const std::string& word, size_t least, size_t most);

/// A number of type T, or in a range of its own.
template <typename T>
Argument number(const std::string& name, std::string help, T lowest = std::numeric_limits<T>::lowest(),
                T highest = std::numeric_limits<T>::max())
{
    const auto parse = [=](std::span<const std::string> words) -> std::any {
        return parseNumber<T>(name, words.front(), lowest, highest);
    };
    return {name, std::move(help), rangeText(lowest, highest), parse};
}

/// A std::string.
Argument text(const std::string& name, std::string help, size_t most);

/// The names of values.
template <typename T>
using Names = std::vector<std::pair<std::string, T>>;

template <typename T>
inline const Names<T> kOnOff = {{"on", T{1}}, {"off", T{0}}};

/// A value of type T by its name; any other one by its number, but for a bool.
template <typename T>
Argument choice(const std::string& name, std::string help, const Names<T>& names)
{
    std::vector<std::string> words;
    std::ranges::transform(names, std::back_inserter(words), &Names<T>::value_type::first);
    std::string form = fmt::format("{}", fmt::join(words, ", "));
    form += std::is_same_v<T, bool> ? "" : " or a number";
    const auto parse = [=](std::span<const std::string> given) -> std::any {
        for (const auto& [word, value] : names) {
            if (word == given.front()) {
                return value;
            }
        }
        if constexpr (!std::is_same_v<T, bool>) {
            using Number = typename std::conditional_t<std::is_enum_v<T>, std::underlying_type<T>,
                                                       std::type_identity<T>>::type;
            if (const auto value = toNumber<Number>(given.front())) {
                return static_cast<T>(*value);
            }
        }
        throw UsageError(fmt::format("{}: '{}' is none of {}", name, given.front(), form));
    };
    return {name, std::move(help), form, parse, false, "", words};
}

/// A bool: 0 or 1.
Argument flag(const std::string& name, std::string help);

/// A std::vector<uint8_t>: hexadecimal digits, or @FILE.
Argument bytes(const std::string& name, std::string help, size_t least, size_t most);

/// A std::vector<int>: numbers with commas between them, or - for none.
Argument list(const std::string& name, std::string help, size_t most);

/// The checked values of one call.
class Arguments {
public:
    /// Throws UsageError for a word that does not fit its argument.
    Arguments(const std::vector<Argument>& descriptions, std::span<const std::string> words);

    /// A value, by its place among the arguments and in the type that its argument makes.
    template <typename T>
    const T& at(size_t index) const
    {
        return std::any_cast<const T&>(mValues.at(index));
    }

private:
    std::vector<std::any> mValues;
};

} // namespace radioctl
