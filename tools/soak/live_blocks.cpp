#include "soak/live_blocks.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<int64_t> live = 0;

void* take(size_t size) noexcept
{
    void* memory = std::malloc(size);
    live += memory != nullptr ? 1 : 0;
    return memory;
}

void giveBack(void* memory) noexcept
{
    live -= memory != nullptr ? 1 : 0;
    std::free(memory);
}

} // namespace

namespace soak {

int64_t liveBlocks()
{
    return live;
}

} // namespace soak

// The shared objects find these in the program before the standard library's.
void* operator new(size_t size)
{
    if (void* memory = take(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void* operator new(size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return take(size);
}

void operator delete(void* memory) noexcept
{
    giveBack(memory);
}

void operator delete(void* memory, size_t /*size*/) noexcept
{
    giveBack(memory);
}
