/// The modem's AT interpreter.
#pragma once

#include "slot.h"

#include <string>
#include <string_view>

namespace sim {

struct AtAnswer {
    std::string text; ///< the whole answer with its line ends
    bool accepted = false;
    bool restart = false; ///< the modem restarts once the answer is out
};

/// Carries out one command; its line end may be missing. Any text is harmless.
AtAnswer executeAt(Slot& slot, std::string_view command);

/// The parameters last set by a command, as its query shows them.
std::string atValue(const Slot& slot, std::string_view name);

} // namespace sim
