/// What the modem tells by itself once it has answered a request.
#pragma once

#include "indication.h"
#include "periodic_reports.h"
#include "requests.h"

#include <optional>
#include <vector>

namespace sim {

struct Consequences {
    std::vector<Indication> indications = {};
    std::optional<ReportChange> reports = {};
};

/// Carries out a request and adds what follows from it; nothing follows from a failed one.
Answer carryOut(Slot& slot, const Request& request, Consequences& consequences);

} // namespace sim
