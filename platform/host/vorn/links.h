/// The links that a device's name can stand for.
#pragma once

#include "link.h"

#include <string>

namespace host {

/// "embedded": the built-in scenario in this process; "embedded:FILE": the scenario in that file;
/// "unix:PATH": the modem-sim that listens there. Traced when the environment asks for it. Throws LinkError
/// for every other name, and for a scenario or a trace file that can't be used.
std::unique_ptr<Link> makeLink(const std::string& device, LinkEvents& events);

} // namespace host
