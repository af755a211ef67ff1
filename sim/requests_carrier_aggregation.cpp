// Carrier aggregation.

#include "requests.h"

namespace sim {
namespace {

/// +ECACOMB=1,LIST,"COMBINATIONS",1: "reset" empties the list.
AtReply setCombinations(const AtCall& call)
{
    AtReply reply = setByKey(call);
    if (reply.result == AtResult::Ok && call.parameters[2].text == "reset") {
        call.slot.at.erase("+ECACOMB " + call.parameters[1].text);
    }
    return reply;
}

constexpr AtRule kCombinations[] = {
    {AtRule::Type::Number, 1, 1}, {AtRule::Type::Number, 2, 5}, kText, kSwitch};
constexpr AtRule kUserCapabilities[] = {
    {AtRule::Type::Number, 2, 2}, kAnyOptional, kText, kText, kAnyOptional, kAnyOptional};

} // namespace

Domain carrierAggregationRequests()
{
    static constexpr AtCommand commands[] = {
        {.name = "+ECASW", .set = setStored, .query = queryStored, .rules = kOneSwitch, .initial = "1"},
        {.name = "+ECACOMB", .set = setCombinations, .rules = kCombinations},
        {.name = "+E5GUC", .set = setStored, .query = queryStored, .rules = kUserCapabilities},
    };
    return {.commands = commands};
}

} // namespace sim
