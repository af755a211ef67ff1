#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioImsAudioQualityThreshold> =
    std::tuple{member("values", &RadioImsAudioQualityThreshold::values, "as the modem defines them")};

template <>
inline constexpr auto kMembers<RadioAdaptiveHandoverThreshold> =
    std::tuple{member("values", &RadioAdaptiveHandoverThreshold::values, "as the modem defines them")};

template <>
inline constexpr auto kMembers<RadioImsRtpInfo> =
    std::tuple{member("id", &RadioImsRtpInfo::id, "the call's identifier"),
               member("state", &RadioImsRtpInfo::state, "as the modem defines it")};

template <>
inline constexpr auto kMembers<RadioImsRtpThresholdInfo> =
    std::tuple{member("values", &RadioImsRtpThresholdInfo::values, "as the modem defines them")};

template <>
inline constexpr auto kMembers<RadioImsUssd> = std::tuple{member("enabled", &RadioImsUssd::enabled)};

std::vector<Request> serviceRequests()
{
    const std::string group = "IMS media and quality of service";
    return {
        {"radioSetImsAudioQualityThreshold",
         group,
         "Set when the audio quality of an IMS call is reported",
         {record<RadioImsAudioQualityThreshold>("threshold", "the thresholds")},
         call(radioSetImsAudioQualityThreshold),
         nullptr},
        {"radioSetImsRtpInfo",
         group,
         "Tell the modem of an RTP session",
         {record<RadioImsRtpInfo>("info", "the session")},
         call(radioSetImsRtpInfo),
         nullptr},
        {"radioSetImsRtpThreshold",
         group,
         "Set when the quality of an RTP session is reported",
         {record<RadioImsRtpThresholdInfo>("info", "the thresholds")},
         call(radioSetImsRtpThreshold),
         nullptr},
        {"radioSetAdaptiveHandoverThreshold",
         group,
         "Set when the modem prefers another cell",
         {record<RadioAdaptiveHandoverThreshold>("threshold", "the thresholds")},
         call(radioSetAdaptiveHandoverThreshold),
         nullptr},
        {"radioSetQosReportPeriod",
         group,
         "Set how often quality of service is reported",
         {number<long>("period", "as the modem counts it; 32 bits are sent")},
         call(radioSetQosReportPeriod),
         nullptr},
        {"radioSetQosConfig",
         group,
         "Set what is measured of quality of service",
         {number<signed char>("type", "kind of configuration"), bytes("data", "the configuration", 0, 65535)},
         callWithList(radioSetQosConfig),
         nullptr},
        {"radioGetQosData",
         group,
         "What was measured of quality of service",
         {number<int>("type", "kind of data")},
         call(radioGetQosData),
         show(&Rsp::qosData)},
        {"radioGetImsUssdEnabled",
         group,
         "Whether supplementary services go over IMS",
         {},
         call(radioGetImsUssdEnabled),
         show(&Rsp::imsUssd)},
        {"radioSetCiwlanUiSwitch",
         group,
         "Switch calls over Wi-Fi while roaming between cellular and Wi-Fi",
         {choice<bool>("enable", "whether it is on", kOnOff<bool>)},
         call(radioSetCiwlanUiSwitch),
         nullptr},
        {"radioSetCarrierOmacpFqdn",
         group,
         "Name the gateway of calls over Wi-Fi",
         {text("fqdn", "its name", 224)},
         call(radioSetCarrierOmacpFqdn),
         nullptr},
    };
}

} // namespace radioctl
