/// Indications that the modem repeats until it is told to stop.
#pragma once

#include "indication.h"
#include "requests.h"

#include <chrono>
#include <optional>
#include <vector>

namespace sim {

/// Which reports a request switches, and to which period; 0 is off.
struct ReportChange {
    Indication report;
    std::chrono::milliseconds period{0};
};

/// Nothing when the request has no reports to do with.
std::optional<ReportChange> reportChangeBy(int slot, const Request& request);

class PeriodicReports {
public:
    /// Starts reports, the first of them a period from now, or ends them. A slot has one row of reports of a
    /// kind: whoever switches them takes them over.
    void change(ClientId client, const ReportChange& change, TimePoint now);

    /// Ends the reports that a client switched on, or all.
    void stop(ClientId client);
    void clear() { mReports.clear(); }

    /// When the next one is due; nothing while there are none.
    std::optional<TimePoint> nextDeadline() const;

    /// The next one; there has to be one. The one after it is due a period later.
    Indication takeNext();

private:
    struct Running {
        ClientId client;
        ReportChange report;
        TimePoint due;
    };

    std::vector<Running> mReports;
};

} // namespace sim
