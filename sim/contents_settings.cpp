// Indications about what was set.

#include "contents.h"
#include "requests.h"

namespace sim {
namespace {

constexpr size_t kMaxActions = 16;
constexpr size_t kMaxScenes = 64;
constexpr size_t kMaxAtoms = 4096 / 12;
constexpr size_t kSidoIssueSize = 84;

/// The number in the first field of a setting that has no key; 0 when it was never set.
template <typename Number>
Number settingOr0(const Slot& slot, std::string_view setter)
{
    const Fields* stored = slot.settings.find(setter, {});
    return stored != nullptr ? stored->number<Number>(256) : Number{0};
}

/// A lock that was never set has the status 0.
Fields lockStatus(const Slot& slot, std::string_view setter)
{
    const Fields* stored = slot.settings.find(setter, {});
    Fields fields;
    fields.set(257, stored != nullptr ? stored->bytes(257) : toBytes(uint32_t{0}));
    return fields;
}

} // namespace

bool isHyperUplinkOn(const Slot& slot)
{
    return settingOr0<uint32_t>(slot, "SetHyperUplinkMode") != 0;
}

Bytes actionOutcome(const Fields& action)
{
    constexpr int64_t kCarriedOut = 0;
    return wordBlock({action.number<int32_t>(256), action.number<int32_t>(257), kCarriedOut,
                      action.number<int32_t>(258), action.number<int32_t>(259), action.number<int32_t>(260),
                      action.number<int32_t>(261)});
}

Fields actionResultContents(const Subject& subject)
{
    Bytes outcomes;
    uint32_t count = 0;
    for (const auto& [key, action] : subject.slot.settings.all("SendNetworkAction")) {
        if (count < kMaxActions) {
            append(outcomes, actionOutcome(action));
            ++count;
        }
    }
    Bytes all = toBytes(count);
    append(all, outcomes);
    return blockContents(std::move(all));
}

Fields atomContents(const Subject& subject)
{
    Bytes records;
    size_t count = 0;
    for (const auto& [key, atom] : subject.slot.settings.all("SetAtomStatus")) {
        if (count++ < kMaxAtoms) {
            append(records, atomRecord(subject.slot, atom.number<int32_t>(256)));
        }
    }
    return blockContents(std::move(records));
}

/// The first scene that is on, whether the hyper uplink is on, and its mode.
Fields hyperUplinkContents(const Subject& subject)
{
    int32_t scene = 0;
    for (const auto& [key, fields] : subject.slot.settings.all("SetSceneMode")) {
        if (scene == 0 && fields.number<int32_t>(257) != 0) {
            scene = fields.number<int32_t>(256);
        }
    }
    Fields fields;
    fields.setNumber(256, scene);
    fields.setNumber(257, int32_t{isHyperUplinkOn(subject.slot)});
    fields.setNumber(258, settingOr0<int32_t>(subject.slot, "SetHyperUplinkMode"));
    return fields;
}

Fields rlkContents(const Subject& subject)
{
    return lockStatus(subject.slot, "SetRlkStatus");
}

/// The state that a session was set to, the second word of what the request told.
Fields rtpControlContents(const Subject& subject)
{
    const Fields* session = subject.slot.settings.find("SetImsRtpInfo", {});
    Fields fields;
    fields.setNumber(256, session != nullptr ? toNumber<uint16_t>(session->bytes(256), 4) : uint16_t{0});
    return fields;
}

/// Their number of words, then scenes and their modes in turns.
Fields sceneModeContents(const Subject& subject)
{
    Bytes words;
    size_t scenes = 0;
    for (const auto& [key, fields] : subject.slot.settings.all("SetSceneMode")) {
        if (scenes < kMaxScenes) {
            append(words, fields.number<uint32_t>(256));
            append(words, fields.number<uint32_t>(257));
            ++scenes;
        }
    }
    Bytes all = toBytes(static_cast<uint32_t>(2 * scenes));
    append(all, words);
    return blockContents(std::move(all));
}

/// The number of values that the watch for the issue was set up with, and these.
Fields sidoIssueContents(const Subject& subject)
{
    const Fields* config = subject.slot.settings.find("SetSidoIssueConfig", {});
    const auto& values = config != nullptr ? config->elements(256) : std::vector<Bytes>();
    Bytes words = toBytes(static_cast<uint32_t>(values.size()));
    for (const Bytes& value : values) {
        append(words, value);
    }
    words.resize(kSidoIssueSize);
    return blockContents(std::move(words));
}

Fields smlContents(const Subject& subject)
{
    return lockStatus(subject.slot, "SetSmlStatus");
}

/// 1 while measurement reports are on.
Fields veyraEventContents(const Subject& subject)
{
    Fields fields;
    fields.setNumber(256, int32_t{settingOr0<int32_t>(subject.slot, "SetVeyraConfigPolicy") != 0});
    return fields;
}

} // namespace sim
