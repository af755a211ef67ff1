/// What radioctl tells of itself: help, lists, completion, the manual page; all from the interface's description and
/// the commands' own tables.
#pragma once

#include "radioctl/options.h"

#include "interface/description.h"

namespace radioctl {

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
