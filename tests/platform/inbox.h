/// What other threads report and a test waits for.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>
#include <vector>

template <typename T>
class Inbox {
public:
    void add(T item)
    {
        const std::lock_guard lock(mMutex);
        mItems.push_back(std::move(item));
        mChanged.notify_all();
    }

    /// Everything so far, once there are `count` items, or what there is after a time that no healthy machine
    /// needs.
    std::vector<T> waitFor(size_t count)
    {
        std::unique_lock lock(mMutex);
        mChanged.wait_for(lock, std::chrono::seconds(60), [&] { return mItems.size() >= count; });
        return mItems;
    }

    void clear()
    {
        const std::lock_guard lock(mMutex);
        mItems.clear();
    }

private:
    std::mutex mMutex;
    std::condition_variable mChanged;
    std::vector<T> mItems;
};
