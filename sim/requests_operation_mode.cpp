// Whether the radio is on: as a message online or off, in terms of AT commands full functionality or radio off.

#include "requests.h"

namespace sim {
namespace {

Answer getOperationMode(Slot& slot, const Request&)
{
    Answer answer;
    answer.fields.setNumber(256, static_cast<uint8_t>(slot.radioOn()));
    return answer;
}

Answer setOperationMode(Slot& slot, const Request& request)
{
    slot.setLevel(request.fields.number<uint8_t>(256) == 1 ? "1" : "4");
    return {};
}

/// +CFUN=<fun>[,<rst>]: of the levels the modem has 0 minimum, 1 full and 4 radio off. <rst> 1 restarts it
/// first.
AtReply setFunctionality(const AtCall& call)
{
    if (!parametersFit(call)) {
        return {AtResult::BadParameters};
    }
    const std::string& level = call.parameters.front().text;
    if (level != "0" && level != "1" && level != "4") {
        return {AtResult::NotSupported};
    }
    AtReply reply;
    reply.restart = call.parameters.size() > 1 && call.parameters[1].text == "1";
    call.slot.setLevel(level);
    return reply;
}

AtReply testFunctionality(const AtCall&)
{
    return {AtResult::Ok, {"+CFUN: (0,1,4),(0-1)"}};
}

/// What the queries may tell by now.
const RadioMode& knownMode(const Slot& slot)
{
    return slot.now < slot.modeKnownFrom ? slot.modeBefore : slot.mode;
}

/// +EFUN=<fun>: 0 off, 1 to 3 on for some or all slots. It takes the modem its time.
AtReply setSlotsOn(const AtCall& call)
{
    if (!parametersFit(call)) {
        return {AtResult::BadParameters};
    }
    Slot& slot = call.slot;
    const std::string slotsOn = std::to_string(toInteger(call.parameters.front().text).value_or(0));
    const RadioMode before = knownMode(slot);
    if (slotsOn != "0") {
        slot.setLevel("1");
    } else if (slot.radioOn()) {
        slot.setLevel("4");
    }
    slot.mode.slotsOn = slotsOn;
    slot.modeBefore = before;
    slot.modeKnownFrom = slot.now + slot.modeChangeTime;
    return {};
}

AtReply querySlotsOn(const AtCall& call)
{
    return {AtResult::Ok, {"+EFUN: " + knownMode(call.slot).slotsOn}};
}

AtReply queryFunctionality(const AtCall& call)
{
    return {AtResult::Ok, {"+CFUN: " + knownMode(call.slot).level}};
}

constexpr AtRule kSlotsOn[] = {{AtRule::Type::Number, 0, 3}};
constexpr AtRule kFunctionality[] = {{AtRule::Type::Number, 0, 127}, {AtRule::Type::Number, 0, 1, true}};

} // namespace

Domain operationModeRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetOperationMode", getOperationMode},
        {"SetOperationMode", setOperationMode},
    };
    static constexpr AtCommand commands[] = {
        {.name = "+CFUN",
         .set = setFunctionality,
         .query = queryFunctionality,
         .test = testFunctionality,
         .rules = kFunctionality},
        {.name = "+EFUN", .set = setSlotsOn, .query = querySlotsOn, .rules = kSlotsOn},
    };
    return {messages, commands};
}

} // namespace sim
