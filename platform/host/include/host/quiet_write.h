/// Writing to what somebody else may close, from inside a library.
#pragma once

#include <string_view>

namespace host {

/// Writes all of `data`; 0, or the error number of what kept it from that. Unlike write() it never raises a
/// signal: a program that has not asked for one must not end because a reader left or a file reached its limit.
/// A descriptor that does not block is given 100 ms at a time to take more.
int writeQuietly(int descriptor, std::string_view data) noexcept;

} // namespace host
