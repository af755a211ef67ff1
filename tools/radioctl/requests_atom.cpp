#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioLoadAtomApplicationType> = std::tuple{
    member("id", &RadioLoadAtomApplicationType::id, "the application's number"),
    member("version", &RadioLoadAtomApplicationType::version, "its version"),
    countedMember("strings", &RadioLoadAtomApplicationType::strings, "stringCount",
                  &RadioLoadAtomApplicationType::stringCount),
    countedMember("values", &RadioLoadAtomApplicationType::values, "valueCount",
                  &RadioLoadAtomApplicationType::valueCount),
    member("block", &RadioLoadAtomApplicationType::block),
};

template <>
inline constexpr auto kMembers<RadioAtomMask> =
    std::tuple{member("id", &RadioAtomMask::id), member("mask", &RadioAtomMask::mask)};

template <>
inline constexpr auto kMembers<RadioAtomInfoType> = std::tuple{
    countedMember("masks", &RadioAtomInfoType::masks, "maskCount", &RadioAtomInfoType::maskCount),
    countedMember("parameters", &RadioAtomInfoType::parameters, "parameterCount",
                  &RadioAtomInfoType::parameterCount),
};

std::vector<Request> atomRequests()
{
    const std::string group = "Atoms";
    return {
        {"radioLoadAtomApplication",
         group,
         "Load an application that collects data inside the modem",
         {record<RadioLoadAtomApplicationType>("application", "the application")},
         call(radioLoadAtomApplication),
         nullptr},
        {"radioUnloadAtomApplication",
         group,
         "Unload an application",
         {number<int>("id", "its number")},
         call(radioUnloadAtomApplication),
         nullptr},
        {"radioSetAtomStatus",
         group,
         "Switch an atom",
         {number<int>("id", "which atom"), number<int>("status", "its status"),
          number<int>("subPolicy", "as the modem defines it"),
          record<RadioAtomInfoType>("info", "what it reports")},
         call(radioSetAtomStatus),
         nullptr},
        {"radioGetAtomData",
         group,
         "The data that atoms collected",
         {number<int>("type", "kind of data"), number<int>("option", "as the modem defines it"),
          list("ids", "which atoms", 65535)},
         callWithList(radioGetAtomData),
         show(&Rsp::atomData)},
    };
}

} // namespace radioctl
