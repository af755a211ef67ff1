// What the modem is told about the device.

#include "requests.h"

namespace sim {
namespace {

/// The modem assumes what it is told.
Answer sendDeviceState(Slot& slot, const Request& request)
{
    slot.settings.store(request.spec, request.fields);
    return {ModemResult::Success, request.fields};
}

constexpr AtRule kIdentity[] = {
    {AtRule::Type::Number, 1, 1}, {AtRule::Type::Number, 9, 9}, {AtRule::Type::Text, 2, 2}};

} // namespace

Domain deviceStateRequests()
{
    static constexpr MessageRow messages[] = {
        {.message = "GetFeatureState", .reads = {"SetFeatureState", 257, 256}},
        {"SendDeviceStateExt", sendDeviceState},
    };
    static constexpr AtCommand commands[] = {
        {.name = "+EGMR", .set = setByKey, .rules = kIdentity},
    };
    return {messages, commands};
}

} // namespace sim
