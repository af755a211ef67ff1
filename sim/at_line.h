/// The text of one AT command taken apart.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

enum class AtForm { Execute, Set, Query, Test };

struct AtParameter {
    std::string text; ///< without its quotes
    bool quoted = false;

    bool omitted() const { return text.empty() && !quoted; }
};

struct AtLine {
    std::string name; ///< "+CFUN"; "E" of ATE0; empty for AT alone
    AtForm form = AtForm::Execute;
    std::vector<AtParameter> parameters; ///< of a basic command like ATE0: its number, when given
};

/// The command without line end and blanks and in capitals, except inside quotes. Nothing when it can't be a
/// command: too long, with control characters, or with an open quote.
std::optional<std::string> normalizeAt(std::string_view command);

/// Takes a normalized command apart; nothing when its grammar is wrong.
std::optional<AtLine> parseAt(std::string_view normalized);

} // namespace sim
