/// The library, as radioctl uses it: one request at a time, waited for.
#pragma once

#include "radioctl/request.h"

#include <chrono>
#include <string>

namespace radioctl {

/// What became of a request.
struct Outcome {
    enum class Kind { Answered, Refused, TimedOut };

    Kind kind = Kind::TimedOut;
    int result = 0; ///< the callback's, or the function's when it refused
    Json record;    ///< null when there is nothing to show

    /// Whether the modem did what was asked: a record may tell of a failure too.
    bool succeeded() const;
};

struct SessionOptions {
    std::string device; ///< empty: what the device file names
    unsigned instance = 0;
    bool trace = false;     ///< to standard error
    bool traceJson = false; ///< a JSON object per line
    std::chrono::milliseconds timeout{10000};
};

class Session {
public:
    /// Opens the library for one instance. Throws std::runtime_error when the modem can't be reached.
    explicit Session(const SessionOptions& options);

    Outcome run(const Request& request, const Arguments& arguments) const;

private:
    std::chrono::milliseconds mTimeout;
};

} // namespace radioctl
