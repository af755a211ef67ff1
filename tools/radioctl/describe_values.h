/// The plain numbers of an AT answer, which several requests have.
#pragma once

#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioAtValues> =
    std::tuple{countedMember("values", &RadioAtValues::values, "count", &RadioAtValues::count)};

} // namespace radioctl
