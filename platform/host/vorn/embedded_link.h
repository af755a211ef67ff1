/// The simulated modem in this process, living from the transport's delivery thread.
#pragma once

#include "link.h"
#include "sim/modem.h"

namespace host {

class EmbeddedLink : public Link, private sim::Output {
public:
    EmbeddedLink(const sim::Scenario& scenario, LinkEvents& events) : mEvents(events), mModem(scenario, *this)
    {}

    void open(std::chrono::milliseconds /*patience*/) override { mIsOpen = true; }
    void close() override;
    void send(const vorn_msg_t& request) override;
    Clock::TimePoint nextDeadline() const override;
    void advance(Clock::TimePoint now) override { mModem.advance(now); }
    void resume() override;
    void control(const std::string& command, ControlAnswer answer) override;

private:
    void answer(sim::ClientId client, sim::Message message) override;
    void indicate(sim::Message message) override;
    void disconnect(std::chrono::milliseconds downFor) override;

    LinkEvents& mEvents;
    bool mIsOpen = false;
    bool mIsFull = false;
    size_t mDropped = 0; ///< indications since it became full
    sim::Modem mModem;
};

} // namespace host
