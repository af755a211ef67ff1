// Wi-Fi next to the modem's radio.

#include "requests.h"

namespace sim {
namespace {

/// The first mode that the Wi-Fi side reported, and the band that the modem transmits in.
Answer getRfIccInfo(Slot& slot, const Request&)
{
    const Fields* modes = slot.settings.find("SendRfIccModeState", {});
    const Cell* cell = slot.camped();
    Answer answer;
    answer.fields.setNumber(256, modes != nullptr ? modes->number<uint8_t>(256) : uint8_t{0});
    answer.fields.setNumber(257, static_cast<uint16_t>(cell != nullptr ? cell->band : 0));
    return answer;
}

} // namespace

Domain rfIccRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetRfIccInfo", getRfIccInfo},
    };
    return {messages};
}

} // namespace sim
