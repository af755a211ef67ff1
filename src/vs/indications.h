/// The vendor indications, the events they become, and the order in which they are subscribed.
#pragma once

#include "channel/rpc_client.h"

#include <array>

namespace VsIndication {

inline constexpr int Nec = 0x7E01;
inline constexpr int Test = 0x7E02;
inline constexpr int VeyraCellInfo = 0x7E03;
inline constexpr int VeyraEvent = 0x7E04;
inline constexpr int SidoIssue = 0x7E05;
inline constexpr int ServingCellInfo = 0x7E06;
inline constexpr int HyperUplinkState = 0x7E07;
inline constexpr int AtomData = 0x7E08;
inline constexpr int HstMode = 0x7E09;
inline constexpr int Olog = 0x7E0A;
inline constexpr int SingleSimChange = 0x7E0B;
inline constexpr int SmlStatus = 0x7E0C;
inline constexpr int RlkStatus = 0x7E0D;
inline constexpr int MccChanged = 0x7E0E;
inline constexpr int AlertEvent = 0x7E0F;
inline constexpr int ImsAudioQuality = 0x7E10;
inline constexpr int Vodata = 0x7E11;
inline constexpr int AllCellInfo = 0x7E12;
inline constexpr int CallStateChange = 0x7E13;
inline constexpr int QosPeriodReport = 0x7E14;
inline constexpr int QosEventReport = 0x7E15;
inline constexpr int ImsRtpControl = 0x7E16;
inline constexpr int NetworkActionResult = 0x7E17;
inline constexpr int SceneMode = 0x7E18;
inline constexpr int SmartNetworkSelect = 0x7E19;
inline constexpr int RfIccClat = 0x7E1A;
inline constexpr int RfIccTxSharing = 0x7E1B;
inline constexpr int RfIccEvent = 0x7E1C;

} // namespace VsIndication

/// With a switch each, in the order in which the client remembers them.
inline constexpr std::array kOptionalIndications = {
    VsIndication::Nec,
    VsIndication::Test,
    VsIndication::ServingCellInfo,
    VsIndication::HyperUplinkState,
    VsIndication::MccChanged,
};

/// Without a switch: registered together by the first registerEvent. SingleSimChange is not among them; it
/// arrives only when somebody else registers it.
inline constexpr int kAlwaysOnIndications[] = {
    VsIndication::VeyraCellInfo,
    VsIndication::VeyraEvent,
    VsIndication::SidoIssue,
    VsIndication::HstMode,
    VsIndication::AtomData,
    VsIndication::Olog,
    VsIndication::SmlStatus,
    VsIndication::RlkStatus,
    VsIndication::AlertEvent,
    VsIndication::ImsAudioQuality,
    VsIndication::Vodata,
    VsIndication::AllCellInfo,
    VsIndication::CallStateChange,
    VsIndication::QosPeriodReport,
    VsIndication::QosEventReport,
    VsIndication::ImsRtpControl,
    VsIndication::NetworkActionResult,
    VsIndication::SceneMode,
    VsIndication::SmartNetworkSelect,
    VsIndication::RfIccClat,
    VsIndication::RfIccTxSharing,
    VsIndication::RfIccEvent,
};

/// Deregistered by unregisterEvent. ImsAudioQuality stays registered.
inline constexpr int kIndicationsToEnd[] = {
    VsIndication::Nec,
    VsIndication::Test,
    VsIndication::ServingCellInfo,
    VsIndication::HyperUplinkState,
    VsIndication::VeyraCellInfo,
    VsIndication::VeyraEvent,
    VsIndication::SidoIssue,
    VsIndication::HstMode,
    VsIndication::AtomData,
    VsIndication::Olog,
    VsIndication::SmlStatus,
    VsIndication::RlkStatus,
    VsIndication::MccChanged,
    VsIndication::AlertEvent,
    VsIndication::Vodata,
    VsIndication::AllCellInfo,
    VsIndication::CallStateChange,
    VsIndication::QosPeriodReport,
    VsIndication::QosEventReport,
    VsIndication::ImsRtpControl,
    VsIndication::NetworkActionResult,
    VsIndication::SceneMode,
    VsIndication::SmartNetworkSelect,
    VsIndication::RfIccClat,
    VsIndication::RfIccTxSharing,
    VsIndication::RfIccEvent,
};

extern const std::array<rpcEventHandlerMap, 29> kVendorIndications;
