#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioNrcaConfig> =
    std::tuple{member("nrcaState", &RadioNrcaConfig::nrcaState)};

template <>
inline constexpr auto kMembers<RadioBwpConfig> = std::tuple{member("bwpState", &RadioBwpConfig::bwpState)};

template <>
inline constexpr auto kMembers<RadioCaStatus> = std::tuple{member("caStatus", &RadioCaStatus::caStatus)};

template <>
inline constexpr auto kMembers<RadioDssConfig> = std::tuple{member("value", &RadioDssConfig::value)};

namespace {

/// What the library's commands have room for, besides their own characters.
constexpr size_t kMostTextBytes = 236;

void checkBands(const Arguments& in)
{
    const size_t size = in.at<std::string>(0).size() + in.at<std::string>(1).size();
    if (size > kMostTextBytes) {
        throw UsageError(fmt::format("lteBands and nrBands: {} characters, at most {} are allowed together",
                                     size, kMostTextBytes));
    }
}

} // namespace

std::vector<Request> carrierAggregationRequests()
{
    using Byte = unsigned char;
    const std::string group = "Carrier aggregation";
    const Argument rat = choice<int>("rat", "the radio access technology", {{"lte", 4}, {"nr", 5}});
    const Argument state = choice<Byte>("value", "whether it is on", kOnOff<Byte>);
    const Argument reserve = number<Byte>("reserve", "not sent");
    const Argument combinations =
        text("list", "the band combinations, as the modem writes them", kMostTextBytes);
    const Argument value = number<int>("value", "as the modem defines it");
    return {
        {"radioSetCaStatus",
         group,
         "Switch carrier aggregation",
         {rat, choice<bool>("enable", "whether it is on", kOnOff<bool>)},
         call(radioSetCaStatus),
         nullptr},
        {"radioGetCaStatus",
         group,
         "Whether carrier aggregation is on",
         {rat},
         call(radioGetCaStatus),
         show(&Rsp::caInfo)},
        {"radioSetNrcaConfig",
         group,
         "Switch carrier aggregation of NR",
         {state, reserve},
         call(radioSetNrcaConfig),
         nullptr},
        {"radioGetNrcaConfig",
         group,
         "Whether carrier aggregation of NR is on",
         {},
         call(radioGetNrcaConfig),
         show(&Rsp::nrcaConfig)},
        {"radioReadNRCAConfig", group, "The same", {}, call(radioReadNRCAConfig), show(&Rsp::nrcaConfig)},
        {"radioSetBwpConfig",
         group,
         "Switch bandwidth parts of NR",
         {state, reserve},
         call(radioSetBwpConfig),
         nullptr},
        {"radioGetBwpConfig",
         group,
         "Whether bandwidth parts of NR are on",
         {},
         call(radioGetBwpConfig),
         show(&Rsp::bwpConfig)},
        {"radioSetWhiteSANRCAConfig",
         group,
         "Set the only band combinations that standalone NR may use",
         {combinations},
         call(radioSetWhiteSANRCAConfig),
         nullptr},
        {"radioSetBlackSANRCAConfig",
         group,
         "Set the band combinations that standalone NR may not use",
         {combinations},
         call(radioSetBlackSANRCAConfig),
         nullptr},
        {"radioSetWhiteNSANRCAConfig",
         group,
         "Set the only band combinations that NR next to LTE may use",
         {combinations},
         call(radioSetWhiteNSANRCAConfig),
         nullptr},
        {"radioResetSANSAWhiteList",
         group,
         "Empty one of these lists",
         {choice<int>("list", "which one", {{"white-nsa", 2}, {"white-sa", 4}, {"black-sa", 5}})},
         call(radioResetSANSAWhiteList),
         nullptr},
        {"radioSetDssConfig",
         group,
         "Set the band table of dynamic spectrum sharing",
         {value},
         call(radioSetDssConfig),
         nullptr},
        {"radioSetDssAdditionalConfig",
         group,
         "Set what else the modem does about dynamic spectrum sharing",
         {value},
         call(radioSetDssAdditionalConfig),
         nullptr},
        {"radioReadDssConfig",
         group,
         "The band table of dynamic spectrum sharing",
         {},
         call(radioReadDssConfig),
         show(&Rsp::dssConfig)},
        {"radioSetUst5gUCBandConfig",
         group,
         "Set the bands of user capabilities in 5G",
         {text("lteBands", "as the modem writes them", kMostTextBytes),
          text("nrBands", "likewise; both together at most 236 characters", kMostTextBytes)},
         call(radioSetUst5gUCBandConfig),
         nullptr,
         nullptr,
         checkBands},
        {"radioSetUst5gUCConfig",
         group,
         "Not supported by the library",
         {number<Byte>("value1", "a value"), number<Byte>("value2", "a value"),
          number<Byte>("value3", "a value")},
         call(radioSetUst5gUCConfig),
         nullptr},
    };
}

} // namespace radioctl
