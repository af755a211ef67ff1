#include "allocations.h"

#include <cstdlib>
#include <new>

namespace {

thread_local size_t allocations = 0;

} // namespace

size_t allocationsOfThisThread()
{
    return allocations;
}

// The shared objects find these in the program before the standard library's.
void* operator new(size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void* operator new(size_t size, const std::nothrow_t&) noexcept
{
    ++allocations;
    return std::malloc(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, size_t) noexcept
{
    std::free(memory);
}
