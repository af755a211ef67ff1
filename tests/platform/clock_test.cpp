#include "host/clock.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using namespace std::chrono_literals;
using host::Clock;

TEST(Clock, everyStepReachesThoseWhoWait)
{
    Clock::freeze();
    constexpr int kSteps = 200;
    std::mutex mutex;
    std::condition_variable condition;
    std::condition_variable stepped;
    int done = 0;
    const Clock::TimePoint start = Clock::now();
    const auto wait = [&] {
        std::unique_lock lock(mutex);
        for (int step = 1; step <= kSteps; ++step) {
            EXPECT_FALSE(Clock::waitUntil(condition, lock, start + step * 1min, [] { return false; }));
            ++done;
            stepped.notify_one();
        }
    };
    std::thread waiters[] = {std::thread(wait), std::thread(wait), std::thread(wait)};
    for (int step = 1; step <= kSteps; ++step) {
        Clock::advance(1min);
        std::unique_lock lock(mutex);
        stepped.wait(lock, [&] { return done == 3 * step; });
    }
    for (std::thread& waiter : waiters) {
        waiter.join();
    }
    EXPECT_EQ(Clock::now(), start + kSteps * 1min);
    Clock::thaw();
    EXPECT_GE(Clock::now(), start + kSteps * 1min) << "it never runs backwards";
    std::unique_lock lock(mutex);
    EXPECT_FALSE(Clock::waitUntil(condition, lock, Clock::now() + 1ms, [] { return false; }));
}

} // namespace
