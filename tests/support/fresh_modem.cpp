#include "support/fake_modem.h"

#include <gtest/gtest.h>

namespace {

/// Lets each test of a process begin with a modem to which nothing has happened.
struct Afresh : testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { test::FakeModem::instance() = {}; }
};

[[maybe_unused]] const bool kListens = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new Afresh);
    return true;
}();

} // namespace
