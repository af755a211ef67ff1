#include "kst/libkst.h"
#include "host/link_status.h"
#include "zor/log.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using host::LinkState;

constexpr uint32_t kModemUp = 1;
constexpr uint32_t kModemLost = 10;

struct Registration {
    void (*callback)(void* client, md_status_event* event);
    void* client;
};

/// The status thread and what it works on. It is shared with the thread, which may outlive it when a callback
/// closes the library.
class StatusThread : public std::enable_shared_from_this<StatusThread> {
public:
    void start()
    {
        mThread = std::thread([self = shared_from_this()] { self->run(); });
    }

    /// No callback is running any more when this returns, except the one that calls it.
    void stop()
    {
        {
            const std::lock_guard lock(mMutex);
            mStopping = true;
        }
        mWake.notify_one();
        if (mThread.get_id() == std::this_thread::get_id()) {
            mThread.detach();
        } else {
            mThread.join();
        }
    }

    void add(Registration registration)
    {
        const std::lock_guard lock(mMutex);
        mRegistrations.push_back(registration);
        try {
            tell(mState, mRegistrations.size() - 1);
        } catch (const std::exception&) {
            mRegistrations.pop_back(); // who is refused comes again, and would be told twice
            throw;
        }
    }

    void changeState(LinkState state) noexcept
    {
        const std::lock_guard lock(mMutex);
        mState = state;
        try {
            tell(state, 0);
        } catch (const std::exception& error) {
            zorLogW("kst", "nobody hears of the modem's state %d: %s", static_cast<int>(state), error.what());
        }
    }

private:
    /// Something to tell the registrations first ... end - 1: those that existed when it happened.
    struct Event {
        uint32_t code;
        size_t first;
        size_t end;
    };

    void tell(LinkState state, size_t first)
    {
        if (state != LinkState::Unknown) {
            mEvents.push_back({state == LinkState::Up ? kModemUp : kModemLost, first, mRegistrations.size()});
            mWake.notify_one();
        }
    }

    void run()
    {
        std::unique_lock lock(mMutex);
        while (true) {
            mWake.wait(lock, [this] { return mStopping || !mEvents.empty(); });
            if (mStopping) {
                return;
            }
            const Event event = mEvents.front();
            mEvents.pop_front();
            for (size_t i = event.first; i < event.end && !mStopping; ++i) {
                const Registration registration = mRegistrations[i];
                md_status_event status{event.code};
                lock.unlock();
                registration.callback(registration.client, &status);
                lock.lock();
            }
        }
    }

    std::mutex mMutex;
    std::condition_variable mWake;
    std::deque<Event> mEvents;
    std::vector<Registration> mRegistrations;
    LinkState mState = LinkState::Unknown;
    bool mStopping = false;
    std::thread mThread;
};

/// The prepared library.
struct Library {
    std::mutex mutex;
    std::shared_ptr<StatusThread> status; ///< null when not prepared
};

/// Needs no memory, which may be short when the library is opened; never destroyed, since the status thread may run
/// until the process ends.
union Kept {
    constexpr Kept() : library() {}
    ~Kept() {}
    Library library;
};
constinit Kept kept;
Library& kst = kept.library;

} // namespace

int libkst_init(void)
{
    try {
        const std::lock_guard lock(kst.mutex);
        if (!kst.status) {
            auto status = std::make_shared<StatusThread>();
            host::LinkObserver observer = [status](LinkState state) { status->changeState(state); };
            status->start();
            host::observeLinkState(std::move(observer));
            kst.status = std::move(status);
        }
        return 0;
    } catch (const std::exception&) {
        return -1; // no memory or no thread
    }
}

void libkst_deinit(void)
{
    std::shared_ptr<StatusThread> status;
    {
        const std::lock_guard lock(kst.mutex);
        status.swap(kst.status);
        if (status) {
            host::observeLinkState(nullptr);
        }
    }
    if (status) {
        status->stop();
    }
}

int libkst_md_event_register(void (*cb)(void* client, md_status_event* event), void* client)
{
    const std::lock_guard lock(kst.mutex);
    if (!kst.status || cb == nullptr) {
        return -1;
    }
    try {
        kst.status->add({cb, client});
        return 0;
    } catch (const std::exception&) {
        return -1; // no memory
    }
}
