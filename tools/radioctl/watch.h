/// One request again and again.
#pragma once

#include "radioctl/session.h"

#include <chrono>

namespace radioctl {

struct WatchOptions {
    std::chrono::milliseconds every{1000};
    uint64_t count = 0; ///< stop after so many answers; 0: at SIGINT or SIGTERM
    bool json = false;
};

/// Sends the request each time its time comes and shows the answer: in the place of the one before when
/// standard output is a terminal, else below it. Ends early at the first request that does not succeed.
/// holdSignals() was called before. Returns the exit status.
int watch(const WatchOptions& options, const Request& request, const Arguments& arguments,
          const Session& session);

/// The serving cell and the neighbours of a record as one table with signal bars; the whole record as text
/// when it tells of no cells.
std::string cellsAsTable(const Json& record);

} // namespace radioctl
