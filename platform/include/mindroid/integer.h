/// Decimal integers in text.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace mindroid {

class Integer {
public:
    /// The whole text as a signed decimal number: an optional sign, then digits, nothing else, within 32
    /// bits. Throws NumberFormatException for everything else.
    static int32_t parseInt(std::string_view text);

    /// The same for callers to whom "not a number" is an ordinary outcome.
    static std::optional<int32_t> tryParse(std::string_view text) noexcept;
};

inline std::optional<int32_t> Integer::tryParse(std::string_view text) noexcept
{
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (text.empty()) {
        return std::nullopt;
    }
    // std::from_chars takes half as many instructions again for the few digits of an answer's field.
    constexpr int64_t kHighest = std::numeric_limits<int32_t>::max();
    const int64_t limit = isNegative ? kHighest + 1 : kHighest;
    int64_t value = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') {
            return std::nullopt;
        }
        value = value * 10 + (digit - '0');
        if (value > limit) {
            return std::nullopt;
        }
    }
    return static_cast<int32_t>(isNegative ? -value : value);
}

} // namespace mindroid
