#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioSimTrayStatus> =
    std::tuple{countedMember("status", &RadioSimTrayStatus::status, "count", &RadioSimTrayStatus::count)};

template <>
inline constexpr auto kMembers<RadioUimAuthenticateReqInfo> =
    std::tuple{countedMember("data", &RadioUimAuthenticateReqInfo::authData, "length",
                             &RadioUimAuthenticateReqInfo::authDataLen, "each value behind its length")};

template <>
inline constexpr auto kMembers<RadioUimAuthentication> = std::tuple{
    member("failure", &RadioUimAuthentication::failure), member("length", &RadioUimAuthentication::length),
    countedMember("content", &RadioUimAuthentication::content, "length", &RadioUimAuthentication::length)};

template <>
inline constexpr auto kMembers<RadioSimCardType> =
    std::tuple{member("type", &RadioSimCardType::type), member("imsi", &RadioSimCardType::imsi)};

template <>
inline constexpr auto kMembers<RadioSimlockCategory> = std::tuple{
    countedMember("category", &RadioSimlockCategory::category, "length", &RadioSimlockCategory::length)};

std::vector<Request> simRequests()
{
    const std::string group = "SIM trays, cards and locks";
    const auto lockData = [](size_t most) { return bytes("data", "the lock server's bytes", 1, most); };
    return {
        {"radioGetSimTrayStatus",
         group,
         "Whether the SIM trays are in",
         {},
         call(radioGetSimTrayStatus),
         show(&Rsp::simTrayStatus)},
        {"radioRequestIccSimAuthentication",
         group,
         "Have the SIM card answer a challenge of the network",
         {record<RadioUimAuthenticateReqInfo>("info", "the challenge")},
         call(radioRequestIccSimAuthentication),
         show(&Rsp::uimAuthentication)},
        {"radioSetUimPowerUp", group, "Power the SIM card up", {}, call(radioSetUimPowerUp), nullptr},
        {"radioSetUimPowerDown", group, "Power the SIM card down", {}, call(radioSetUimPowerDown), nullptr},
        {"radioSetCarrierLockBlob",
         group,
         "Install a carrier lock",
         {lockData(2048)},
         callWithList(radioSetCarrierLockBlob),
         show(&Rsp::simLockData)},
        {"radioSetCarrierLockStatus",
         group,
         "Change the status of the carrier lock",
         {lockData(512)},
         callWithList(radioSetCarrierLockStatus),
         show(&Rsp::simLockData)},
        {"radioGetCarrierLockStatus",
         group,
         "Ask for the status of the carrier lock",
         {lockData(512)},
         callWithList(radioGetCarrierLockStatus),
         show(&Rsp::simLockData)},
        {"radioSetRegionLockBlob",
         group,
         "Install a region lock",
         {lockData(1024)},
         callWithList(radioSetRegionLockBlob),
         show(&Rsp::simLockData)},
        {"radioSetRegionLockStatus",
         group,
         "Change the status of the region lock",
         {lockData(512)},
         callWithList(radioSetRegionLockStatus),
         show(&Rsp::simLockData)},
        {"radioGetRegionLockStatus",
         group,
         "Ask for the status of the region lock",
         {lockData(512)},
         callWithList(radioGetRegionLockStatus),
         show(&Rsp::simLockData)},
        {"radioGetSimCardType",
         group,
         "What kind of SIM card it is: 1 of the test network 001/01, 0 any other",
         {number<int>("option", "not sent")},
         call(radioGetSimCardType),
         show(&Rsp::simCardType)},
        {"radioGetSimlockCategoryData",
         group,
         "The categories of the SIM lock",
         {},
         call(radioGetSimlockCategoryData),
         show(&Rsp::simlockCategory)},
        {"radioGetSimlockLockStatus",
         group,
         "Not supported by the library",
         {},
         call(radioGetSimlockLockStatus),
         nullptr},
    };
}

} // namespace radioctl
