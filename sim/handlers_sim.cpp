// The SIM card.

#include "handlers.h"

namespace sim {

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

} // namespace sim
