// The specific absorption rate.

#include "requests.h"

namespace sim {

Domain sarRequests()
{
    static constexpr MessageRow messages[] = {
        {.message = "GetSarDsiState", .reads = {"SetSarDsiState", 256, 256}},
    };
    static constexpr AtCommand commands[] = {
        {.name = "+ESARSEN", .set = setStored, .query = queryStored, .rules = kTwoNumbers, .initial = "0,1"},
        {.name = "+ESARSIDX", .set = setStored, .query = queryStored, .rules = kTwoNumbers, .initial = "0,0"},
    };
    return {messages, commands};
}

} // namespace sim
