// What the radio hardware is forced to.

#include "requests.h"

namespace sim {
namespace {

constexpr AtRule kTransmitAntenna[] = {
    {AtRule::Type::Number, 0, 6}, {AtRule::Type::Number, 0, 127}, {AtRule::Type::Number, 0, 127, true}};

} // namespace

Domain rfRequests()
{
    static constexpr AtCommand commands[] = {
        {.name = "+ETXANT",
         .set = setStored,
         .query = queryStored,
         .rules = kTransmitAntenna,
         .initial = "0,0"},
    };
    return {.commands = commands};
}

} // namespace sim
