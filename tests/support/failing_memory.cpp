#include "support/failing_memory.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>
#include <utility>

namespace test::memory {

void (*onFailure)() = nullptr;

namespace {

constinit thread_local Role thisRole = Other;
constinit thread_local bool inTestCode = false;

constinit std::atomic<Role> aimedRole = Other;
constinit std::atomic<int> first = 0;
constinit std::atomic<int> last = 0;
constinit std::atomic<int> counts[kRoles];
constinit std::atomic<long> living = 0;

bool fails()
{
    if (inTestCode) {
        return false;
    }
    const int number = ++counts[thisRole];
    if (thisRole != aimedRole || number < first || number > last) {
        return false;
    }
    if (number == first) {
        onFailure();
    }
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
    living += inTestCode ? 0 : 1;
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
        living -= header->counts ? 1 : 0;
        std::free(header);
    }
}

} // namespace

void setRole(Role role)
{
    thisRole = role;
}

void arm(const Aim& aim)
{
    std::ranges::fill(counts, 0);
    aimedRole = aim.role;
    first = aim.first;
    last = aim.last;
}

void disarm()
{
    last = 0;
}

int allocations(Role role)
{
    return counts[role];
}

long live()
{
    return living;
}

TestCode::TestCode(bool isTestCode) : mBefore(std::exchange(inTestCode, isTestCode)) {}

TestCode::~TestCode()
{
    inTestCode = mBefore;
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
