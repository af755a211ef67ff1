/// A source file as the words and signs that the compiler sees.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace mutants {

struct Token {
    enum class Kind { Name, Number, Text, Sign } kind;
    std::string_view text; ///< a part of the source
    size_t at;             ///< where it stands in the source
    bool isSpaced;         ///< whether there is a blank before it
    size_t partner = 0;    ///< of a bracket: the index of the other one; 0 when there is none

    bool is(std::string_view other) const { return text == other; }
    bool isName() const { return kind == Kind::Name; }
};

/// Without comments and preprocessor lines. The source must outlive what is returned.
std::vector<Token> tokensOf(std::string_view source);

} // namespace mutants
