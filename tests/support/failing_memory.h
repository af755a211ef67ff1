/// The program's operator new and delete: they fail where a test says so, and count what lives.
#pragma once

#include <cstddef>

namespace test::memory {

/// Which threads there are. A thread that has not said what it is is of the last kind.
enum Role { Caller, Delivery, Other, kRoles };

/// The n-th allocation on the threads of this role fails, or all of them from the n-th on; 0: none fails.
struct Aim {
    Role role;
    int number;
    bool andAllLater;
};

void setRole(Role role);

/// From now on counts the allocations of each role, and lets those fail that are aimed at.
void arm(const Aim& aim);

/// Ends that.
void disarm();

/// How many allocations a role has made since arm().
int allocations(Role role);

/// How many blocks live that were allocated outside of test code.
long live();

/// Says whether this thread runs code of the test, whose allocations neither fail nor count, until the end of the
/// scope.
class Scope {
public:
    explicit Scope(bool isTestCode);
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

private:
    bool mBefore;
};

/// Called once where the first allocation fails.
extern void (*onFailure)();

} // namespace test::memory
