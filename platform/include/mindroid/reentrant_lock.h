/// A mutex that its owner may lock again.
#pragma once

#include <chrono>
#include <mutex>

namespace mindroid {

class ReentrantLock {
public:
    void lock() { mMutex.lock(); }
    void unlock() { mMutex.unlock(); }
    bool tryLock(std::chrono::milliseconds timeout) { return mMutex.try_lock_for(timeout); }

private:
    std::recursive_timed_mutex mMutex;
};

} // namespace mindroid
