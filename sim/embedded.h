/// Files compiled into the library; their sources are generated at build time.
#pragma once

#include <string_view>

namespace sim::embedded {

extern const std::string_view messages;        ///< protocol/messages.json
extern const std::string_view defaultScenario; ///< sim/default_scenario.json

} // namespace sim::embedded
