// Redundant transport of an IMS call's media.

#include "requests.h"

#include <algorithm>
#include <random>

namespace sim {
namespace {

constexpr uint32_t kDone = 0;
constexpr uint32_t kNoRemoteKey = 1;

/// A key of its own for each slot, call and kind: an uncompressed point in form, though on no curve.
Bytes publicKeyOf(int slot, int32_t id, int32_t keyType)
{
    constexpr size_t kKeySize = 65;
    constexpr uint8_t kUncompressed = 4;
    std::seed_seq seed{slot, id, keyType};
    std::mt19937 random(seed);
    Bytes key(kKeySize, kUncompressed);
    std::generate(key.begin() + 1, key.end(), [&] { return static_cast<uint8_t>(random()); });
    return key;
}

/// How many calls' redundancy was started and not ended.
uint8_t startedCalls(const Slot& slot)
{
    constexpr uint8_t kStart = 1;
    const auto& calls = slot.settings.all("SetImsRtpRedunControlInfo");
    return static_cast<uint8_t>(std::ranges::count_if(
        calls, [](const auto& call) { return call.second.template number<uint8_t>(256) == kStart; }));
}

Answer getRedundancyCapability(Slot&, const Request&)
{
    constexpr uint8_t kCapable = 1;
    Answer answer;
    answer.fields.setNumber(257, kCapable);
    return answer;
}

Answer getPublicKey(Slot& slot, const Request& request)
{
    constexpr uint8_t kUsualType = 1;
    const auto id = request.fields.number<int32_t>(257);
    const auto keyType =
        request.fields.find(258) != nullptr ? request.fields.number<uint8_t>(258) : kUsualType;
    Answer answer;
    answer.fields.setNumber(256, kDone);
    answer.fields.setNumber(258, id);
    answer.fields.setNumber(259, int32_t{keyType});
    answer.fields.set(262, publicKeyOf(slot.number, id, keyType));
    return answer;
}

/// An empty key is not kept.
Answer setRemoteKey(Slot& slot, const Request& request)
{
    const bool hasKey = toNumber<uint16_t>(request.fields.bytes(260)) != 0;
    if (hasKey) {
        slot.settings.store(request.spec, request.fields);
    }
    Answer answer;
    answer.fields.setNumber(256, hasKey ? kDone : kNoRemoteKey);
    answer.fields.setNumber(257, request.fields.number<int32_t>(257));
    answer.fields.setNumber(258, request.fields.number<uint8_t>(259));
    return answer;
}

/// Nothing can be controlled before the other side's key is known.
Answer controlRedundancy(Slot& slot, const Request& request)
{
    const bool isKnown = hasRemoteKey(slot, request);
    if (isKnown) {
        slot.settings.store(request.spec, request.fields);
    }
    Answer answer;
    answer.fields.setNumber(256, isKnown ? kDone : kNoRemoteKey);
    answer.fields.setNumber(257, request.fields.number<int32_t>(257));
    return answer;
}

/// From the slot's address to the media gateway's, both of the networks for documentation (RFC 5737); then
/// the route that packets take, and the number of calls in redundancy.
Answer syncDataPath(Slot& slot, const Request& request)
{
    constexpr uint16_t kOwnPort = 50000;
    constexpr uint16_t kGatewayPort = 50002;
    Answer answer;
    answer.fields.setNumber(256, request.fields.number<uint8_t>(256));
    answer.fields.set(257, Bytes{192, 0, 2, static_cast<uint8_t>(slot.number + 1)});
    answer.fields.setNumber(258, kOwnPort);
    answer.fields.set(259, Bytes{198, 51, 100, 1});
    answer.fields.setNumber(260, kGatewayPort);
    answer.fields.setNumber(261, routeOf(slot));
    answer.fields.setNumber(262, startedCalls(slot));
    return answer;
}

} // namespace

bool hasRemoteKey(const Slot& slot, const Request& request)
{
    const Bytes call = keyOf(request.fields.number<int32_t>(257));
    return slot.settings.find("SetImsRtpRedunRemotePublicKey", call) != nullptr;
}

Domain rtpRedundancyRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetImsRtpRedunCapability", getRedundancyCapability},
        {"GetImsRtpRedunPublicKey", getPublicKey},
        {"SetImsRtpRedunControlInfo", controlRedundancy},
        {"SetImsRtpRedunRemotePublicKey", setRemoteKey},
        {"SyncImsRtpRedunDataPathConfig", syncDataPath},
    };
    return {messages};
}

} // namespace sim
