#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioHplmnBgSearchInfoType> = std::tuple{
    member("enable", &RadioHplmnBgSearchInfoType::enable, "not sent"),
    member("option", &RadioHplmnBgSearchInfoType::option, "not sent"),
    member("repeatInterval", &RadioHplmnBgSearchInfoType::repeatInterval,
           "time between two searches as the modem counts it; the low 16 bits are sent"),
};

template <>
inline constexpr auto kMembers<RadioPlmnBlockInfo> = std::tuple{
    member("type", &RadioPlmnBlockInfo::type, "kind of block; the low 8 bits are sent"),
    member("rat", &RadioPlmnBlockInfo::rat, "0 is sent as 4 and 1 as 128, of others the low 8 bits"),
    member("reserved", &RadioPlmnBlockInfo::reserved, "not sent"),
    member("mcc", &RadioPlmnBlockInfo::mcc, "mobile country code"),
    member("mnc", &RadioPlmnBlockInfo::mnc, "mobile network code"),
    member("mncThreeDigits", &RadioPlmnBlockInfo::mncThreeDigits, "0: the MNC has two digits"),
};

template <>
inline constexpr auto kMembers<RadioOosCfgInfo> = std::tuple{
    member("enable", &RadioOosCfgInfo::enable, "of options 3 and 4: 0 off, anything else on"),
    member("option", &RadioOosCfgInfo::option,
           "1: p7 to p11; 2: p1, p2, p3, p5, p6; 3, 4: enable; 5: p4; 100: the sniffer, p7 to p11"),
    member("p1", &RadioOosCfgInfo::p1),
    member("p2", &RadioOosCfgInfo::p2),
    member("p3", &RadioOosCfgInfo::p3),
    member("p4", &RadioOosCfgInfo::p4),
    member("p5", &RadioOosCfgInfo::p5),
    member("p6", &RadioOosCfgInfo::p6),
    member("p7", &RadioOosCfgInfo::p7,
           "of p7 to p11 option 100 sends the low 8 bits; in option 1 up to 9 characters each always fit"),
    member("p8", &RadioOosCfgInfo::p8),
    member("p9", &RadioOosCfgInfo::p9),
    member("p10", &RadioOosCfgInfo::p10),
    member("p11", &RadioOosCfgInfo::p11),
};

template <>
inline constexpr auto kMembers<RadioActionParameter> =
    std::tuple{member("values", &RadioActionParameter::values)};

template <>
inline constexpr auto kMembers<RadioActionCellListEntry> =
    std::tuple{member("value1", &RadioActionCellListEntry::value1),
               member("value2", &RadioActionCellListEntry::value2),
               member("value3", &RadioActionCellListEntry::value3)};

template <>
inline constexpr auto kMembers<RadioActionCellInfo> = std::tuple{
    member("value1", &RadioActionCellInfo::value1),
    member("value2", &RadioActionCellInfo::value2),
    member("value3", &RadioActionCellInfo::value3),
    member("value4", &RadioActionCellInfo::value4),
    member("value5", &RadioActionCellInfo::value5),
    member("value6", &RadioActionCellInfo::value6),
    member("value7", &RadioActionCellInfo::value7),
    member("value8", &RadioActionCellInfo::value8),
    member("value9", &RadioActionCellInfo::value9),
    member("aPresent", &RadioActionCellInfo::aPresent, "0: a is not sent; the same for b to i"),
    member("a", &RadioActionCellInfo::a),
    member("bPresent", &RadioActionCellInfo::bPresent),
    member("b", &RadioActionCellInfo::b),
    countedMember("c", &RadioActionCellInfo::c, "cCount", &RadioActionCellInfo::cCount),
    member("dPresent", &RadioActionCellInfo::dPresent),
    member("d", &RadioActionCellInfo::d),
    member("ePresent", &RadioActionCellInfo::ePresent),
    member("e", &RadioActionCellInfo::e),
    member("fPresent", &RadioActionCellInfo::fPresent),
    member("f", &RadioActionCellInfo::f),
    member("gPresent", &RadioActionCellInfo::gPresent),
    member("g", &RadioActionCellInfo::g),
    member("hPresent", &RadioActionCellInfo::hPresent),
    member("h", &RadioActionCellInfo::h),
    member("iPresent", &RadioActionCellInfo::iPresent, "0: j is not sent"),
    countedMember("j", &RadioActionCellInfo::j, "jCount", &RadioActionCellInfo::jCount),
};

