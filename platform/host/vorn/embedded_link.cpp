#include "embedded_link.h"

namespace host {
namespace {

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

std::optional<std::string> EmbeddedLink::control(const std::string& command)
{
    return mModem.control(command, Clock::now());
}

void EmbeddedLink::answer(sim::ClientId /*client*/, sim::Message message)
{
    if (mIsOpen) {
        mEvents.received(MessagePtr(message.release()));
    }
}

void EmbeddedLink::indicate(sim::Message message)
{
    if (mIsOpen) {
        message->hdr.tx_id = 0;
        mEvents.received(MessagePtr(message.release()));
    }
}

void EmbeddedLink::disconnect(std::chrono::milliseconds downFor)
{
    mIsOpen = false;
    mEvents.lost(downFor);
}

} // namespace host
