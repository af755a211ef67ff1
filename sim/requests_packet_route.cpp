// The routes of packets.

#include "requests.h"

namespace sim {
namespace {

Answer getPacketRoute(Slot& slot, const Request&)
{
    Answer answer;
    answer.fields.setNumber(256, routeOf(slot));
    return answer;
}

} // namespace

uint8_t routeOf(const Slot& slot)
{
    constexpr uint8_t kNone = 0;
    constexpr uint8_t kMobileNetwork = 1;
    return slot.camped() != nullptr ? kMobileNetwork : kNone;
}

Domain packetRouteRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetDataActPacketRoute", getPacketRoute},
        {"GetDataIfupPacketRoute", getPacketRoute},
    };
    return {messages};
}

} // namespace sim
