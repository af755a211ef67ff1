/// One command to the modem: a request, or a command to the simulation behind it.
#pragma once

#include "radioctl/session.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace radioctl {

/// A checked request.
struct RequestCall {
    const Request* request;
    Arguments arguments;
};

/// Throws UsageError for words that are no request.
RequestCall parseRequest(std::span<const std::string> words);

/// A checked command; sends it, prints what comes of it, and returns the exit status.
using Command = std::function<int(const Session&)>;

/// Throws UsageError for words that are no command.
Command parseCommand(const std::vector<std::string>& words, bool json);

/// How `sim` is used.
extern const char* const kSimUsage;

} // namespace radioctl
