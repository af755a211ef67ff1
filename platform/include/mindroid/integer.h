/// Decimal integers in text.
#pragma once

#include <cstdint>
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

} // namespace mindroid
