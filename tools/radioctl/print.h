/// Answers for people and for programs.
#pragma once

#include "radioctl/session.h"

#include <string>

namespace radioctl {

/// Exit statuses.
inline constexpr int kExitSuccess = 0;
inline constexpr int kExitFailure = 1;
inline constexpr int kExitUsage = 2;
inline constexpr int kExitTimeout = 3;

/// A record as text: its values one below the other, its lists of records as tables; "ok" when nothing is to
/// be told.
std::string asTable(Json record);

/// Prints an outcome, an answer to standard output and a failure to standard error, and returns the exit
/// status.
int printOutcome(const Request& request, const Outcome& outcome, bool json);

/// All requests, by group.
std::string requestList(bool json);

} // namespace radioctl
