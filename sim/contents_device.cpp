// Indications about the device, its calls and its radio hardware.

#include "at_commands.h"
#include "contents.h"

#include <algorithm>

namespace sim {
namespace {

constexpr int32_t kTransmitPower = 23; ///< dBm, the most that a phone of power class 3 sends with

uint32_t bandOf(const Slot& slot)
{
    const Cell* cell = slot.camped();
    return cell != nullptr ? cell->band : 0;
}

bool hasSeveralCards(const Subject& subject)
{
    return std::ranges::count_if(subject.slots, [](const Slot& slot) { return slot.card.present; }) > 1;
}

/// The first mode that the Wi-Fi side reported.
uint8_t wifiMode(const Slot& slot)
{
    const Fields* modes = slot.settings.find("SendRfIccModeState", {});
    return modes != nullptr ? modes->number<uint8_t>(256) : uint8_t{0};
}

/// The one that was last set to be preferred; 0 when none was, or none that the modem could number.
uint8_t subModeOf(const Slot& slot)
{
    const auto preferred = itemValues(slot, "+ESBP SBP_DSDA");
    const int64_t mode = preferred ? toInteger(*preferred).value_or(0) : 0;
    return mode >= 0 && mode <= UINT8_MAX ? static_cast<uint8_t>(mode) : uint8_t{0};
}

} // namespace

/// The first call, which has ended.
Fields callStateContents(const Subject&)
{
    return blockContents(wordBlock({1, 0}));
}

/// Every report tells of a full buffer, none of which was lost.
Fields logContents(const Subject&)
{
    constexpr int32_t kBufferSize = 4096;
    Fields fields;
    fields.setNumber(256, kBufferSize);
    fields.setNumber(257, int32_t{0});
    return fields;
}

Fields multiSimContents(const Subject& subject)
{
    Fields fields;
    fields.setNumber(257, subModeOf(subject.slot));
    fields.setNumber(258, static_cast<uint8_t>(hasSeveralCards(subject)));
    return fields;
}

/// The number of the slot, and that its packets are routed over the mobile network while it has service.
Fields packetRouteContents(const Subject& subject)
{
    Fields fields;
    fields.setNumber(256, static_cast<uint8_t>(subject.slot.number));
    fields.setNumber(257, static_cast<uint8_t>(subject.slot.camped() != nullptr));
    fields.setNumber(258, uint8_t{0});
    fields.setNumber(259, uint8_t{0});
    return fields;
}

Fields rfIccClatContents(const Subject& subject)
{
    constexpr uint32_t kKhzPerMhz = 1000;
    const Cell* cell = subject.slot.camped();
    Bytes info = toBytes(static_cast<uint16_t>(bandOf(subject.slot)));
    append(info, static_cast<uint16_t>(cell != nullptr ? cell->bandwidth / kKhzPerMhz : 0));
    append(info, uint16_t{wifiMode(subject.slot)});
    return blockContents(std::move(info));
}

/// An event with one word of data, the band that the modem transmits in.
Fields rfIccEventContents(const Subject& subject)
{
    constexpr size_t kEventSize = 136;
    Bytes event = wordBlock({1, sizeof(uint32_t), bandOf(subject.slot)});
    event.resize(kEventSize);
    return blockContents(std::move(event));
}

Fields rfIccSharingContents(const Subject& subject)
{
    return blockContents(wordBlock({bandOf(subject.slot), wifiMode(subject.slot), kTransmitPower}));
}

/// An event of the first call.
Fields rtpSessionContents(const Subject&)
{
    Fields fields;
    fields.setNumber(256, uint8_t{1});
    fields.setNumber(257, int32_t{1});
    return fields;
}

Fields singleSimContents(const Subject& subject)
{
    Fields fields;
    fields.setNumber(256, static_cast<uint8_t>(!hasSeveralCards(subject)));
    return fields;
}

/// Counts, so that a lost one is noticed.
Fields testContents(const Subject& subject)
{
    Fields fields;
    fields.setNumber(256, subject.slot.timesIndicated(0x7E02) + 1);
    return fields;
}

/// In eighths; nothing is sent without service.
Fields transmitPowerContents(const Subject& subject)
{
    constexpr int32_t kEighths = 8;
    Fields fields;
    fields.setNumber(257, subject.slot.camped() != nullptr ? kTransmitPower * kEighths : 0);
    return fields;
}

/// The first bearer, and whether it is up.
Fields vodataContents(const Subject& subject)
{
    return blockContents(wordBlock({1, subject.slot.camped() != nullptr ? 1 : 0}));
}

} // namespace sim
