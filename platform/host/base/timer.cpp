#include "host/clock.h"
#include "mindroid/promise.h"
#include "zor/log.h"

#include <map>
#include <new>
#include <pthread.h>
#include <thread>

namespace mindroid {
namespace {

/// Runs functions at their time, on a thread that starts with the first one.
class Timer {
public:
    /// Never destroyed: functions may be due while the process ends. A forked child begins anew: the thread is
    /// its parent's, as is what is due, and nobody would ever unlock the mutex that the thread held.
    static Timer& instance()
    {
        static Timer& timer = *[] {
            pthread_atfork(nullptr, nullptr, [] { new (&instance()) Timer; });
            return new Timer;
        }();
        return timer;
    }

    void runAt(host::Clock::TimePoint time, std::function<void()> function)
    {
        const std::lock_guard lock(mMutex);
        if (!mIsRunning) {
            std::thread([this] { run(); }).detach();
            mIsRunning = true;
        }
        mFunctions.emplace(time, std::move(function));
        mChanged.notify_one();
    }

private:
    Timer() = default;

    [[noreturn]] void run()
    {
        std::unique_lock lock(mMutex);
        for (;;) {
            const auto deadline =
                mFunctions.empty() ? host::Clock::TimePoint::max() : mFunctions.begin()->first;
            const auto earlierOne = [&] {
                return !mFunctions.empty() && mFunctions.begin()->first < deadline;
            };
            if (!host::Clock::waitUntil(mChanged, lock, deadline, earlierOne)) {
                const auto due = mFunctions.extract(mFunctions.begin());
                lock.unlock();
                call(due.mapped());
                lock.lock();
            }
        }
    }

    /// What a function throws concerns nobody else who waits for his time.
    static void call(const std::function<void()>& function) noexcept
    {
        try {
            function();
        } catch (const std::exception& exception) {
            zorLogE("mindroid", "a delayed function failed: %s", exception.what());
        }
    }

    std::mutex mMutex;
    std::condition_variable mChanged;
    bool mIsRunning = false;
    std::multimap<host::Clock::TimePoint, std::function<void()>> mFunctions; ///< by the time they are due
};

/// Made while there is memory, since a step may fail for want of it; and never destroyed, as the timer.
const sp<Exception>& stepFailure = *new sp<Exception>(make<Exception>("a step could not be taken"));

} // namespace

const sp<Exception>& failureOfStep()
{
    return stepFailure;
}

void runAfter(std::chrono::milliseconds pause, std::function<void()> function)
{
    Timer::instance().runAt(host::Clock::now() + pause, std::move(function));
}

CompletionException::CompletionException(const sp<Exception>& cause)
    : Exception(cause ? cause->getMessage() : std::string(), cause)
{}

} // namespace mindroid
