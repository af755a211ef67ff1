/// What radioctl tells of itself: help, lists, completion, the manual page; all from the interface's description and
/// the commands' own tables.
#pragma once

#include "radioctl/options.h"

namespace radioctl {

/// A line of a list.
struct Entry {
    const char* what;
    const char* help;
};

std::span<const Entry> exitStatuses();

/// radioctl's own help.
std::string programHelp();

/// All requests, by domain.
std::string requestList(bool json);

/// All events' names and meanings, one per line.
std::string eventList();

std::string bashCompletion();
std::string zshCompletion();

/// The manual page, in roff.
std::string manPage();

} // namespace radioctl
