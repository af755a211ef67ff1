#include "host/quiet_write.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <unistd.h>

namespace host {
namespace {

constexpr int kPatience = 100; // milliseconds

/// Holds back the signals that a write of this thread raises, and takes those that came. The program's handlers
/// and what else it holds back stay as they are.
class HeldSignals {
public:
    HeldSignals()
    {
        sigemptyset(&mSignals);
        sigaddset(&mSignals, SIGPIPE);
        sigaddset(&mSignals, SIGXFSZ);
        pthread_sigmask(SIG_BLOCK, &mSignals, &mBefore);
        sigset_t pending;
        sigpending(&pending);
        // One that waited already is the program's.
        for (const int signal : {SIGPIPE, SIGXFSZ}) {
            if (sigismember(&pending, signal) == 1) {
                sigdelset(&mSignals, signal);
            }
        }
    }
    ~HeldSignals() { pthread_sigmask(SIG_SETMASK, &mBefore, nullptr); }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

    void take() const
    {
        const timespec atOnce{};
        while (sigtimedwait(&mSignals, nullptr, &atOnce) < 0 && errno == EINTR) {
        }
    }

private:
    sigset_t mSignals{};
    sigset_t mBefore{};
};

} // namespace

int writeQuietly(int descriptor, std::string_view data) noexcept
{
    const HeldSignals held;
    while (!data.empty()) {
        const ssize_t written = ::write(descriptor, data.data(), data.size());
        if (written >= 0) {
            data.remove_prefix(static_cast<size_t>(written));
            continue;
        }
        const int error = errno;
        pollfd room{descriptor, POLLOUT, 0};
        if (error == EINTR || (error == EAGAIN && ::poll(&room, 1, kPatience) > 0)) {
            continue;
        }
        held.take();
        return error;
    }
    return 0;
}

} // namespace host
