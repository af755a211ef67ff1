/// What can be changed in a source file so that a test should notice.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mutants {

enum class Kind { Arguments, Constant, Comparison, Sibling, Statement };

constexpr std::array<const char*, 5> kKindNames = {"arguments", "constant", "comparison", "sibling",
                                                   "statement"};

/// One change: `length` characters from `at` on become `replacement`.
struct Mutant {
    Kind kind;
    size_t at;
    size_t length;
    std::string replacement;
};

/// Every change worth a test in a file. Left out is what only the log, the room of a buffer or the compiler sees.
std::vector<Mutant> mutantsOf(std::string_view source);

} // namespace mutants
