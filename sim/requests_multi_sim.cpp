// Several SIM cards at once.

#include "contents.h"
#include "requests.h"

namespace sim {
namespace {

/// The same that the indication of its changes tells.
Answer getMultiSimState(Slot& slot, const Request& request)
{
    return {ModemResult::Success, multiSimContents({request.slots, slot})};
}

} // namespace

Domain multiSimRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetMsimSubModeState", getMultiSimState},
    };
    return {messages};
}

} // namespace sim
