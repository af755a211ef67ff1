/// Where the host's log lines go: to standard error, or to a test or a tool that looks at them. When the modem can't
/// be reached, the first line of priority 6 says why.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace host {

/// Priorities as in Android's log: 3 debug, 5 warning, 6 error.
struct LogLine {
    int priority;
    std::string tag; ///< empty when there was none
    std::string text;
};

using LogSink = std::function<void(const LogLine&)>;

/// Gives every line of every priority to `sink` instead of standard error, from whichever thread logs; an
/// empty sink restores the default. When it returns, the previous sink is not running any more.
void setLogSink(LogSink sink);

} // namespace host
