/// Many requests in one process.
#pragma once

#include "radioctl/session.h"
#include "radioctl/variables.h"

#include <istream>
#include <string>
#include <vector>

namespace radioctl {

/// The words of one line, as a shell would split it: blanks separate, quotes keep them, # begins a comment.
/// With `variables`, what stands behind a dollar sign outside single quotes is put in, never split again.
/// Throws UsageError for a quote without end and for a variable that isn't there.
std::vector<std::string> splitWords(std::string_view line, const Variables* variables = nullptr);

struct BatchOptions {
    std::string inputName; ///< for messages
    bool json = false;
    bool progress = false; ///< a line on standard error that tells how far it is
};

/// Runs each line of `input` as one command, in order, and stops at the first that does not succeed; its
/// place is told on standard error. NAME = REQUEST ARGS... keeps the answer's record as a variable. Returns
/// the exit status.
int runBatch(std::istream& input, const BatchOptions& options, const Session& session);

} // namespace radioctl
