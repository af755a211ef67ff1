/// Lines as a shell would split them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace interface {

/// Gives what a dollar sign at the front of the rest of a line stands for; the rest loses what was read.
using Variable = std::function<std::string(std::string_view& rest)>;

/// The words of a line: blanks separate, quotes keep them, # begins a comment. With `variable`, what stands behind a
/// dollar sign outside single quotes is put in, never split again. Throws ArgumentError for a quote without end.
std::vector<std::string> splitWords(std::string_view line, const Variable& variable = nullptr);

} // namespace interface
