#include "number.h"

#include "interface/names.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>

namespace interface {

namespace {

/// Any number of 64 bits, signed or not.
struct Number {
    uint64_t bits; ///< two's complement
    bool isNegative;

    explicit constexpr Number(uint64_t value) : bits(value), isNegative(false) {}
    explicit constexpr Number(int64_t value) : bits(static_cast<uint64_t>(value)), isNegative(value < 0) {}

    bool operator<(const Number& other) const
    {
        return isNegative != other.isNegative ? isNegative : bits < other.bits;
    }
    std::string text() const
    {
        return isNegative ? std::to_string(static_cast<int64_t>(bits)) : std::to_string(bits);
    }
};

struct Limits {
    Number lowest;
    Number highest;
};

template <typename T>
constexpr Limits kLimits = {Number(static_cast<int64_t>(std::numeric_limits<T>::lowest())),
                            Number(static_cast<uint64_t>(std::numeric_limits<T>::max()))};

Type shownType(const Meaning& meaning, Type type)
{
    return meaning.isSigned && type == Type::Uint32 ? Type::Int32 : type;
}

Limits limitsOf(const Meaning& meaning, Type type)
{
    if (meaning.range) {
        return {Number(meaning.range->least), Number(meaning.range->most)};
    }
    switch (shownType(meaning, type)) {
    case Type::Bool:
        return kLimits<bool>;
    case Type::Char:
    case Type::Int8:
        return kLimits<int8_t>;
    case Type::Uint8:
        return kLimits<uint8_t>;
    case Type::Int16:
        return kLimits<int16_t>;
    case Type::Uint16:
        return kLimits<uint16_t>;
    case Type::Int32:
        return kLimits<int32_t>;
    case Type::Uint32:
        return kLimits<uint32_t>;
    case Type::Int64:
        return kLimits<int64_t>;
    case Type::Uint64:
    case Type::Record:
        break;
    }
    return {Number(uint64_t{0}), Number(std::numeric_limits<uint64_t>::max())};
}

/// A decimal number, or a hexadecimal one behind 0x.
std::optional<Number> toNumber(std::string_view word)
{
    const bool isNegative = word.starts_with('-');
    word.remove_prefix(isNegative ? 1 : 0);
    const bool isHexadecimal = word.starts_with("0x") || word.starts_with("0X");
    word.remove_prefix(isHexadecimal ? 2 : 0);
    uint64_t magnitude = 0;
    const auto [end, error] =
        std::from_chars(word.data(), word.data() + word.size(), magnitude, isHexadecimal ? 16 : 10);
    constexpr uint64_t kMostNegative = uint64_t{1} << 63;
    if (error != std::errc() || end != word.data() + word.size() ||
        (isNegative && magnitude > kMostNegative)) {
        return std::nullopt;
    }
    return isNegative ? Number(static_cast<int64_t>(~magnitude + 1)) : Number(magnitude);
}

std::optional<Number> named(const Meaning& meaning, Type type, std::string_view word)
{
    for (const Value& value : meaning.values) {
        if (word == value.name || word == wordOf(value)) {
            return Number(value.value);
        }
    }
    if (type == Type::Bool && (word == "on" || word == "off")) {
        return Number(uint64_t{word == "on" ? 1U : 0U});
    }
    return std::nullopt;
}

std::optional<Number> numberIn(const Meaning& meaning, Type type, const Json& in)
{
    if (in.is_string()) {
        const auto& word = in.get_ref<const std::string&>();
        const auto number = named(meaning, type, word);
        return number ? number : toNumber(word);
    }
    if (in.is_boolean() && type == Type::Bool) {
        return Number(uint64_t{in.get<bool>() ? 1U : 0U});
    }
    return in.is_number_integer() ? toNumber(in.dump()) : std::nullopt;
}

} // namespace

size_t sizeOf(Type type)
{
    constexpr size_t kSizes[] = {1, 1, 1, 1, 2, 2, 4, 4, 8, 8, 0};
    return kSizes[static_cast<size_t>(type)];
}

Json loadNumber(const Meaning& meaning, Type type, const uint8_t* data)
{
    const auto load = [&](auto value) -> Json {
        std::memcpy(&value, data, sizeof value);
        return value;
    };
    switch (shownType(meaning, type)) {
    case Type::Bool:
    case Type::Uint8:
        return load(uint8_t{});
    case Type::Char:
    case Type::Int8:
        return load(int8_t{});
    case Type::Int16:
        return load(int16_t{});
    case Type::Uint16:
        return load(uint16_t{});
    case Type::Int32:
        return load(int32_t{});
    case Type::Uint32:
        return load(uint32_t{});
    case Type::Int64:
        return load(int64_t{});
    case Type::Uint64:
    case Type::Record:
        break;
    }
    return load(uint64_t{});
}

void storeNumber(Type type, uint64_t bits, uint8_t* data)
{
    const auto store = [&](auto value) { std::memcpy(data, &value, sizeof value); };
    switch (sizeOf(type)) {
    case 1:
        return store(static_cast<uint8_t>(bits));
    case 2:
        return store(static_cast<uint16_t>(bits));
    case 4:
        return store(static_cast<uint32_t>(bits));
    default:
        return store(bits);
    }
}

uint64_t parseNumber(const std::string& where, const Meaning& meaning, Type type, const Json& in)
{
    const Limits limits = limitsOf(meaning, type);
    const auto number = numberIn(meaning, type, in);
    if (number && !(*number < limits.lowest) && !(limits.highest < *number)) {
        return number->bits;
    }
    const std::string given = in.is_string() ? in.get<std::string>() : in.dump();
    const auto names = valueWords(meaning, type);
    throw ArgumentError(
        fmt::format("{}: '{}' is {} {}{}", where, given, names.empty() ? "not a number from" : "none of",
                    numberForm(meaning, type),
                    suggestion(given, std::vector<std::string_view>(names.begin(), names.end()))));
}

std::vector<std::string> valueWords(const Meaning& meaning, Type type)
{
    std::vector<std::string> all;
    std::ranges::transform(meaning.values, std::back_inserter(all), wordOf);
    if (type == Type::Bool) {
        all = {"on", "off"};
    }
    return all;
}

Meaning elementOf(Meaning list)
{
    list.range.reset();
    return list;
}

std::string numberForm(const Meaning& meaning, Type type)
{
    if (type == Type::Bool) {
        return "on, off";
    }
    const Limits limits = limitsOf(meaning, type);
    const std::string unit = meaning.unit.empty() ? "" : fmt::format(" {}", meaning.unit);
    std::string range = fmt::format("{} to {}{}", limits.lowest.text(), limits.highest.text(), unit);
    if (meaning.values.empty()) {
        return range;
    }
    std::vector<std::string> names;
    std::ranges::transform(meaning.values, std::back_inserter(names), [](const Value& value) {
        return fmt::format("{} ({})", wordOf(value), value.value);
    });
    // A range whose every number has a name goes without saying.
    const bool isNamed = meaning.range && limits.highest.bits - limits.lowest.bits + 1 == names.size();
    return fmt::format("{}{}", fmt::join(names, ", "),
                       isNamed         ? ""
                       : meaning.range ? fmt::format(" or a number from {}", range)
                                       : " or a number");
}

std::string countForm(const Range& range)
{
    return range.least == 0            ? fmt::format("at most {}", range.most)
           : range.least == range.most ? fmt::format("{}", range.most)
                                       : fmt::format("{} to {}", range.least, range.most);
}

void checkCount(const std::string& where, size_t count, const Range& range, std::string_view what)
{
    const auto given = static_cast<int64_t>(count);
    if (given < range.least || given > range.most) {
        throw ArgumentError(fmt::format("{}: {} {}, {} are allowed", where, count, what, countForm(range)));
    }
    if (given % range.multipleOf != 0) {
        throw ArgumentError(
            fmt::format("{}: {} {}, a multiple of {} is wanted", where, count, what, range.multipleOf));
    }
}

} // namespace interface
