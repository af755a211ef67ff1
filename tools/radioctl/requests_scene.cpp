#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioHyperUplinkList> =
    std::tuple{countedMember("values", &RadioHyperUplinkList::values, "count", &RadioHyperUplinkList::count)};

template <>
inline constexpr auto kMembers<RadioHyperUplinkParasType> = std::tuple{
    member("values", &RadioHyperUplinkParasType::values, "as the modem defines them"),
    member("list1", &RadioHyperUplinkParasType::list1),
    member("list2", &RadioHyperUplinkParasType::list2),
};

template <>
inline constexpr auto kMembers<RadioSiteCell> =
    std::tuple{member("arfcn", &RadioSiteCell::arfcn, "downlink EARFCN or NR-ARFCN"),
               member("pci", &RadioSiteCell::pci, "physical cell identity")};

template <>
inline constexpr auto kMembers<RadioSiteCellInfoType> = std::tuple{
    member("rat", &RadioSiteCellInfoType::rat, "4: LTE, 5: NR"),
    member("siteId", &RadioSiteCellInfoType::siteId, "number of the site"),
    countedMember("cells", &RadioSiteCellInfoType::cells, "count", &RadioSiteCellInfoType::count),
};

template <>
inline constexpr auto kMembers<RadioScoreInfo> = std::tuple{
    member("id", &RadioScoreInfo::id, "what is rated"),
    member("score", &RadioScoreInfo::score, "how good it is"),
    member("values", &RadioScoreInfo::values, "as the modem defines them"),
};

template <>
inline constexpr auto kMembers<RadioScoreInfoListType> = std::tuple{
    countedMember("scores", &RadioScoreInfoListType::scores, "count", &RadioScoreInfoListType::count)};

template <>
inline constexpr auto kMembers<RadioSceneMode> =
    std::tuple{member("scene", &RadioSceneMode::scene), member("mode", &RadioSceneMode::mode)};

template <>
inline constexpr auto kMembers<RadioSceneModeList> =
    std::tuple{countedMember("scenes", &RadioSceneModeList::scenes, "count", &RadioSceneModeList::count)};

std::vector<Request> sceneRequests()
{
    const std::string group = "Scenes and experience";
    return {
        {"radioSetHyperUplinkMode",
         group,
         "Switch the uplink enhancement",
         {number<int>("mode", "the mode")},
         call(radioSetHyperUplinkMode),
         nullptr},
        {"radioSetHyperUplinkParas",
         group,
         "Set the parameters of the uplink enhancement",
         {record<RadioHyperUplinkParasType>("paras", "the parameters")},
         call(radioSetHyperUplinkParas),
         nullptr},
        {"radioSetSceneMode",
         group,
         "Set the mode of a scene",
         {number<int>("scene", "which scene"), number<int>("mode", "its mode")},
         call(radioSetSceneMode),
         nullptr},
        {"radioGetSceneMode",
         group,
         "The modes of scenes",
         {list("scenes", "which scenes; the modem is asked for the first 64", 65535)},
         callWithList(radioGetSceneMode),
         show(&Rsp::sceneModes)},
        {"radioSetQoeScore",
         group,
         "Tell the modem how good the user's experience is",
         {number<int>("type", "what is rated"), number<int>("score", "how good it is")},
         call(radioSetQoeScore),
         nullptr},
        {"radioSendScoreInfo",
         group,
         "Tell the modem scores of its own services",
         {record<RadioScoreInfoListType>("scores", "the scores")},
         call(radioSendScoreInfo),
         nullptr},
        {"radioSetSiteCellInfo",
         group,
         "Tell the modem the cells of a site",
         {number<int>("action", "not sent"), record<RadioSiteCellInfoType>("info", "the site")},
         call(radioSetSiteCellInfo),
         nullptr},
    };
}

} // namespace radioctl
