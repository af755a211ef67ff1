#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioModemVerdict> =
    std::tuple{member("failure", &RadioModemVerdict::failure)};

template <>
inline constexpr auto kMembers<RadioServiceMode> =
    std::tuple{member("serviceMode", &RadioServiceMode::serviceMode)};

std::vector<Request> deviceRequests()
{
    const std::string group = "Device and modes";
    return {
        {"radioSendScreenState",
         group,
         "Tell the modem whether the screen is on",
         {number<int>("screenState", "0 off, 1 on")},
         [](const Arguments& in, Reply to) {
             return radioSendScreenState(in.number("screenState"), to.userData, to.callback);
         },
         nullptr},
        {"radioSetMicroMotionState",
         group,
         "Tell the modem how the device is moving",
         {number<int>("microMotionState", "the motion detector's state"),
          number<int>("multiplier", "its multiplier")},
         [](const Arguments& in, Reply to) {
             return radioSetMicroMotionState(in.number("microMotionState"), in.number("multiplier"),
                                             to.userData, to.callback);
         },
         show(&Rsp::microMotion)},
        {"radioSetSarState",
         group,
         "Set the state of one source of SAR decisions",
         {number<int>("source", "which source"), number<int>("state", "its state")},
         [](const Arguments& in, Reply to) {
             return radioSetSarState(in.number("source"), in.number("state"), to.userData, to.callback);
         },
         nullptr},
        {"radioGetServiceMode",
         group,
         "The UE mode of operation: 0 PS mode 2, 1 CS/PS mode 1, 2 CS/PS mode 2, 3 PS mode 1",
         {},
         [](const Arguments&, Reply to) { return radioGetServiceMode(to.userData, to.callback); },
         show(&Rsp::serviceModeInfo)},
    };
}

} // namespace radioctl
