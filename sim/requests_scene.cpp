// Scenes that the modem adapts to.

#include "requests.h"

#include <algorithm>

namespace sim {
namespace {

constexpr size_t kMostScenes = 64;
constexpr size_t kSceneRecordSize = 516;

/// One record for each scene asked for: the number of pairs in it, which is 1, then the scene and its mode.
Answer getSceneModes(Slot& slot, const Request& request)
{
    const Bytes& asked = request.fields.bytes(256);
    const size_t count = std::min<size_t>(toNumber<uint32_t>(asked), kMostScenes);
    Bytes block;
    for (size_t i = 0; i < count; ++i) {
        const auto scene = toNumber<int32_t>(asked, 4 + 4 * i);
        const Fields* stored = slot.settings.find("SetSceneMode", keyOf(scene));
        append(block, uint32_t{1});
        append(block, scene);
        append(block, stored != nullptr ? stored->number<uint32_t>(257) : 0U);
        block.resize((i + 1) * kSceneRecordSize);
    }
    return blockAnswer(std::move(block));
}

} // namespace

Domain sceneRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetSceneMode", getSceneModes},
    };
    return {messages};
}

} // namespace sim
