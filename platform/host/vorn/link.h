/// What carries messages between the transport and a modem.
#pragma once

#include "host/clock.h"
#include "host/wire/message.h"

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>

namespace host {

/// A device that can't be used: the message says why.
class LinkError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Where a link tells what comes from the modem. From any thread, from within the link's own functions too,
/// but not any more when Link::close() has returned.
class LinkEvents {
public:
    virtual ~LinkEvents() = default;

    /// An answer, or, when its transaction is 0, an indication. False when so much waits to be delivered that
    /// the link should bring no more until Link::resume().
    virtual bool received(MessagePtr message) = 0;

    /// The modem is gone. The link may be opened again; the first attempt is worth while after `retryAfter`.
    virtual void lost(std::chrono::milliseconds retryAfter) = 0;
};

/// The answer to a command, one JSON object. Destroyed without one when there is none to be had.
using ControlAnswer = std::promise<std::string>;

/// One link, opened and closed any number of times. Its functions are called by one thread at a time, and wait
/// for nobody but where they say so. What else they throw is treated as the loss of the link.
class Link {
public:
    virtual ~Link() = default;

    /// Throws LinkError when there is no modem to be had now. For one that is there and has no room yet it waits
    /// no longer than `patience`.
    virtual void open(std::chrono::milliseconds patience) = 0;
    virtual void close() = 0;

    /// Sends a request. One that can't be sent is dropped, and the loss of the link told.
    virtual void send(const vorn_msg_t& request) = 0;

    /// What was received has been taken: there is room again.
    virtual void resume() {}

    /// For a link that lives from the transport's thread: when it wants advance() to be called, whether the
    /// link is open or lost. TimePoint::max() when it does not.
    virtual Clock::TimePoint nextDeadline() const { return Clock::TimePoint::max(); }
    virtual void advance(Clock::TimePoint /*now*/) {}

    /// Has a command to the simulation, one JSON object, carried out and answered, now or later.
    virtual void control(const std::string& /*command*/, ControlAnswer /*answer*/) {}
};

/// Makes the link to a device. Throws LinkError when there is no such device.
using LinkFactory = std::function<std::unique_ptr<Link>(LinkEvents& events)>;

} // namespace host
