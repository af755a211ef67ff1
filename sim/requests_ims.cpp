// Voice and other services over IMS.

#include "requests.h"

namespace sim {
namespace {

constexpr AtRule kDataSwitch[] = {kSwitch, kSwitch, kSwitch, kSwitch};

} // namespace

Domain imsRequests()
{
    static constexpr AtCommand commands[] = {
        {.name = "+EPVSSET", .set = setByKey, .rules = kProvisioning},
        {.name = "+EVODATA",
         .set = setStored,
         .query = queryStored,
         .rules = kDataSwitch,
         .initial = "0,0,0,0"},
        {.name = "+EWFCP", .set = setStored, .query = queryStored, .rules = kOneSwitch, .initial = "0"},
    };
    return {.commands = commands};
}

} // namespace sim
