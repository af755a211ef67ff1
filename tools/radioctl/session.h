/// The library, as radioctl uses it: one request at a time, waited for.
#pragma once

#include "interface/outcome.h"
#include "radioctl/options.h"

#include <functional>

namespace radioctl {

using interface::Outcome;

int exitStatus(const Outcome& outcome);

/// The modem can't be reached; the message tells why.
class Unreachable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Session {
public:
    /// Opens the library. Throws Unreachable.
    explicit Session(const Options& options);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Makes this thread address the instance that the options name.
    void use(const Options& options);

    Outcome run(const interface::Request& request, interface::Arguments arguments, const Options& options);

    /// How often the link was lost.
    unsigned losses() const;

    /// awaitLink() waits for the link's loss of that number first.
    void expectLoss(unsigned number);

    /// Waits until the link is up; false when that takes longer.
    bool awaitLink(std::chrono::milliseconds atMost);

private:
    unsigned mInstance;
};

/// Calls `changed` whenever the link is lost or back, on a thread of the platform's; nothing ends that, and then no call is
/// under way any more. It must not wait for the link.
void onLinkChange(std::function<void(bool isUp)> changed);

} // namespace radioctl
