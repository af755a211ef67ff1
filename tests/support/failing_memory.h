/// The program's operator new and delete: they fail where a test says so, and count what lives. Nobody here allocates
/// with an alignment of his own.
#pragma once

#include <atomic>
#include <utility>

namespace test::memory {

/// What the calling thread is; one that has not said so is of the last kind.
enum Role { Caller, Delivery, Other, kRoles };
extern constinit thread_local Role role;

/// Of the allocations that threads of this role make, the first to the last of these fail, counted from 1.
struct Aim {
    Role role;
    int first;
    int last;
};

/// Counts allocations from 0 on, and lets fail what is aimed at, until disarm().
void arm(const Aim& aim);
void disarm();

extern constinit std::atomic<int> allocations[kRoles]; ///< since arm()
extern constinit std::atomic<long> live;               ///< blocks, but for those of the test's own code
extern constinit std::atomic<bool>* failed;            ///< set by the first that fails

/// Whether the thread runs code that stands for what has memory of its own: its allocations neither fail nor count.
extern constinit thread_local bool inTestCode;

struct TestCode {
    explicit TestCode(bool isTestCode = true) : before(std::exchange(inTestCode, isTestCode)) {}
    ~TestCode() { inTestCode = before; }
    TestCode(const TestCode&) = delete;
    TestCode& operator=(const TestCode&) = delete;
    const bool before;
};

} // namespace test::memory
