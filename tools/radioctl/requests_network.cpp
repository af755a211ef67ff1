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
