#include "support/failing_memory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace test::memory {

constinit thread_local Role role = Other;
constinit thread_local bool inTestCode = false;
constinit std::atomic<int> allocations[kRoles];
constinit std::atomic<long> live = 0;
constinit std::atomic<bool>* failed = nullptr;

namespace {

constinit std::atomic<Role> aimedRole = Other;
constinit std::atomic<int> first = 0;
constinit std::atomic<int> last = 0;

bool fails()
{
    const int number = inTestCode ? 0 : ++allocations[role];
    if (number == 0 || role != aimedRole || number < first || number > last) {
        return false;
    }
    *failed = true;
    return true;
}

/// In front of every block.
struct alignas(__STDCPP_DEFAULT_NEW_ALIGNMENT__) Header {
    bool counts;
};

void* allocate(size_t size) noexcept
{
    void* memory = fails() ? nullptr : std::malloc(sizeof(Header) + size);
    if (memory == nullptr) {
        return nullptr;
    }
    live += inTestCode ? 0 : 1;
    return new (memory) Header{!inTestCode} + 1;
}

void* allocateOrThrow(size_t size)
{
    void* block = allocate(size);
    return block != nullptr ? block : throw std::bad_alloc();
}

void release(void* block) noexcept
{
    if (block != nullptr) {
        Header* header = static_cast<Header*>(block) - 1;
        live -= header->counts ? 1 : 0;
        std::free(header);
    }
}

} // namespace

void arm(const Aim& aim)
{
    std::ranges::fill(allocations, 0);
    aimedRole = aim.role;
    first = aim.first;
    last = aim.last;
}

void disarm()
{
    last = 0;
}

} // namespace test::memory

using namespace test::memory;

// clang-format off
void* operator new(size_t size) { return allocateOrThrow(size); }
void* operator new[](size_t size) { return allocateOrThrow(size); }
void* operator new(size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void* operator new[](size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, size_t) noexcept { release(block); }
void operator delete[](void* block, size_t) noexcept { release(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { release(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { release(block); }
// clang-format on
