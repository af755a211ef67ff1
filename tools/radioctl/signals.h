/// How a command that runs on and on comes to its end.
#pragma once

#include <chrono>
#include <optional>

namespace radioctl {

/// Keeps SIGINT and SIGTERM for awaitEnd(). To be called before the library is opened, whose threads inherit it.
void holdSignals();

/// Ends a wait from within; from any thread.
void raiseEnd();

/// Waits for one of those signals or for raiseEnd(), at most as long as told. False when the time is up.
bool awaitEnd(std::optional<std::chrono::milliseconds> atMost = std::nullopt);

/// Whether such a signal has come; looks for one that nobody has waited for yet.
bool isInterrupted();

} // namespace radioctl
