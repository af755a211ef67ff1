/// Names as people type them.
#pragma once

#include "interface/description.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace interface {

/// The name of a value on a command line: "NR second" is nr-second.
std::string wordOf(const Value& value);

/// Which of the names is meant by a word that is none of them: the one that takes the fewest letters to change, when
/// those are few; otherwise nothing.
std::string_view nearest(std::string_view word, std::span<const std::string_view> names);

/// " - did you mean 'X'?", or nothing.
std::string suggestion(std::string_view word, std::span<const std::string_view> names);

/// The names of a table's rows.
template <typename Table>
std::vector<std::string_view> namesOf(const Table& table)
{
    std::vector<std::string_view> names;
    for (const auto& row : table) {
        names.push_back(row.name);
    }
    return names;
}

} // namespace interface
