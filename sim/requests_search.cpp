// The search for networks, and what the modem does without service.

#include "requests.h"

#include <array>

namespace sim {
namespace {

constexpr auto kRecoveryTimers = [] {
    std::array<AtRule, 23> rules{};
    rules.fill(kAnyNumber);
    return rules;
}();
constexpr AtRule kRecovery[] = {kAnyOptional, kAnyOptional, kAnyOptional,
                                kAnyOptional, kAnyOptional, kAnyOptional};

} // namespace

Domain searchRequests()
{
    static constexpr AtCommand commands[] = {
        {.name = "+ERSCFG", .set = setStored, .query = queryStored, .rules = kRecoveryTimers},
        {.name = "+ESRVREC", .set = setStored, .query = queryStored, .rules = kRecovery},
    };
    return {.commands = commands};
}

} // namespace sim
