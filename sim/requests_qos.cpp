// Quality of service.

#include "requests.h"

namespace sim {

Domain qosRequests()
{
    static constexpr MessageRow messages[] = {
        {.message = "GetQosData", .reads = {"SetQosConfig", 257, 256}},
    };
    return {messages};
}

} // namespace sim
