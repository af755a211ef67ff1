/// What the benchmarks feed to the library.
#pragma once

#include "vorn/vorn_msg.h"

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

/// A message with so many 32-bit fields, from kFirstTag on; the caller's.
constexpr uint16_t kFirstTag = 256;
vorn_msg_t* messageOfNumbers(uint16_t fields);

std::string answerWithFields(int64_t count);

/// Every count at its highest: 10 subscriptions, 2 groups, 10 entries, 8 cells.
std::vector<uint8_t> fullReport();

/// The indication that brings it; the caller's.
vorn_msg_t* reportIndication();

} // namespace bench
