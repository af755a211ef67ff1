// Which technologies serve, and whether voice or data comes first.

#include "requests.h"

namespace sim {
namespace {

constexpr AtRule kServiceMode[] = {{AtRule::Type::Number, 0, 3}};

} // namespace

Domain serviceModeRequests()
{
    static constexpr AtCommand commands[] = {
        {.name = "+CEMODE",
         .set = setStored,
         .query = queryStored,
         .test = testStored,
         .rules = kServiceMode,
         .initial = "2"},
        {.name = "+CEUS",
         .set = setStored,
         .query = queryStored,
         .test = testStored,
         .rules = kOneSwitch,
         .initial = "1"},
    };
    return {.commands = commands};
}

} // namespace sim
