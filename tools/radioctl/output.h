/// Answers for people and for programs.
#pragma once

#include "radioctl/session.h"

#include "interface/text.h"

namespace radioctl {

/// What a success answers, for people.
std::string textOf(const interface::Request& request, const Outcome& outcome, const Options& options);

/// Prints an outcome, an answer to standard output and a failure to standard error, or all as one JSON object, which
/// begins with `front`. Returns the exit status.
int printOutcome(const interface::Request& request, const Outcome& outcome, const Options& options,
                 Json front = Json::object());

/// Prints why a command did not come to anything, likewise. `error` is one word: usage, unreachable or failed.
void printError(const std::string& command, const char* error, const std::string& reason,
                const Options& options);

/// A request's record with what its numbers mean, as Options::explain wants it.
void addRecord(Json& out, const Json& record, const interface::Record* description, const Options& options);

/// The present time, UTC.
std::string now();

} // namespace radioctl
