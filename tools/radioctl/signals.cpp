#include "radioctl/signals.h"

#include <csignal>
#include <unistd.h>

namespace radioctl {

namespace {

/// Sent to this process by raiseEnd().
constexpr int kEnough = SIGUSR1;

sigset_t endingSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, kEnough}) {
        sigaddset(&signals, signal);
    }
    return signals;
}

/// Only the main thread waits.
bool interrupted = false;

bool noted(int signal)
{
    interrupted = interrupted || signal == SIGINT || signal == SIGTERM;
    return signal > 0;
}

} // namespace

void holdSignals()
{
    const sigset_t signals = endingSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void raiseEnd()
{
    kill(getpid(), kEnough);
}

bool awaitEnd(std::optional<std::chrono::milliseconds> atMost)
{
    const sigset_t signals = endingSignals();
    if (!atMost) {
        int signal = 0;
        sigwait(&signals, &signal);
        return noted(signal);
    }
    const auto seconds = std::chrono::floor<std::chrono::seconds>(*atMost);
    const std::chrono::nanoseconds rest = *atMost - seconds;
    const timespec time{static_cast<time_t>(seconds.count()), static_cast<long>(rest.count())};
    return noted(sigtimedwait(&signals, nullptr, &time));
}

bool isInterrupted()
{
    return interrupted || (awaitEnd(std::chrono::milliseconds(0)) && interrupted);
}

} // namespace radioctl
