/// The AT client's log tag.
#pragma once

#include "zor/log.h"

namespace at {

inline constexpr char kTag[] = "VornAtClient";

} // namespace at
