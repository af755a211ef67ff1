// Where the modem may camp, and what it does to find its way there.

#include "requests.h"

namespace sim {
namespace {

/// +EMMCHLCK=1,TYPE,BAND,ARFCN,PCI[,MODE] locks, =0 alone unlocks.
AtReply lockCell(const AtCall& call)
{
    const bool locks = !call.parameters.front().omitted() && call.parameters.front().text == "1";
    const size_t count = call.parameters.size();
    if (!parametersFit(call) || (locks ? count < 5 : count != 1)) {
        return {AtResult::BadParameters};
    }
    setItem(call.slot, "+EMMCHLCK", call.parameters);
    return {};
}

AtReply needsRadio(const AtCall& call)
{
    return {call.slot.radioOn() ? AtResult::Ok : AtResult::NotAllowed};
}

constexpr AtRule kTechnologies[] = {{AtRule::Type::Number, 4, 4},
                                    {AtRule::Type::Number, 1, 128},
                                    {AtRule::Type::Number, 1, 128},
                                    {AtRule::Type::Number, 1, 128},
                                    {AtRule::Type::Number, 1, 128}};
constexpr AtRule kCellLock[] = {kSwitch,
                                {AtRule::Type::Number, 0, 5, true},
                                {AtRule::Type::Number, 0, 1, true},
                                {AtRule::Type::Number, 0, 3'279'165, true},
                                {AtRule::Type::Number, 0, 1007, true},
                                {AtRule::Type::Number, 0, 3, true}};

} // namespace

Domain campingRequests()
{
    static constexpr AtCommand commands[] = {
        {.name = "+EMMCHLCK", .set = lockCell, .query = queryStored, .rules = kCellLock, .initial = "0"},
        {.name = "+EPRATL",
         .set = setStored,
         .query = queryStored,
         .rules = kTechnologies,
         .initial = "4,128,4,2,1"},
        {.name = "+EPLMNFREQ", .set = setStored, .query = queryStored, .rules = kTwoNumbers},
        {.name = "+EGCMD", .set = setByKey, .rules = kApplication},
        {.name = "+ERETLTE", .execute = needsRadio},
        {.name = "+ERETNR", .execute = needsRadio},
    };
    return {.commands = commands};
}

} // namespace sim
