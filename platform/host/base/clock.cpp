#include "host/clock.h"

#include <atomic>
#include <new>
#include <pthread.h>
#include <thread>
#include <utility>

namespace host {
namespace {

/// A thread inside waitOnce(). It lives on that thread's stack, and so does the list: waiting needs no memory.
struct Waiter {
    std::mutex& mutex;
    std::condition_variable& condition;
    uint64_t wokenIn; ///< the last round that this waiter has heard of
    Waiter* next;
};

struct State {
    std::atomic<bool> frozen{false};
    std::atomic<Clock::Duration> offset{Clock::Duration::zero()}; ///< of a running clock to the machine's

    std::mutex mutex; ///< guards the rest, and every change of the above
    Clock::TimePoint frozenAt;
    Waiter* waiters = nullptr; ///< the newest first
    uint64_t round = 0;        ///< counts the changes that waiters must hear of
};

void forgetOtherThreads();

/// Never destroyed: threads of the host's libraries may outlive main().
State& state()
{
    static State& instance = *[] {
        pthread_atfork(nullptr, nullptr, forgetOtherThreads);
        return new State;
    }();
    return instance;
}

/// In a forked child nobody waits, and nobody would release the mutex that another thread held.
void forgetOtherThreads()
{
    new (&state().mutex) std::mutex;
    state().waiters = nullptr;
}

Clock::TimePoint runningTime(const State& clock)
{
    return std::chrono::steady_clock::now() + clock.offset.load(std::memory_order_relaxed);
}

Clock::TimePoint timeWhileLocked(const State& clock)
{
    return clock.frozen.load(std::memory_order_relaxed) ? clock.frozenAt : runningTime(clock);
}

/// Wakes the waiters that have not heard of this round yet; false when one of them could not be woken now. A
/// waiter is woken under its own mutex, or it could be just about to sleep and miss it; that mutex is only
/// tried, since its owner may be waiting for the clock's.
bool tryToWakeWaiters(State& clock, uint64_t round)
{
    bool allWoken = true;
    for (Waiter* waiter = clock.waiters; waiter != nullptr; waiter = waiter->next) {
        if (waiter->wokenIn >= round) {
            continue;
        }
        const std::unique_lock waiterLock(waiter->mutex, std::try_to_lock);
        if (waiterLock.owns_lock()) {
            waiter->wokenIn = round;
            waiter->condition.notify_all();
        } else {
            allWoken = false;
        }
    }
    return allWoken;
}

/// Makes every present waiter look at the clock again.
void wakeWaiters()
{
    State& clock = state();
    std::unique_lock lock(clock.mutex);
    const uint64_t round = ++clock.round;
    while (!tryToWakeWaiters(clock, round)) {
        lock.unlock();
        std::this_thread::yield();
        lock.lock();
    }
}

} // namespace

Clock::TimePoint Clock::now()
{
    State& clock = state();
    if (!clock.frozen.load(std::memory_order_acquire)) {
        return runningTime(clock);
    }
    const std::lock_guard lock(clock.mutex);
    return timeWhileLocked(clock);
}

void Clock::freeze()
{
    State& clock = state();
    {
        const std::lock_guard lock(clock.mutex);
        clock.frozenAt = timeWhileLocked(clock);
        clock.frozen.store(true, std::memory_order_release);
    }
    wakeWaiters();
}

void Clock::advance(Duration duration)
{
    State& clock = state();
    {
        const std::lock_guard lock(clock.mutex);
        clock.frozenAt += duration;
    }
    wakeWaiters();
}

void Clock::thaw()
{
    State& clock = state();
    {
        const std::lock_guard lock(clock.mutex);
        if (clock.frozen.load(std::memory_order_relaxed)) {
            // The clock goes on from where it stood: it never runs backwards.
            clock.offset.store(clock.frozenAt - std::chrono::steady_clock::now(), std::memory_order_relaxed);
            clock.frozen.store(false, std::memory_order_release);
        }
    }
    wakeWaiters();
}

void Clock::waitOnce(std::condition_variable& condition, std::unique_lock<std::mutex>& lock,
                     TimePoint deadline)
{
    State& clock = state();
    Waiter self{*lock.mutex(), condition, 0, nullptr};
    std::unique_lock clockLock(clock.mutex);
    if (timeWhileLocked(clock) >= deadline) {
        return;
    }
    const bool hasAlarm = deadline != TimePoint::max() && !clock.frozen.load(std::memory_order_relaxed);
    const TimePoint alarm = hasAlarm ? deadline - clock.offset.load(std::memory_order_relaxed) : deadline;
    self.wokenIn = clock.round;
    self.next = std::exchange(clock.waiters, &self);
    clockLock.unlock();

    if (hasAlarm) {
        condition.wait_until(lock, alarm);
    } else {
        condition.wait(lock);
    }

    clockLock.lock();
    Waiter** place = &clock.waiters;
    while (*place != &self) {
        place = &(*place)->next;
    }
    *place = self.next;
}

} // namespace host
