#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioMetricsData> = std::tuple{
    member("type", &RadioMetricsData::type),
    member("count", &RadioMetricsData::count),
    member("state", &RadioMetricsData::state),
    member("length", &RadioMetricsData::length),
    countedMember("data", &RadioMetricsData::data, "length", &RadioMetricsData::length),
};

template <>
inline constexpr auto kMembers<VeyraConfigPolicy> =
    std::tuple{member("values", &VeyraConfigPolicy::values, "as the modem defines them")};

std::vector<Request> metricsRequests()
{
    const std::string group = "Metrics";
    const Argument type = number<int>("type", "kind of metrics");
    const Argument ids = list("ids", "which metrics", 65535);
    return {
        {"radioStartMetricsCollect",
         group,
         "Start the collection of metrics",
         {type, ids},
         callWithList(radioStartMetricsCollect),
         nullptr},
        {"radioStopMetricsCollect",
         group,
         "Stop the collection of metrics",
         {type},
         call(radioStopMetricsCollect),
         nullptr},
        {"radioGetMetricsData",
         group,
         "The metrics that were collected",
         {type, number<int>("option", "as the modem defines it"),
          number<int>("state", "as the modem defines it"), ids},
         callWithList(radioGetMetricsData),
         show(&Rsp::metricsData)},
        {"radioGetNecData",
         group,
         "Data of the network evaluation",
         {number<int>("type", "kind of data"), bytes("data", "what the modem needs for it", 0, 65535)},
         callWithList(radioGetNecData),
         show(&Rsp::necData)},
        {"radioGetModemProtocolInfo",
         group,
         "What the modem tells of its protocol state",
         {},
         call(radioGetModemProtocolInfo),
         show(&Rsp::protocolInfo)},
        {"radioSetVeyraConfigPolicy",
         group,
         "Set which measurements the modem reports",
         {record<VeyraConfigPolicy>("policy", "the policy")},
         call(radioSetVeyraConfigPolicy),
         nullptr},
    };
}

} // namespace radioctl
