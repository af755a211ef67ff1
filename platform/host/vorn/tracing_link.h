/// Any link, with a trace of what goes over it.
#pragma once

#include "link.h"

#include "sim/trace.h"

namespace host {

class TracingLink : public Link, private LinkEvents {
public:
    /// `makeLink` makes the link that does the work.
    TracingLink(std::unique_ptr<sim::Trace> trace, LinkEvents& events, const LinkFactory& makeLink)
        : mTrace(std::move(trace)), mEvents(events), mLink(makeLink(*this))
    {}

    void open(std::chrono::milliseconds patience) override { mLink->open(patience); }
    void close() override { mLink->close(); }
    void send(const vorn_msg_t& request) override
    {
        mTrace->note(sim::Direction::ToModem, request);
        mLink->send(request);
    }
    Clock::TimePoint nextDeadline() const override { return mLink->nextDeadline(); }
    void advance(Clock::TimePoint now) override { mLink->advance(now); }
    void resume() override { mLink->resume(); }
    void control(const std::string& command, ControlAnswer answer) override
    {
        mLink->control(command, std::move(answer));
    }

private:
    bool received(MessagePtr message) override
    {
        mTrace->note(sim::Direction::FromModem, *message);
        return mEvents.received(std::move(message));
    }
    void lost(std::chrono::milliseconds retryAfter) override { mEvents.lost(retryAfter); }

    std::unique_ptr<sim::Trace> mTrace;
    LinkEvents& mEvents;
    std::unique_ptr<Link> mLink;
};

} // namespace host
