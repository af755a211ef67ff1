#include "support/failing_memory.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <utility>

namespace test::memory {

void (*onFailure)() = nullptr;

namespace {

/// In front of every block.
struct alignas(__STDCPP_DEFAULT_NEW_ALIGNMENT__) Header {
    void* start;
    bool counts;
};

constinit thread_local Role gRole = Other;
constinit thread_local bool gInTestCode = false;

constinit Aim gAim{};
constinit std::atomic<bool> gArmed = false;
constinit std::atomic<int> gAllocations[kRoles];
constinit std::atomic<long> gLive = 0;

bool fails()
{
    if (gInTestCode || !gArmed) {
        return false;
    }
    const int number = ++gAllocations[gRole];
    if (gRole != gAim.role || gAim.number == 0 || number < gAim.number) {
        return false;
    }
    if (number == gAim.number && onFailure != nullptr) {
        const Scope testCode(true);
        onFailure();
    }
    return number == gAim.number || gAim.andAllLater;
}

void* allocate(size_t size, size_t alignment = sizeof(Header)) noexcept
{
    if (fails()) {
        return nullptr;
    }
    alignment = std::max(alignment, alignof(Header));
    void* start = std::malloc(size + sizeof(Header) + alignment);
    if (start == nullptr) {
        return nullptr;
    }
    const uintptr_t end = reinterpret_cast<uintptr_t>(start) + sizeof(Header) + alignment - 1;
    auto* block = reinterpret_cast<void*>(end / alignment * alignment);
    new (static_cast<Header*>(block) - 1) Header{start, !gInTestCode};
    gLive += gInTestCode ? 0 : 1;
    return block;
}

void* allocateOrThrow(size_t size, size_t alignment = sizeof(Header))
{
    void* block = allocate(size, alignment);
    return block != nullptr ? block : throw std::bad_alloc();
}

void release(void* block) noexcept
{
    if (block != nullptr) {
        const Header header = static_cast<Header*>(block)[-1];
        gLive -= header.counts ? 1 : 0;
        std::free(header.start);
    }
}

} // namespace

void setRole(Role role)
{
    gRole = role;
}

void arm(const Aim& aim)
{
    gAim = aim;
    std::ranges::fill(gAllocations, 0);
    gArmed = true;
}

void disarm()
{
    gArmed = false;
}

int allocations(Role role)
{
    return gAllocations[role];
}

long live()
{
    return gLive;
}

Scope::Scope(bool isTestCode) : mBefore(std::exchange(gInTestCode, isTestCode)) {}

Scope::~Scope()
{
    gInTestCode = mBefore;
}

} // namespace test::memory

using namespace test::memory;

// clang-format off
void* operator new(size_t size) { return allocateOrThrow(size); }
void* operator new[](size_t size) { return allocateOrThrow(size); }
void* operator new(size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void* operator new[](size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void* operator new(size_t size, std::align_val_t to) { return allocateOrThrow(size, static_cast<size_t>(to)); }
void* operator new[](size_t size, std::align_val_t to) { return allocateOrThrow(size, static_cast<size_t>(to)); }
void* operator new(size_t size, std::align_val_t to, const std::nothrow_t&) noexcept { return allocate(size, static_cast<size_t>(to)); }
void* operator new[](size_t size, std::align_val_t to, const std::nothrow_t&) noexcept { return allocate(size, static_cast<size_t>(to)); }
void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, size_t) noexcept { release(block); }
void operator delete[](void* block, size_t) noexcept { release(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { release(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { release(block); }
void operator delete(void* block, std::align_val_t) noexcept { release(block); }
void operator delete[](void* block, std::align_val_t) noexcept { release(block); }
void operator delete(void* block, size_t, std::align_val_t) noexcept { release(block); }
void operator delete[](void* block, size_t, std::align_val_t) noexcept { release(block); }
void operator delete(void* block, std::align_val_t, const std::nothrow_t&) noexcept { release(block); }
void operator delete[](void* block, std::align_val_t, const std::nothrow_t&) noexcept { release(block); }
// clang-format on
