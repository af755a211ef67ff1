#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioServiceMode> =
    std::tuple{member("serviceMode", &RadioServiceMode::serviceMode)};

template <>
inline constexpr auto kMembers<RadioCentricMode> =
    std::tuple{member("centricMode", &RadioCentricMode::centricMode)};

template <>
inline constexpr auto kMembers<RadioOperationMode> = std::tuple{member("mode", &RadioOperationMode::mode)};

template <>
inline constexpr auto kMembers<RadioFeatureState> = std::tuple{member("state", &RadioFeatureState::state)};

template <>
inline constexpr auto kMembers<RadioDeviceStateExt> =
    std::tuple{member("result", &RadioDeviceStateExt::result),
               member("deviceStateExt", &RadioDeviceStateExt::deviceStateExt)};

template <>
inline constexpr auto kMembers<RadioMsimSubModeState> =
    std::tuple{member("failure", &RadioMsimSubModeState::failure),
               member("subMode", &RadioMsimSubModeState::subMode),
               member("state", &RadioMsimSubModeState::state)};

std::vector<Request> deviceRequests()
{
    const std::string group = "Device and modes";
    const Argument feature = number<int>("feature", "which feature");
    return {
        {"radioSendScreenState",
         group,
         "Tell the modem whether the screen is on",
         {number<int>("screenState", "as the modem defines it")},
         call(radioSendScreenState),
         nullptr},
        {"radioSetMicroMotionState",
         group,
         "Tell the modem how the device is moving",
         {number<int>("microMotionState", "the motion detector's state"),
          number<int>("multiplier", "its multiplier")},
         call(radioSetMicroMotionState),
         show(&Rsp::microMotion)},
        {"radioSetSyncWithAp",
         group,
         "Tell the modem whether to keep in step with the application processor",
         {number<int>("sync", "as the modem defines it")},
         call(radioSetSyncWithAp),
         nullptr},
        {"radioSetFeatureState",
         group,
         "Switch a modem feature",
         {feature, number<int>("state", "its state")},
         call(radioSetFeatureState),
         nullptr},
        {"radioGetFeatureState",
         group,
         "The state of a modem feature",
         {feature},
         call(radioGetFeatureState),
         show(&Rsp::featureState)},
        {"radioDispatchCase",
         group,
         "Run one of the modem's prepared cases",
         {number<unsigned>("caseId", "which case"), number<int>("param1", "its first parameter"),
          number<int>("param2", "its second parameter"), number<int>("param3", "its third parameter")},
         call(radioDispatchCase),
         nullptr},
        {"radioSetDiagnoseConfig",
         group,
         "Set the values of one kind of diagnosis",
         {number<unsigned>("type", "which kind"), list("values", "the values", 65535)},
         callWithList(radioSetDiagnoseConfig),
         nullptr},
        {"radioSetSidoIssueConfig",
         group,
         "Configure the detection of issues of the single-inductor dual-output converter",
         {list("values", "the values", kRadioMaxSidoIssueValues)},
         callWithList(radioSetSidoIssueConfig),
         nullptr},
        {"radioGetServiceMode",
         group,
         "The UE mode of operation: 0 PS mode 2, 1 CS/PS mode 1, 2 CS/PS mode 2, 3 PS mode 1",
         {},
         call(radioGetServiceMode),
         show(&Rsp::serviceModeInfo)},
        {"radioSendDeviceStateExt",
         group,
         "Tell the modem an extended state of the device",
         {number<int>("deviceStateExt", "as the modem defines it")},
         call(radioSendDeviceStateExt),
         show(&Rsp::deviceStateExt)},
        {"radioSetImbState",
         group,
         "Set the IMB state",
         {number<int>("state", "as the modem defines it; the low 8 bits are sent")},
         call(radioSetImbState),
         nullptr},
        {"radioGetMsimSubModeState",
         group,
         "How the modem serves several SIM cards",
         {},
         call(radioGetMsimSubModeState),
         show(&Rsp::msimSubModeState)},
        {"radioSetDsdaPreferCustThresh",
         group,
         "Set from which level on both SIM cards are served at the same time",
         {number<int>("rat", "the radio access technology, 4 or 7"),
          number<int>("thresh1", "the first threshold; sent multiplied by 4 with rat 4"),
          number<int>("thresh2", "the second threshold, likewise")},
         call(radioSetDsdaPreferCustThresh),
         nullptr},
        {"radioSetMsimSubModePref",
         group,
         "Set how the modem is to serve several SIM cards",
         {number<int>("mode", "as the modem numbers it")},
         call(radioSetMsimSubModePref),
         nullptr},
        {"radioSetServiceMode",
         group,
         "Set the UE mode of operation",
         {choice<int>("mode", "which one", {{"ps2", 0}, {"csps1", 1}, {"csps2", 2}, {"ps1", 3}})},
         call(radioSetServiceMode),
         nullptr},
        {"radioSetCentricMode",
         group,
         "Set what the usage is centred on",
         {choice<int>("mode", "which one", {{"voice", 0}, {"data", 1}})},
         call(radioSetCentricMode),
         nullptr},
        {"radioGetCentricMode",
         group,
         "What the usage is centred on",
         {},
         call(radioGetCentricMode),
         show(&Rsp::centricModeInfo)},
        {"radioSetOperationMode",
         group,
         "Switch the radio on or off, and look whether the modem has done so",
         {choice<RADIO_OPERATION_MODE_TYPE>(
             "mode", "which one",
             {{"online", RADIO_OPERATION_MODE_ONLINE}, {"off", RADIO_OPERATION_MODE_OFF}})},
         call(radioSetOperationMode),
         nullptr},
        {"radioGetOperationMode",
         group,
         "The level of functionality: 0 minimum, 1 full, 4 radio off",
         {},
         call(radioGetOperationMode),
         show(&Rsp::operationMode)},
        {"radioRequireModemReboot", group, "Restart the modem", {}, call(radioRequireModemReboot), nullptr},
        {"radioUpdateFoldScreenStatus",
         group,
         "Tell the modem how the device's screen is folded",
         {number<int>("state", "as the modem numbers it")},
         call(radioUpdateFoldScreenStatus),
         nullptr},
        {"radioSetImeiSvn",
         group,
         "Set the software version number of the device's identity",
         {number<int>("svn", "sent as two hexadecimal digits or more: 10 as 0a, 0x10 as 10")},
         call(radioSetImeiSvn),
         nullptr},
    };
}

} // namespace radioctl
