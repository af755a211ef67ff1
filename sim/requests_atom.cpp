// What the modem gathers as atoms.

#include "requests.h"

namespace sim {
namespace {

constexpr size_t kMaxAtoms = 4096 / 12;

Answer unloadAtomApplication(Slot& slot, const Request& request)
{
    const bool wasLoaded = slot.settings.erase("LoadAtomApplication", keyOf(request.spec, request.fields));
    return {wasLoaded ? ModemResult::Success : ModemResult::Failure};
}

Answer getAtomData(Slot& slot, const Request& request)
{
    Bytes block;
    const auto& atoms = slot.settings.all("SetAtomStatus");
    for (const int32_t id : wantedIds(request.fields.elements(258), atoms, kMaxAtoms)) {
        append(block, atomRecord(slot, id));
    }
    return blockAnswer(std::move(block));
}

} // namespace

Bytes atomRecord(const Slot& slot, int32_t id)
{
    const Fields* atom = slot.settings.find("SetAtomStatus", keyOf(id));
    Bytes record = toBytes(id);
    append(record, atom != nullptr ? atom->number<int32_t>(257) : 0);
    append(record, atom != nullptr ? atom->number<int32_t>(258) : 0);
    return record;
}

Domain atomRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetAtomData", getAtomData},
        {"UnloadAtomApplication", unloadAtomApplication},
    };
    return {messages};
}

} // namespace sim
