/// The program's operator new and delete: they fail where a test says so, and count what lives. Nobody here allocates
/// with an alignment of his own.
#pragma once

namespace test::memory {

/// Which threads there are. One that has not said what it is is of the last kind.
enum Role { Caller, Delivery, Other, kRoles };

/// Of the allocations that threads of this role make, the first to the last of these fail, counted from 1.
struct Aim {
    Role role;
    int first;
    int last;
};

void setRole(Role role);

/// Counts the allocations of each role from 0 on, and lets fail what is aimed at, until disarm().
void arm(const Aim& aim);
void disarm();
int allocations(Role role);

/// How many blocks live that were allocated outside of test code.
long live();

/// Called where the first allocation fails.
extern void (*onFailure)();

/// Runs what stands for something that has memory of its own: its allocations neither fail nor count.
class TestCode {
public:
    explicit TestCode(bool isTestCode = true);
    ~TestCode();
    TestCode(const TestCode&) = delete;
    TestCode& operator=(const TestCode&) = delete;

private:
    bool mBefore;
};

} // namespace test::memory
