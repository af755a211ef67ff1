// The SIM card, its trays, and the SIM lock data that the modem keeps.

#include "requests.h"

namespace sim {
namespace {

Answer getSimTrays(Slot& slot, const Request&)
{
    std::vector<Bytes> trays;
    for (const int32_t tray : slot.simTrays) {
        trays.push_back(toBytes(tray));
    }
    Answer answer;
    answer.fields.set(256, std::move(trays));
    return answer;
}

/// Keeps a SIM lock blob or status, field 256 or 257, and hands it back.
Answer setLockData(Slot& slot, const Request& request)
{
    slot.settings.store(request.spec, request.fields);
    Answer answer;
    answer.fields.set(257, request.fields.begin()->second);
    return answer;
}

/// A card that has no power is as good as none.
Answer setSimPower(Slot& slot, const Request& request)
{
    slot.settings.store(request.spec, request.fields);
    slot.card.present = slot.card.inserted && request.fields.number<uint8_t>(257) != 0;
    return {};
}

Answer authenticateSim(Slot& slot, const Request& request)
{
    const Bytes& challenge = request.fields.bytes(0x8103);
    std::optional<Bytes> content;
    if (slot.card.present && request.fields.number<uint16_t>(258) == challenge.size()) {
        content = authenticate(slot.card.secrets, challenge);
    }
    if (!content) {
        return {ModemResult::Failure};
    }
    Answer answer;
    answer.fields.setNumber(257, static_cast<uint16_t>(content->size()));
    answer.fields.set(0x8102, std::move(*content));
    return answer;
}

AtReply getImsi(const AtCall& call)
{
    return call.slot.card.present ? AtReply{AtResult::Ok, {call.slot.card.imsi}}
                                  : AtReply{AtResult::NoSimCard};
}

} // namespace

Domain simRequests()
{
    static constexpr MessageRow messages[] = {
        {.message = "GetRlkStatus", .reads = {"SetRlkStatus", 257, 257}},
        {"GetSimTrayStatus", getSimTrays},
        {.message = "GetSmlStatus", .reads = {"SetSmlStatus", 257, 257}},
        {"IccSimAuthentication", authenticateSim},
        {"SetRlkBlob", setLockData},
        {"SetRlkStatus", setLockData},
        {"SetSmlBlob", setLockData},
        {"SetSmlStatus", setLockData},
        {"SetUimPower", setSimPower},
    };
    static constexpr AtCommand commands[] = {
        {.name = "+CIMI", .execute = getImsi, .test = accept},
        {.name = "+ESMLRSUF", .query = queryStored, .initial = "0,0,0,0,0"}, // no category is locked
    };
    return {messages, commands};
}

} // namespace sim
