/// Many requests in one process.
#pragma once

#include "radioctl/session.h"

#include <istream>
#include <string>
#include <vector>

namespace radioctl {

/// The words of one line, as a shell would split it: blanks separate, quotes keep them, # begins a comment.
/// Throws UsageError for a quote without end.
std::vector<std::string> splitWords(std::string_view line);

/// Runs each line of `input` as one command, in order, and stops at the first that does not succeed; its
/// place is told on standard error. Returns the exit status.
int runBatch(std::istream& input, const std::string& inputName, const Session& session, bool json);

} // namespace radioctl
