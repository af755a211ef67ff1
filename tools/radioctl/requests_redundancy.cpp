#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioImsRtpRedunKeyInfoType> =
    std::tuple{member("id", &RadioImsRtpRedunKeyInfoType::id, "the call's identifier"),
               member("keyType", &RadioImsRtpRedunKeyInfoType::keyType, "sent when it is 2")};

template <>
inline constexpr auto kMembers<RadioImsRtpRedunPublicKeyInfoType> = std::tuple{
    member("id", &RadioImsRtpRedunPublicKeyInfoType::id, "the call's identifier"),
    countedMember("key", &RadioImsRtpRedunPublicKeyInfoType::key, "keyLength",
                  &RadioImsRtpRedunPublicKeyInfoType::keyLength, "of which 129 bytes can be sent")};

template <>
inline constexpr auto kMembers<RadioImsRtpRedunControlInfoType> =
    std::tuple{member("id", &RadioImsRtpRedunControlInfoType::id, "the call's identifier"),
               member("action", &RadioImsRtpRedunControlInfoType::action, "sent when it is 1 or 2")};

template <>
inline constexpr auto kMembers<RadioImsRtpRedunDataPathConfigType> = std::tuple{
    member("type", &RadioImsRtpRedunDataPathConfigType::type, "which path; the low 8 bits are sent")};

template <>
inline constexpr auto kMembers<RadioImsRtpRedunCapability> =
    std::tuple{member("failure", &RadioImsRtpRedunCapability::failure),
               member("capability", &RadioImsRtpRedunCapability::capability)};

template <>
inline constexpr auto kMembers<RadioImsRtpRedunPublicKey> =
    std::tuple{member("result", &RadioImsRtpRedunPublicKey::result),
               member("status", &RadioImsRtpRedunPublicKey::status),
               member("id", &RadioImsRtpRedunPublicKey::id),
               member("keyType", &RadioImsRtpRedunPublicKey::keyType),
               countedMember("key", &RadioImsRtpRedunPublicKey::key, "keyLength",
                             &RadioImsRtpRedunPublicKey::keyLength)};

template <>
inline constexpr auto kMembers<RadioImsRtpRedunRemotePublicKey> =
    std::tuple{member("result", &RadioImsRtpRedunRemotePublicKey::result),
               member("status", &RadioImsRtpRedunRemotePublicKey::status),
               member("id", &RadioImsRtpRedunRemotePublicKey::id),
               member("keyType", &RadioImsRtpRedunRemotePublicKey::keyType)};

template <>
inline constexpr auto kMembers<RadioImsRtpRedunControl> =
    std::tuple{member("result", &RadioImsRtpRedunControl::result),
               member("status", &RadioImsRtpRedunControl::status),
               member("id", &RadioImsRtpRedunControl::id)};

template <>
inline constexpr auto kMembers<RadioImsRtpRedunEndpoint> =
    std::tuple{countedMember("address", &RadioImsRtpRedunEndpoint::address, "addressLength",
                             &RadioImsRtpRedunEndpoint::addressLength),
               member("port", &RadioImsRtpRedunEndpoint::port)};

template <>
inline constexpr auto kMembers<RadioImsRtpRedunDataPath> = std::tuple{
    member("result", &RadioImsRtpRedunDataPath::result), member("type", &RadioImsRtpRedunDataPath::type),
    member("ends", &RadioImsRtpRedunDataPath::ends), member("value1", &RadioImsRtpRedunDataPath::value1),
    member("value2", &RadioImsRtpRedunDataPath::value2)};

template <>
inline constexpr auto kMembers<RadioPacketRoute> =
    std::tuple{member("failure", &RadioPacketRoute::failure), member("route", &RadioPacketRoute::route)};

std::vector<Request> redundancyRequests()
{
    const std::string group = "RTP redundancy and packet routes";
    return {
        {"radioGetImsRtpRedunCapability",
         group,
         "Whether the modem can send a call's media redundantly",
         {},
         call(radioGetImsRtpRedunCapability),
         show(&Rsp::imsRtpRedunCapability)},
        {"radioGetImsRtpRedunPublicKey",
         group,
         "The modem's own public key for a call",
         {record<RadioImsRtpRedunKeyInfoType>("info", "the call and the kind of key")},
         call(radioGetImsRtpRedunPublicKey),
         show(&Rsp::imsRtpRedunPublicKey)},
        {"radioSetImsRtpRedunRemotePublicKey",
         group,
         "Tell the modem the other side's public key",
         {record<RadioImsRtpRedunPublicKeyInfoType>("info", "the call and the key")},
         call(radioSetImsRtpRedunRemotePublicKey),
         show(&Rsp::imsRtpRedunRemotePublicKey)},
        {"radioSetImsRtpRedunControlInfo",
         group,
         "Control a call's redundancy",
         {record<RadioImsRtpRedunControlInfoType>("info", "the call and what is to become of it")},
         call(radioSetImsRtpRedunControlInfo),
         show(&Rsp::imsRtpRedunControl)},
        {"radioSyncImsRtpRedunDataPathConfig",
         group,
         "Bring the view of the data path in step with the modem's",
         {record<RadioImsRtpRedunDataPathConfigType>("info", "which data path")},
         call(radioSyncImsRtpRedunDataPathConfig),
         show(&Rsp::imsRtpRedunDataPath)},
        {"radioGetDataActPacketRoute",
         group,
         "The route of packets on activated data connections",
         {},
         call(radioGetDataActPacketRoute),
         show(&Rsp::packetRoute)},
        {"radioGetDataIfupPacketRoute",
         group,
         "The route of packets on network interfaces that are up",
         {},
         call(radioGetDataIfupPacketRoute),
         show(&Rsp::packetRoute)},
    };
}

} // namespace radioctl
