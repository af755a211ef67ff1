#include "radioctl/call.h"
#include "radioctl/describe_values.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<UAIINFO> = std::tuple{
    member("cgType", &UAIINFO::cgType, "the group of switches"),
    member("type", &UAIINFO::type, "what is switched; 600 makes the request an AT command"),
    member("op", &UAIINFO::op, "operation"),
    member("dl", &UAIINFO::dl, "downlink value"),
    member("ul", &UAIINFO::ul, "uplink value"),
    member("delay", &UAIINFO::delay, "delay value"),
    member("cnt", &UAIINFO::cnt, "count value"),
    member("value8", &UAIINFO::value8),
    member("value9", &UAIINFO::value9),
    member("value10", &UAIINFO::value10),
};

template <>
inline constexpr auto kMembers<RadioSmartIdleInfoType> = std::tuple{
    member("type", &RadioSmartIdleInfoType::type, "kind of idling"),
    member("nr_t", &RadioSmartIdleInfoType::nr_t, "NR: time"),
    member("nr_c", &RadioSmartIdleInfoType::nr_c, "NR: count"),
    member("lte_t", &RadioSmartIdleInfoType::lte_t, "LTE: time"),
    member("lte_c", &RadioSmartIdleInfoType::lte_c, "LTE: count"),
};

template <>
inline constexpr auto kMembers<RadioModemHeap> =
    std::tuple{member("name", &RadioModemHeap::name), member("size", &RadioModemHeap::size),
               member("used", &RadioModemHeap::used)};

template <>
inline constexpr auto kMembers<RadioModemHeapList> = std::tuple{
    member("poolCount", &RadioModemHeapList::poolCount),
    member("poolName", &RadioModemHeapList::poolName),
    member("size", &RadioModemHeapList::size),
    member("used", &RadioModemHeapList::used),
    member("free", &RadioModemHeapList::free),
    member("largestFree", &RadioModemHeapList::largestFree),
    countedMember("heaps", &RadioModemHeapList::heaps, "heapCount", &RadioModemHeapList::heapCount),
};

std::vector<Request> powerRequests()
{
    const std::string group = "Power and memory";
    return {
        {"radioSetPowerSavingState",
         group,
         "Set power saving switches",
         {record<UAIINFO>("info", "the switches")},
         call(radioSetPowerSavingState),
         nullptr},
        {"radioSetSmartIdleCfg",
         group,
         "Set when the modem may rest while the device idles",
         {record<RadioSmartIdleInfoType>("info", "times and counts, as the modem counts them")},
         call(radioSetSmartIdleCfg),
         nullptr},
        {"radioSetPowerBoostState",
         group,
         "Switch the power boost; the same message as set-sar-region-code",
         {number<int>("state", "as the modem defines it")},
         call(radioSetPowerBoostState),
         nullptr},
        {"radioSetFastDormancyTimer",
         group,
         "Set a timer of fast dormancy",
         {number<int>("index", "which timer; -1: not sent"),
          number<int>("timer", "its time as the modem counts it; -1: not sent")},
         call(radioSetFastDormancyTimer),
         nullptr},
        {"radioGetPowerStatistics",
         group,
         "Have the modem take its power statistics",
         {},
         call(radioGetPowerStatistics),
         show(&Rsp::powerStatistics)},
        {"radioGetModemHeapList",
         group,
         "What the modem's memory is used for, in bytes",
         {},
         call(radioGetModemHeapList),
         show(&Rsp::modemHeapList)},
        {"radioUpdateDcdcSleepState",
         group,
         "Set how the modem's voltage converter rests",
         {number<int>("state", "bits: 0 asleep, 1 receiver follows transmitter, 2 100k mode, 3 RQ4120")},
         call(radioUpdateDcdcSleepState),
         nullptr},
        {"radioSendFastDormancy",
         group,
         "Have the modem ask the network to release its connection",
         {},
         call(radioSendFastDormancy),
         nullptr},
        {"radioSetPSConformanceMode",
         group,
         "Set the modem's conformance of packet services",
         {number<int>("value1", "as the modem defines it"), number<int>("value2", "likewise")},
         call(radioSetPSConformanceMode),
         nullptr},
        {"radioQueryFastDormancyMode",
         group,
         "The modem's conformance of packet services",
         {},
         call(radioQueryFastDormancyMode),
         show(&Rsp::atValues)},
        {"radioQueryLegacyFastDormancyMode",
         group,
         "Whether fast dormancy of releases before 8 is off",
         {},
         call(radioQueryLegacyFastDormancyMode),
         show(&Rsp::atValues)},
    };
}

} // namespace radioctl
