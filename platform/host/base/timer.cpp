#include "host/clock.h"
#include "mindroid/promise.h"

#include <map>
#include <thread>

namespace mindroid {
namespace {

/// Runs functions at their time, on a thread that starts with the first one.
class Timer {
public:
    /// Never destroyed: functions may be due while the process ends.
    static Timer& instance()
    {
        static Timer& timer = *new Timer;
        return timer;
    }

    void runAt(host::Clock::TimePoint time, std::function<void()> function)
    {
        const std::lock_guard lock(mMutex);
        mFunctions.emplace(time, std::move(function));
        mChanged.notify_one();
    }

private:
    Timer()
    {
        std::thread([this] { run(); }).detach();
    }

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
                due.mapped()();
                lock.lock();
            }
        }
    }

    std::mutex mMutex;
    std::condition_variable mChanged;
    std::multimap<host::Clock::TimePoint, std::function<void()>> mFunctions; ///< by the time they are due
};

} // namespace

void runAfter(std::chrono::milliseconds pause, std::function<void()> function)
{
    Timer::instance().runAt(host::Clock::now() + pause, std::move(function));
}

CompletionException::CompletionException(const sp<Exception>& cause)
    : Exception(cause ? cause->getMessage() : std::string(), cause)
{}

} // namespace mindroid
