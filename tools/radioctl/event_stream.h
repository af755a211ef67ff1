/// Events as they come.
#pragma once

#include "radioctl/event.h"

#include <functional>

namespace radioctl {

struct StreamOptions {
    std::vector<std::string> names; ///< none: all events
    uint64_t count = 0;             ///< stop after so many; 0: at SIGINT or SIGTERM
    unsigned instance = 0;
    bool json = false;
};

/// Subscribes, calls `whenSubscribed`, and prints events until enough came or a signal does, for which
/// holdSignals() was called; then ends the subscriptions. Throws UsageError for an unknown name; returns the exit status.
int streamEvents(const StreamOptions& options, const std::function<int()>& whenSubscribed);

/// All events' names, one per line.
std::string eventList();

} // namespace radioctl
