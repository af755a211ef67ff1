#include "periodic_reports.h"

#include <algorithm>

namespace sim {
namespace {

using std::chrono::milliseconds;

/// The policy says how to measure, but not how often to report.
milliseconds policyPeriod(int32_t policy)
{
    return milliseconds(policy != 0 ? 1'000 : 0);
}

milliseconds periodItself(int32_t period)
{
    return milliseconds(std::max(period, 0));
}

struct Row {
    std::string_view request;
    std::string_view indication;
    milliseconds (*period)(int32_t); ///< from the request's first field
};

constexpr Row kRows[] = {
    {"SetQosReportPeriod", "QosPeriodReportInd", periodItself},
    {"SetVeyraConfigPolicy", "VeyraCellInfoInd", policyPeriod},
};

} // namespace

std::optional<ReportChange> reportChangeBy(int slot, const Request& request)
{
    const auto* row = std::ranges::find(kRows, request.spec.name, &Row::request);
    if (row == std::end(kRows)) {
        return std::nullopt;
    }
    return ReportChange{indicationNamed(row->indication, slot),
                        row->period(request.fields.number<int32_t>(256))};
}

void PeriodicReports::change(ClientId client, const ReportChange& change, TimePoint now)
{
    std::erase_if(mReports, [&](const Running& running) {
        const Indication& report = running.report.report;
        return report.spec == change.report.spec && report.slot == change.report.slot;
    });
    if (change.period > milliseconds(0)) {
        mReports.push_back({client, change, now + change.period});
    }
}

void PeriodicReports::stop(ClientId client)
{
    std::erase_if(mReports, [&](const Running& running) { return running.client == client; });
}

std::optional<TimePoint> PeriodicReports::nextDeadline() const
{
    const auto next = std::ranges::min_element(mReports, {}, &Running::due);
    return next != mReports.end() ? std::optional(next->due) : std::nullopt;
}

Indication PeriodicReports::takeNext()
{
    const auto next = std::ranges::min_element(mReports, {}, &Running::due);
    next->due += next->report.period;
    return next->report.report;
}

} // namespace sim
