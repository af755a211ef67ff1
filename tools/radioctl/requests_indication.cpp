#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioPolicyConfig> = std::tuple{
    member("indication", &RadioPolicyConfig::indication, "the indication's number"),
    member("enabled", &RadioPolicyConfig::enabled, "1: sent, 0: held back"),
    member("interval", &RadioPolicyConfig::interval, "shortest time between two, ms"),
    member("threshold", &RadioPolicyConfig::threshold, "change that is worth one"),
    countedMember("text1", &RadioPolicyConfig::text1, "length1", &RadioPolicyConfig::length1),
    countedMember("text2", &RadioPolicyConfig::text2, "length2", &RadioPolicyConfig::length2),
};

template <>
inline constexpr auto kMembers<RadioPolicyConfigListType> = std::tuple{countedMember(
    "policies", &RadioPolicyConfigListType::policies, "count", &RadioPolicyConfigListType::count)};

template <>
inline constexpr auto kMembers<RadioIndicationConfig> =
    std::tuple{member("indication", &RadioIndicationConfig::indication, "the indication's number"),
               member("enabled", &RadioIndicationConfig::enabled, "1: sent, 0: held back")};

template <>
inline constexpr auto kMembers<RadioIndicationConfigListType> = std::tuple{countedMember(
    "configs", &RadioIndicationConfigListType::configs, "count", &RadioIndicationConfigListType::count)};

template <>
inline constexpr auto kMembers<RadioIndicationReport> = std::tuple{
    member("indication", &RadioIndicationReport::indication), member("times", &RadioIndicationReport::times)};

template <>
inline constexpr auto kMembers<RadioIndicationReportList> = std::tuple{countedMember(
    "records", &RadioIndicationReportList::records, "count", &RadioIndicationReportList::count)};

std::vector<Request> indicationRequests()
{
    const std::string group = "Indications";
    return {
        {"radioSetModemIndicationPolicy",
         group,
         "Set which indications the modem sends, and how often",
         {record<RadioPolicyConfigListType>("policies", "the policies")},
         call(radioSetModemIndicationPolicy),
         nullptr},
        {"radioGetModemIndicationPolicy",
         group,
         "Which indications the modem sends, and how often",
         {},
         call(radioGetModemIndicationPolicy),
         show(&Rsp::indicationPolicy)},
        {"radioGetIndicationReportRecords",
         group,
         "How often the modem sent which indication",
         {},
         call(radioGetIndicationReportRecords),
         show(&Rsp::indicationReports)},
        {"radioSetIndicationConfig",
         group,
         "Switch indications of one kind",
         {number<int>("type", "which kind"),
          record<RadioIndicationConfigListType>("configs", "the switches")},
         call(radioSetIndicationConfig),
         nullptr},
    };
}

} // namespace radioctl
