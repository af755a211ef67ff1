#include "host/link_status.h"

#include <mutex>
#include <utility>

namespace host {
namespace {

struct Status {
    std::mutex mutex; ///< held while the observer runs, so that it sees the states in their order
    LinkState state = LinkState::Unknown;
    LinkObserver observer;
};

/// Made when the library is loaded, since who reports a loss may have no memory. Never destroyed: the delivery thread
/// may report after main() has returned.
Status& link = *new Status;

} // namespace

void publishLinkState(LinkState state)
{
    const std::lock_guard lock(link.mutex);
    if (std::exchange(link.state, state) != state && link.observer) {
        link.observer(state);
    }
}

void observeLinkState(LinkObserver observer)
{
    const std::lock_guard lock(link.mutex);
    link.observer = std::move(observer);
    if (link.observer && link.state != LinkState::Unknown) {
        link.observer(link.state);
    }
}

} // namespace host
