#include "embedded_link.h"

#include "zor/log.h"

#include <utility>

namespace host {
namespace {

constexpr const char* kEmbeddedTag = "vorn";

constexpr sim::ClientId kOnlyClient = 0;

} // namespace

void EmbeddedLink::close()
{
    mIsOpen = false;
    mModem.forget(kOnlyClient);
}

void EmbeddedLink::send(const vorn_msg_t& request)
{
    if (mIsOpen) {
        mModem.receive(kOnlyClient, request, Clock::now());
    }
}

Clock::TimePoint EmbeddedLink::nextDeadline() const
{
    return mModem.nextDeadline().value_or(Clock::TimePoint::max());
}

void EmbeddedLink::resume()
{
    mIsFull = false;
    if (const size_t dropped = std::exchange(mDropped, 0); dropped != 0) {
        zorLogW(kEmbeddedTag, "the modem dropped %zu indications: callbacks take longer than they have", dropped);
    }
}

void EmbeddedLink::control(const std::string& command, ControlAnswer answer)
{
    answer.set_value(mModem.control(command, Clock::now()));
}

void EmbeddedLink::answer(sim::ClientId /*client*/, sim::Message message)
{
    if (mIsOpen) {
        mEvents.received(MessagePtr(message.release()));
    }
}

void EmbeddedLink::indicate(sim::Message message)
{
    if (!mIsOpen) {
        return;
    }
    // The modem lives from the thread that delivers, and so can't wait for it.
    if (mIsFull) {
        ++mDropped;
        return;
    }
    message->hdr.tx_id = 0;
    mIsFull = !mEvents.received(MessagePtr(message.release()));
}

void EmbeddedLink::disconnect(std::chrono::milliseconds downFor)
{
    mIsOpen = false;
    mEvents.lost(downFor);
}

} // namespace host
