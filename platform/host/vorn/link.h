/// What carries messages between the transport and a modem.
#pragma once

#include "host/clock.h"
#include "message.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
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

    /// An answer, or, when its transaction is 0, an indication.
    virtual void received(MessagePtr message) = 0;

    /// The modem is gone. The link may be opened again; the first attempt is worth while after `retryAfter`.
    virtual void lost(std::chrono::milliseconds retryAfter) = 0;
};

/// One link, opened and closed any number of times. Its functions are called by one thread at a time.
class Link {
public:
    virtual ~Link() = default;

    /// Throws LinkError when there is no modem to be had now.
    virtual void open() = 0;
    virtual void close() = 0;

    /// Sends a request. One that can't be sent is dropped, and the loss of the link told.
    virtual void send(const vorn_msg_t& request) = 0;

    /// For a link that lives from the transport's thread: when it wants advance() to be called, whether the
    /// link is open or lost. TimePoint::max() when it does not.
    virtual Clock::TimePoint nextDeadline() const { return Clock::TimePoint::max(); }
    virtual void advance(Clock::TimePoint /*now*/) {}

    /// Carries out a command to the simulation, one JSON object, and returns its answer, another; nothing
    /// when it can't be asked.
    virtual std::optional<std::string> control(const std::string& /*command*/) { return std::nullopt; }
};

/// Makes the link to a device. Throws LinkError when there is no such device.
using LinkFactory = std::function<std::unique_ptr<Link>(LinkEvents& events)>;

} // namespace host