template <>
inline constexpr auto kMembers<RadioActionCellList> = std::tuple{
    member("present", &RadioActionCellList::present, "0: the list is not sent"),
    countedMember("cells", &RadioActionCellList::cells, "count", &RadioActionCellList::count),
};

template <>
inline constexpr auto kMembers<RadioActionConfigType> = std::tuple{
    member("id", &RadioActionConfigType::id, "the action's number"),
    member("type", &RadioActionConfigType::type, "kind of action"),
    member("values", &RadioActionConfigType::values),
    countedMember("parameters", &RadioActionConfigType::parameters, "parameterCount",
                  &RadioActionConfigType::parameterCount),
    member("cellsPresent", &RadioActionConfigType::cellsPresent, "0: nothing of what follows is sent"),
    member("header", &RadioActionConfigType::header),
    member("headerByte", &RadioActionConfigType::headerByte),
    member("optionalPresent", &RadioActionConfigType::optionalPresent, "0: optional is not sent"),
    member("optional", &RadioActionConfigType::optional),
    member("first", &RadioActionConfigType::first),
    member("second", &RadioActionConfigType::second),
};

template <>
inline constexpr auto kMembers<RadioNetworkActionState> = std::tuple{
    member("id", &RadioNetworkActionState::id),
    member("state", &RadioNetworkActionState::state),
    member("detail", &RadioNetworkActionState::detail),
};

namespace {

/// The library's command of option 1 repeats its numbers, and must have room for all of them.
void checkOutOfService(const Arguments& in)
{
    constexpr size_t kRoom = 223;
    const auto& info = in.at<RadioOosCfgInfo>(0);
    const auto size = [](int32_t number, size_t times) { return std::to_string(number).size() * times; };
    const size_t needed =
        size(info.p7, 2) + size(info.p8, 4) + size(info.p9, 6) + size(info.p10, 7) + size(info.p11, 4);
    if (info.option == 1 && needed > kRoom) {
        throw UsageError(
            fmt::format("info: p7 to p11, sent 2, 4, 6, 7 and 4 times, make {} characters, at most {} "
                        "are allowed",
                        needed, kRoom));
    }
}

} // namespace

std::vector<Request> networkRequests()
{
    const std::string group = "Search and network actions";
    const Argument id = number<int>("id", "the action's number");
    return {
        {"radioHplmnBgSearch",
         group,
         "Set how often the modem searches for the home PLMN",
         {record<RadioHplmnBgSearchInfoType>("info", "the background search")},
         call(radioHplmnBgSearch),
         nullptr},
        {"radioPerformPlmnUnblock",
         group,
         "Let the modem use a PLMN again that it avoids",
         {record<RadioPlmnBlockInfo>("info", "the PLMN and the kind of its block")},
         call(radioPerformPlmnUnblock),
         nullptr},
        {"radioClearForbiddenTai",
         group,
         "Take a tracking area from the list of forbidden ones",
         {number<int>("option", "not sent"), number<int>("mcc", "mobile country code"),
          number<int>("mnc", "mobile network code"),
          flag("mncThreeDigits", "whether the MNC has three digits"),
          number<int>("code", "the tracking area code; the low 16 bits are sent"),
          number<int>("type", "kind of list; the low 8 bits are sent")},
         call(radioClearForbiddenTai),
         nullptr},
        {"radioConfigCellBarringParam",
         group,
         "Set when the modem bars a cell that fails it",
         {number<unsigned>("threshold", "failures until then; the low 8 bits are sent"),
          number<unsigned>("watchPeriod", "in which they are counted; the low 16 bits are sent"),
          number<unsigned>("barringTime", "how long the cell is barred")},
         call(radioConfigCellBarringParam),
         show(&Rsp::cellBarring)},
        {"radioSetOosCfg",
         group,
         "Configure what the modem does while it is out of service",
         {record<RadioOosCfgInfo>("info", "the values, as the modem defines them")},
         call(radioSetOosCfg),
         nullptr,
         nullptr,
         checkOutOfService},
        {"radioSendNetworkAction",
         group,
         "Send an instruction of the device's network optimisation",
         {record<RadioActionConfigType>("action", "the action; its values are as the modem defines them")},
         call(radioSendNetworkAction),
         nullptr},
        {"radioRollbackNetworkAction",
         group,
         "Undo a network action",
         {id, number<int>("option", "as the modem defines it")},
         call(radioRollbackNetworkAction),
         nullptr},
        {"radioGetNetworkActionState",
         group,
         "The state of a network action",
         {id},
         call(radioGetNetworkActionState),
         show(&Rsp::networkActionState)},
    };
}

} // namespace radioctl
