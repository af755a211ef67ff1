// The power that the modem takes, and its memory.

#include "requests.h"

namespace sim {
namespace {

struct Heap {
    std::string_view name; ///< at most 19 characters
    uint32_t size;
    uint32_t used;
};

constexpr Heap kHeaps[] = {
    {"layer1", 2'097'152, 1'310'720},
    {"rrc", 4'194'304, 2'359'296},
    {"nas", 1'048'576, 393'216},
    {"ims", 3'145'728, 1'572'864},
};
constexpr uint32_t kPoolSize = 16'777'216;
constexpr size_t kHeapNameSize = 20;

/// Words: number of pools, size, used and free bytes of the pool, its largest free block, number of heaps;
/// then for each heap its name of 20 bytes, its size and its used bytes.
Answer getHeapList(Slot&, const Request&)
{
    uint32_t used = 0;
    for (const Heap& heap : kHeaps) {
        used += heap.used;
    }
    Bytes block;
    for (const uint32_t word : {1U, kPoolSize, used, kPoolSize - used, (kPoolSize - used) / 2,
                                static_cast<uint32_t>(std::size(kHeaps))}) {
        append(block, word);
    }
    for (const Heap& heap : kHeaps) {
        const size_t begin = block.size();
        block.insert(block.end(), heap.name.begin(), heap.name.end());
        block.resize(begin + kHeapNameSize);
        append(block, heap.size);
        append(block, heap.used);
    }
    return blockAnswer(std::move(block));
}

/// The statistics go to the modem's own log; the answer only says that they were taken.
Answer getPowerStatistics(Slot&, const Request&)
{
    return {};
}

} // namespace

Domain powerRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetModemHeapList", getHeapList},
        {"GetPowerStatistics", getPowerStatistics},
    };
    static constexpr AtCommand commands[] = {
        {.name = "+EPCT", .set = setStored, .query = queryStored, .rules = kTwoNumbers, .initial = "0,0"},
        {.name = "+ESCRI", .execute = accept},
    };
    return {messages, commands};
}

} // namespace sim
