#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioSarDsiState> = std::tuple{member("state", &RadioSarDsiState::state)};

template <>
inline constexpr auto kMembers<RadioTxCarkit> =
    std::tuple{member("failure", &RadioTxCarkit::failure), member("length", &RadioTxCarkit::length),
               countedMember("data", &RadioTxCarkit::data, "length", &RadioTxCarkit::length)};

std::vector<Request> antennaRequests()
{
    const std::string group = "SAR and antennas";
    const Argument state = number<int>("state", "0 off, 1 on");
    return {
        {"radioSetSarState",
         group,
         "Set the state of one source of SAR decisions",
         {number<int>("source", "which source"), number<int>("state", "its state")},
         call(radioSetSarState),
         nullptr},
        {"radioSetSarDsiState",
         group,
         "Set the device state index that chooses the SAR table",
         {number<int>("state", "the index")},
         call(radioSetSarDsiState),
         nullptr},
        {"radioGetSarDsiState",
         group,
         "The device state index",
         {},
         call(radioGetSarDsiState),
         show(&Rsp::sarDsiState)},
        {"radioSetRtSarMode",
         group,
         "Switch real-time SAR",
         {number<int>("mode", "the mode")},
         call(radioSetRtSarMode),
         nullptr},
        {"radioSetSarRegionCode",
         group,
         "Tell the modem the region whose SAR limits hold",
         {number<int>("regionCode", "the region's code")},
         call(radioSetSarRegionCode),
         nullptr},
        {"radioSetAolState",
         group,
         "Set the state of the antenna optimisation logic",
         {state},
         call(radioSetAolState),
         nullptr},
        {"radioSetMtplLimitState",
         group,
         "Switch the limit to the maximum transmit power level",
         {state},
         call(radioSetMtplLimitState),
         nullptr},
        {"radioSetAntFixState",
         group,
         "Fix the antenna in use, or release it",
         {state},
         call(radioSetAntFixState),
         nullptr},
        {"radioSetAntBlockState",
         group,
         "Block an antenna, or release it",
         {state},
         call(radioSetAntBlockState),
         nullptr},
        {"radioSetAntForceStateByRat",
         group,
         "Switch forced antenna selection for one radio access technology",
         {number<int>("rat", "the radio access technology; 4 is NR", 0, 4), state},
         call(radioSetAntForceStateByRat),
         nullptr},
        {"radiosetTxPathFilter",
         group,
         "Block a band for the transmit path search",
         {number<signed char>("rat", "the radio access technology"), number<int>("band", "operating band"),
          number<int>("mode", "the mode")},
         call(radiosetTxPathFilter),
         nullptr},
        {"radioGetTxCarkit",
         group,
         "The numbers of a band's transmitters, for a car kit",
         {number<int>("radioTech", "the radio access technology; 6 and 7, 2 and 5 are known to the modem"),
          number<int>("uiBand", "the band; the low 16 bits are sent"), number<int>("subband", "not sent"),
          number<int>("option", "not sent")},
         call(radioGetTxCarkit),
         show(&Rsp::txCarkit)},
    };
}

} // namespace radioctl
