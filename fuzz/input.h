/// Messages out of a fuzzer's bytes.
#pragma once

#include "vorn/vorn_msg.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace fuzz {

using Input = std::span<const uint8_t>;

inline Input take(Input& input, size_t size)
{
    const Input taken = input.first(std::min(size, input.size()));
    input = input.subspan(taken.size());
    return taken;
}

/// One field, or one array of up to 8 elements: a byte for its kind and tag, two bytes for its length, its bytes.
inline void addField(vorn_msg_t* message, Input& input)
{
    static constexpr uint16_t kTags[] = {256, 257, 258, 259, 260,    261,    262,    263,
                                         264, 265, 266, 0,   0x8100, 0x8102, 0x8103, 0x8104};
    const uint8_t kind = take(input, 1)[0];
    const uint16_t tag = kTags[(kind & 3) | (kind >> 1 & 12)];
    const Input length = take(input, 2);
    const Input value = take(input, length.size() == 2 ? size_t{length[0]} + (size_t{length[1]} << 8) : 0);
    if ((kind & 4) == 0) {
        vorn_msg_add_tlv(message, tag, static_cast<uint16_t>(value.size()), value.data());
        return;
    }
    const auto count = static_cast<uint16_t>(kind >> 5);
    vorn_msg_add_array(message, tag, count);
    for (uint16_t i = 0; i < count; ++i) {
        vorn_msg_add_idx(message, tag, i, static_cast<uint16_t>(value.size()), value.data());
    }
}

inline void addFields(vorn_msg_t* message, Input& input)
{
    while (!input.empty()) {
        addField(message, input);
    }
}

} // namespace fuzz
