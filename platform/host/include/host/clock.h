/// The time that the host's libraries live by. It runs with the machine's monotonic clock until a test stops
/// it and steps it by hand.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace host {

class Clock {
public:
    using Duration = std::chrono::steady_clock::duration;
    using TimePoint = std::chrono::steady_clock::time_point;

    static TimePoint now();

    static void freeze();                   ///< time stands still until advance() or thaw()
    static void advance(Duration duration); ///< steps a frozen clock and wakes everybody who waits on it
    static void thaw();

    /// Waits until `ready()` or until this clock reaches `deadline`; returns what `ready()` says then. The
    /// lock is held whenever `ready` runs. TimePoint::max() means no deadline.
    template <typename Ready>
    static bool waitUntil(std::condition_variable& condition, std::unique_lock<std::mutex>& lock,
                          TimePoint deadline, Ready ready)
    {
        while (!ready()) {
            if (now() >= deadline) {
                return false;
            }
            waitOnce(condition, lock, deadline);
        }
        return true;
    }

private:
    /// One wait that may end early.
    static void waitOnce(std::condition_variable& condition, std::unique_lock<std::mutex>& lock,
                         TimePoint deadline);
};

} // namespace host
