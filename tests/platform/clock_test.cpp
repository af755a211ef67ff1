#include "host/clock.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using host::Clock;

TEST(Clock, standsStillUntilItIsSteppedAndNeverRunsBackwards)
{
    Clock::freeze();
    const Clock::TimePoint start = Clock::now();
    EXPECT_EQ(Clock::now(), start);
    Clock::advance(1h);
    EXPECT_EQ(Clock::now(), start + 1h);
    Clock::thaw();
    EXPECT_GE(Clock::now(), start + 1h);
}

TEST(Clock, everyStepReachesThoseWhoWait)
{
    Clock::freeze();
    constexpr int kSteps = 200;
    std::mutex mutex;
    std::condition_variable condition;
    std::condition_variable stepped;
    int done = 0;
    const Clock::TimePoint start = Clock::now();
    std::vector<std::thread> waiters;
    for (int i = 0; i < 3; ++i) {
        waiters.emplace_back([&] {
            std::unique_lock lock(mutex);
            for (int step = 1; step <= kSteps; ++step) {
                EXPECT_FALSE(Clock::waitUntil(condition, lock, start + step * 1min, [] { return false; }));
                ++done;
                stepped.notify_one();
            }
        });
    }
    for (int step = 1; step <= kSteps; ++step) {
        Clock::advance(1min);
        std::unique_lock lock(mutex);
        stepped.wait(lock, [&] { return done == 3 * step; });
    }
    for (std::thread& waiter : waiters) {
        waiter.join();
    }
    Clock::thaw();
}

TEST(Clock, aRunningClockReachesDeadlinesByItself)
{
    std::mutex mutex;
    std::condition_variable condition;
    std::unique_lock lock(mutex);
    EXPECT_FALSE(Clock::waitUntil(condition, lock, Clock::now() + 1ms, [] { return false; }));
    EXPECT_TRUE(Clock::waitUntil(condition, lock, Clock::TimePoint::max(), [] { return true; }));
}

} // namespace
