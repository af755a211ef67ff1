/// How much a program and its shared objects hold on to.
#pragma once

#include <cstdint>

namespace soak {

/// The blocks from operator new, of whichever shared object and thread, that were not given back yet.
int64_t liveBlocks();

} // namespace soak
