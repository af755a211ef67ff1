#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RfIccInfo> =
    std::tuple{member("mode", &RfIccInfo::mode), member("band", &RfIccInfo::band)};

template <>
inline constexpr auto kMembers<RfIccClatEntry> = std::tuple{
    member("freq", &RfIccClatEntry::freq, "centre frequency, kHz"),
    member("bandwidth", &RfIccClatEntry::bandwidth, "kHz"),
    member("level", &RfIccClatEntry::level, "how much it is disturbed"),
};

template <>
inline constexpr auto kMembers<RfIccClatKpi> = std::tuple{
    member("freq", &RfIccClatKpi::freq, "frequency in use, kHz"),
    member("subPolicy", &RfIccClatKpi::subPolicy),
    countedMember("entries", &RfIccClatKpi::entries, "num", &RfIccClatKpi::num, "disturbed ranges"),
};

template <>
inline constexpr auto kMembers<RfIccDeviceErr> = std::tuple{
    member("type", &RfIccDeviceErr::type, "kind of error"), member("data", &RfIccDeviceErr::data, "details")};

template <>
inline constexpr auto kMembers<RadioIdcOffsetConfig> =
    std::tuple{member("f0", &RadioIdcOffsetConfig::f0, "the low 8 bits are sent"),
               member("f1", &RadioIdcOffsetConfig::f1), member("f2", &RadioIdcOffsetConfig::f2),
               member("f3", &RadioIdcOffsetConfig::f3, "the low 16 bits are sent")};

std::vector<Request> coexistenceRequests()
{
    const std::string group = "Coexistence with other radios";
    using Mode = unsigned char;
    return {
        {"radioGetRfIccInfo",
         group,
         "The state of the coexistence",
         {},
         call(radioGetRfIccInfo),
         show(&Rsp::rfIccInfo)},
        {"radioSendRfIccClatKpi",
         group,
         "Tell the modem indicators of coexistence",
         {record<RfIccClatKpi>("kpi", "the indicators")},
         call(radioSendRfIccClatKpi),
         nullptr},
        {"radioSendRfIccModeState",
         group,
         "Tell the modem modes of the other radios",
         {number<Mode>("mode1", "the first mode"), number<Mode>("mode2", "the second mode"),
          number<Mode>("mode3", "the third mode"), number<Mode>("mode4", "the fourth mode")},
         call(radioSendRfIccModeState),
         nullptr},
        {"radioSendRfIccDeviceErr",
         group,
         "Tell the modem an error of another radio",
         {record<RfIccDeviceErr>("error", "the error")},
         call(radioSendRfIccDeviceErr),
         nullptr},
        {"radioSetIdcOffset",
         group,
         "Set the offsets that keep the modem off disturbed frequencies",
         {number<int>("rat", "the radio access technology, 4 or 7"),
          number<int>("offset", "the common offset; the low 16 bits are sent"),
          recordList<RadioIdcOffsetConfig>("configs", "the table", kRadioMaxIdcOffsets)},
         call(radioSetIdcOffset),
         nullptr},
    };
}

} // namespace radioctl
