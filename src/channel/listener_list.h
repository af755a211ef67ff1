/// Registrations that may change while they are being called.
#pragma once

#include <algorithm>
#include <memory>
#include <mutex>
#include <vector>

/// A list published as immutable snapshots: whoever walks one is not disturbed by changes, and sees none of
/// them.
template <typename Registration>
class ListenerList {
public:
    using Snapshot = std::shared_ptr<const std::vector<Registration>>;

    Snapshot snapshot() const
    {
        const std::lock_guard lock(mMutex);
        return mRegistrations;
    }

    /// False, and no change, when an equal registration is there.
    bool add(const Registration& registration)
    {
        const std::lock_guard lock(mMutex);
        if (std::ranges::find(*mRegistrations, registration) != mRegistrations->end()) {
            return false;
        }
        auto changed = std::make_shared<std::vector<Registration>>(*mRegistrations);
        changed->push_back(registration);
        mRegistrations = std::move(changed);
        return true;
    }

    template <typename Predicate>
    void removeFirst(Predicate predicate)
    {
        const std::lock_guard lock(mMutex);
        auto changed = std::make_shared<std::vector<Registration>>(*mRegistrations);
        const auto found = std::ranges::find_if(*changed, predicate);
        if (found != changed->end()) {
            changed->erase(found);
            mRegistrations = std::move(changed);
        }
    }

    void clear()
    {
        const std::lock_guard lock(mMutex);
        mRegistrations = std::make_shared<std::vector<Registration>>();
    }

private:
    mutable std::mutex mMutex; ///< guards the pointer only, never a walk
    Snapshot mRegistrations = std::make_shared<std::vector<Registration>>();
};
