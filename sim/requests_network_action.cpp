// Network actions: an action is active from its request until it is rolled back.

#include "requests.h"

namespace sim {
namespace {

enum class ActionState : int32_t { Unknown = 0, Active = 1, RolledBack = 2 };

Answer sendNetworkAction(Slot& slot, const Request& request)
{
    slot.settings.erase("RollbackNetworkAction", keyOf(request.spec, request.fields));
    slot.settings.store(request.spec, request.fields);
    return {};
}

Answer rollbackNetworkAction(Slot& slot, const Request& request)
{
    if (slot.settings.find("SendNetworkAction", keyOf(request.spec, request.fields)) == nullptr) {
        return {ModemResult::Failure};
    }
    slot.settings.store(request.spec, request.fields);
    return {};
}

Answer getNetworkActionState(Slot& slot, const Request& request)
{
    const Bytes key = keyOf(request.spec, request.fields);
    const Fields* action = slot.settings.find("SendNetworkAction", key);
    auto state = ActionState::Unknown;
    if (action != nullptr) {
        const bool rolledBack = slot.settings.find("RollbackNetworkAction", key) != nullptr;
        state = rolledBack ? ActionState::RolledBack : ActionState::Active;
    }
    Answer answer;
    answer.fields.setNumber(256, request.fields.number<int32_t>(256));
    answer.fields.setNumber(257, static_cast<int32_t>(state));
    answer.fields.setNumber(258, action != nullptr ? action->number<int32_t>(257) : 0);
    return answer;
}

} // namespace

Domain networkActionRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetNetworkActionState", getNetworkActionState},
        {"RollbackNetworkAction", rollbackNetworkAction},
        {"SendNetworkAction", sendNetworkAction},
    };
    return {messages};
}

} // namespace sim
