/// Changes of JSON texts that leave them JSON, so that the fuzzer gets past the parser. For programs of one target.
#pragma once

#include <nlohmann/json.hpp>

#include <random>
#include <string_view>

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t maxSize);

/// Every other time one value of the tree is dropped, or replaced by a number or another value of it.
extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maxSize, unsigned int seed)
{
    using nlohmann::json;
    static constexpr int64_t kNumbers[] = {-1, 0, 1, 255, 256, 65536, INT32_MAX, UINT32_MAX, INT64_MAX};
    std::minstd_rand random(seed);
    const auto tree =
        json::parse(std::string_view(reinterpret_cast<const char*>(data), size), nullptr, false);
    if (tree.is_structured() && !tree.empty() && random() % 2 == 0) {
        json values = tree.flatten();
        const auto any = [&] {
            return std::next(values.begin(), static_cast<int>(random() % values.size()));
        };
        switch (random() % 3) {
        case 0:
            values.erase(any());
            break;
        case 1:
            *any() = kNumbers[random() % std::size(kNumbers)];
            break;
        default:
            *any() = json(*any());
        }
        const std::string text = values.empty() ? "{}" : values.unflatten().dump();
        if (text.size() <= maxSize) {
            std::copy(text.begin(), text.end(), data);
            return text.size();
        }
    }
    return LLVMFuzzerMutate(data, size, maxSize);
}
