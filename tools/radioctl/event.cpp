#include "radioctl/event.h"

#include "radioctl/describe_cells.h"

#include <algorithm>

namespace radioctl {

template <>
inline constexpr auto kMembers<RadioValueEvent> = std::tuple{member("value", &RadioValueEvent::value)};

template <>
inline constexpr auto kMembers<RadioVeyraCell> = std::tuple{
    member("rat", &RadioVeyraCell::rat),         member("arfcn", &RadioVeyraCell::arfcn),
    member("pci", &RadioVeyraCell::pci),         member("mcc", &RadioVeyraCell::mcc),
    member("mnc", &RadioVeyraCell::mnc),         member("rsrp", &RadioVeyraCell::rsrp),
    member("rsrq", &RadioVeyraCell::rsrq),       member("sinr", &RadioVeyraCell::sinr),
    member("quality", &RadioVeyraCell::quality), member("beam", &RadioVeyraCell::beam),
    member("offset", &RadioVeyraCell::offset),   member("subscription", &RadioVeyraCell::subscription),
    member("group", &RadioVeyraCell::group),
};

template <>
inline constexpr auto kMembers<RadioVeyraCellInfo> =
    std::tuple{countedMember("cells", &RadioVeyraCellInfo::cells, "count", &RadioVeyraCellInfo::count)};

template <>
inline constexpr auto kMembers<RadioSidoIssueEvent> =
    std::tuple{member("values", &RadioSidoIssueEvent::values)};

template <>
inline constexpr auto kMembers<RadioServingCellEvent> = std::tuple{
    member("rat", &RadioServingCellEvent::rat),
    member("mcc", &RadioServingCellEvent::mcc),
    member("mnc", &RadioServingCellEvent::mnc),
    member("mncDigits", &RadioServingCellEvent::mncDigits),
    member("tac", &RadioServingCellEvent::tac),
    member("pci", &RadioServingCellEvent::pci),
    member("arfcn", &RadioServingCellEvent::arfcn),
    member("band", &RadioServingCellEvent::band),
    member("cellIdLow", &RadioServingCellEvent::cellIdLow),
    member("cellIdHigh", &RadioServingCellEvent::cellIdHigh),
    signedMember("rsrp", &RadioServingCellEvent::rsrp),
    signedMember("rsrq", &RadioServingCellEvent::rsrq),
    signedMember("sinr", &RadioServingCellEvent::sinr),
    signedMember("rssi", &RadioServingCellEvent::rssi),
    member("dlBandwidth", &RadioServingCellEvent::dlBandwidth),
    member("ulArfcn", &RadioServingCellEvent::ulArfcn),
    member("ulBandwidth", &RadioServingCellEvent::ulBandwidth),
    member("timingAdvance", &RadioServingCellEvent::timingAdvance),
    member("cqi", &RadioServingCellEvent::cqi),
    member("rrcState", &RadioServingCellEvent::rrcState),
    member("rxAntennas", &RadioServingCellEvent::rxAntennas),
    member("txAntennas", &RadioServingCellEvent::txAntennas),
    member("cause", &RadioServingCellEvent::cause),
};

template <>
inline constexpr auto kMembers<RadioHyperUplinkStateEvent> =
    std::tuple{member("scene", &RadioHyperUplinkStateEvent::scene),
               member("state", &RadioHyperUplinkStateEvent::state),
               member("type", &RadioHyperUplinkStateEvent::type)};

template <>
inline constexpr auto kMembers<RadioImsRtpControlEvent> =
    std::tuple{member("control", &RadioImsRtpControlEvent::control)};

template <>
inline constexpr auto kMembers<RadioOlogEvent> = std::tuple{member("dataLength", &RadioOlogEvent::dataLength),
                                                            member("dataLost", &RadioOlogEvent::dataLost)};

template <>
inline constexpr auto kMembers<RadioSingleSimChangeEvent> =
    std::tuple{member("state", &RadioSingleSimChangeEvent::state)};

template <>
inline constexpr auto kMembers<RadioMccChangedEvent> = std::tuple{
    member("mcc", &RadioMccChangedEvent::mcc), member("previousMcc", &RadioMccChangedEvent::previousMcc)};

template <>
inline constexpr auto kMembers<RadioAlertEvent> =
    std::tuple{member("type", &RadioAlertEvent::type), member("level", &RadioAlertEvent::level),
               member("entries", &RadioAlertEvent::entries)};

template <>
inline constexpr auto kMembers<RadioStateEvent> =
    std::tuple{member("id", &RadioStateEvent::id), member("state", &RadioStateEvent::state)};

template <>
inline constexpr auto kMembers<RadioAllCellInfoEvent> = std::tuple{
    countedMember("subscriptions", &RadioAllCellInfoEvent::cells, "count", &RadioAllCellInfoEvent::count)};

template <>
inline constexpr auto kMembers<RadioNetworkActionOutcome> =
    std::tuple{member("id", &RadioNetworkActionOutcome::id), member("type", &RadioNetworkActionOutcome::type),
               member("result", &RadioNetworkActionOutcome::result),
               member("values", &RadioNetworkActionOutcome::values)};

template <>
inline constexpr auto kMembers<RadioNetworkActionResultEvent> = std::tuple{countedMember(
    "outcomes", &RadioNetworkActionResultEvent::outcomes, "count", &RadioNetworkActionResultEvent::count)};

template <>
inline constexpr auto kMembers<RadioSceneModeEvent> =
    std::tuple{countedMember("values", &RadioSceneModeEvent::values, "count", &RadioSceneModeEvent::count)};

template <>
inline constexpr auto kMembers<RadioSmartNetworkSelectEvent> =
    std::tuple{member("rat", &RadioSmartNetworkSelectEvent::rat),
               member("arfcn", &RadioSmartNetworkSelectEvent::arfcn),
               member("pci", &RadioSmartNetworkSelectEvent::pci)};

template <>
inline constexpr auto kMembers<RadioRfIccClatEvent> =
    std::tuple{member("band", &RadioRfIccClatEvent::band),
               member("bandwidth", &RadioRfIccClatEvent::bandwidth),
               member("state", &RadioRfIccClatEvent::state)};

template <>
inline constexpr auto kMembers<RadioRfIccTxSharingEvent> =
    std::tuple{member("band", &RadioRfIccTxSharingEvent::band),
               member("state", &RadioRfIccTxSharingEvent::state),
               member("power", &RadioRfIccTxSharingEvent::power)};

template <>
inline constexpr auto kMembers<RadioRfIccEvent> =
    std::tuple{member("event", &RadioRfIccEvent::event),
               countedMember("data", &RadioRfIccEvent::data, "dataLength", &RadioRfIccEvent::dataLength)};

template <>
inline constexpr auto kMembers<RadioNwEtxPower> = std::tuple{member("txPower", &RadioNwEtxPower::txPower)};

template <>
inline constexpr auto kMembers<RadioMsimSubMode> =
    std::tuple{member("subMode", &RadioMsimSubMode::subMode), member("state", &RadioMsimSubMode::state)};

template <>
inline constexpr auto kMembers<RadioDataIfupPacketRoute> =
    std::tuple{member("values", &RadioDataIfupPacketRoute::values)};

template <>
inline constexpr auto kMembers<RadioCallRtpSessionMlc> =
    std::tuple{member("id", &RadioCallRtpSessionMlc::id), member("event", &RadioCallRtpSessionMlc::event)};

namespace {

template <typename Record>
Event row(std::string name, RADIO_EVENT_TYPE type)
{
    return {std::move(name), type, sizeof(Record),
            [](const void* record) { return toJson(*static_cast<const Record*>(record)); }};
}

} // namespace

const std::vector<Event>& events()
{
    static const std::vector<Event> all = {
        row<RadioReportEvent>("nec", RADIO_EVENT_NEC_IND),
        row<RadioVeyraCellInfo>("veyra-cell-info", RADIO_EVENT_VEYRA_CELL_INFO_IND),
        row<RadioValueEvent>("veyra-event", RADIO_EVENT_VEYRA_EVENT_IND),
        row<RadioSidoIssueEvent>("sido-issue", RADIO_EVENT_SIDO_ISSUE_IND),
        row<RadioValueEvent>("test", RADIO_EVENT_TEST_IND),
        row<RadioReportEvent>("qos-period-report", RADIO_EVENT_QOS_PERIOD_REPORT_IND),
        row<RadioReportEvent>("qos-event-report", RADIO_EVENT_QOS_EVENT_REPORT_IND),
        row<RadioMccChangedEvent>("mcc-changed", RADIO_EVENT_MCC_CHANGED_IND),
        row<RadioValueEvent>("hst-mode", RADIO_EVENT_HST_MODE_IND),
        row<RadioServingCellEvent>("serving-cell-info", RADIO_EVENT_SERVING_CELL_INFO_IND),
        row<RadioHyperUplinkStateEvent>("hyper-uplink-state", RADIO_EVENT_HYPER_UPLINK_STATE_IND),
        row<RadioAtomDataEvent>("atom-data", RADIO_EVENT_ATOM_DATA_IND),
        row<RadioImsRtpControlEvent>("ims-rtp-control", RADIO_EVENT_IMS_RTP_CONTROL_IND),
        row<RadioOlogEvent>("olog", RADIO_EVENT_OLOG_IND),
        row<RadioRfIccClatEvent>("rf-icc-clat", RADIO_EVENT_RF_ICC_CLAT_INFO_IND),
        row<RadioRfIccTxSharingEvent>("rf-icc-tx-sharing", RADIO_EVENT_RF_ICC_TX_SHARING_IND),
        row<RadioSingleSimChangeEvent>("single-sim-change", RADIO_EVENT_SINGLE_SIM_CHANGE_IND),
        row<RadioLockStatusEvent>("sml-status", RADIO_EVENT_SML_STATUS_IND),
        row<RadioLockStatusEvent>("rlk-status", RADIO_EVENT_RLK_STATUS_IND),
        row<RadioAlertEvent>("alert-event", RADIO_EVENT_ALERT_EVENT_IND),
        row<RadioStateEvent>("vodata", RADIO_EVENT_VODATA_IND),
        row<RadioAllCellInfoEvent>("all-cell-info", RADIO_EVENT_ALL_CELL_INFO_IND),
        row<RadioStateEvent>("call-state-change", RADIO_EVENT_CALL_STATE_CHANGE_IND),
        row<RadioNetworkActionResultEvent>("network-action-result", RADIO_EVENT_NETWORK_ACTION_RESULT_IND),
        row<RadioSceneModeEvent>("scene-mode", RADIO_EVENT_SCENE_MODE_IND),
        row<RadioSmartNetworkSelectEvent>("smart-network-select", RADIO_EVENT_SMART_NETWORK_SELECT_IND),
        row<RadioRfIccEvent>("rf-icc-event", RADIO_EVENT_RF_ICC_EVENT_IND),
        row<RadioNwEtxPower>("nw-etx-power", RADIO_EVENT_NW_ETX_POWER),
        row<RadioMsimSubMode>("msim-sub-mode", RADIO_EVENT_MSIM_SUB_MODE),
        row<RadioDataIfupPacketRoute>("data-ifup-packet-route", RADIO_EVENT_DATA_IFUP_PACKET_ROUTE),
        row<RadioCallRtpSessionMlc>("call-rtp-session-mlc", RADIO_EVENT_CALL_RTP_SESSION_MLC),
    };
    return all;
}

const Event* findEvent(std::string_view name)
{
    const auto found = std::ranges::find(events(), name, &Event::name);
    return found == events().end() ? nullptr : &*found;
}

} // namespace radioctl
