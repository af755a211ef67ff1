/// Requests that are waited for.
#pragma once

#include "interface/arguments.h"

#include <chrono>
#include <functional>
#include <string>

namespace interface {

/// What became of a request.
struct Outcome {
    enum class Kind : uint8_t { Answered, Refused, TimedOut };

    Kind kind = Kind::TimedOut;
    int result = 0;                    ///< the callback's, or the function's when it refused
    Json record;                       ///< null when there is nothing to show
    bool modemFailed = false;          ///< a record may tell of a failure, too
    std::string modemSaid = {};        ///< on failures: what Said told
    std::chrono::milliseconds limit{}; ///< on time-outs

    bool succeeded() const { return kind == Kind::Answered && result == RADIO_APIS_SUCCESS && !modemFailed; }

    /// One word for programs: failed, refused or timeout.
    const char* error() const;

    /// Why it did not succeed: "failed: invalid parameter (11)".
    std::string reason() const;
};

/// "invalid parameter (11)"
std::string resultText(int result);

/// What the modem said last, in words; called on the thread of the request's callback.
using Said = std::string (*)();

/// Sends a request for the calling thread's instance and waits for its answer. An answer that comes too late is dropped.
Outcome call(const Request& request, Arguments& arguments, std::chrono::milliseconds limit,
             Said said = nullptr);

} // namespace interface
