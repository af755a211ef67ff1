/// @file
/// The functions that turn indications into events, for components that hold an indication themselves.
///
/// Each reads the indication message (a vorn_msg_t), builds the event's record and calls `callback` once,
/// before it returns, with the event, `userData`, the record and the record's size. What the message does not
/// carry counts as zero. The record is valid during the call only. Without a message or a callback nothing is
/// delivered. The int argument is not used. Each may be called from any thread.
#pragma once

#include "radio_apis/events.h"

extern "C" {

/// RADIO_EVENT_SML_STATUS_IND: the carrier lock's status.
RADIO_API void vornVsClientNotifySmlStatusIndEvent(void* indication, int, void* userData,
                                                   RadioEventCallback callback);

/// RADIO_EVENT_RLK_STATUS_IND: the region lock's status.
RADIO_API void vornVsClientNotifyRlkStatusIndEvent(void* indication, int, void* userData,
                                                   RadioEventCallback callback);

/// RADIO_EVENT_NEC_IND: data of the network evaluation.
RADIO_API void vornVsClientNotifyNecEvent(void* indication, int, void* userData, RadioEventCallback callback);

/// RADIO_EVENT_VEYRA_CELL_INFO_IND: a measurement report.
RADIO_API void vornVsClientNotifyVeyraInfoIndEvent(void* indication, int, void* userData,
                                                   RadioEventCallback callback);

/// RADIO_EVENT_TEST_IND: a test of the indications.
RADIO_API void vornVsClientNotifyTestIndEvent(void* indication, int, void* userData,
                                              RadioEventCallback callback);

/// RADIO_EVENT_VEYRA_EVENT_IND: an event of the measurements.
RADIO_API void vornVsClientNotifyVeyraEvevtIndEvent(void* indication, int, void* userData,
                                                    RadioEventCallback callback);

/// RADIO_EVENT_SIDO_ISSUE_IND: an issue of the supply's converter.
RADIO_API void vornVsClientNotifySidoIssueIndEvent(void* indication, int, void* userData,
                                                   RadioEventCallback callback);

/// RADIO_EVENT_HST_MODE_IND: a change of the high-speed train mode.
RADIO_API void vornVsClientNotifyHstModeIndEvent(void* indication, int, void* userData,
                                                 RadioEventCallback callback);

/// RADIO_EVENT_SERVING_CELL_INFO_IND: the serving cell.
RADIO_API void vornVsClientNotifyServingCellInfoIndEvent(void* indication, int, void* userData,
                                                         RadioEventCallback callback);

/// RADIO_EVENT_HYPER_UPLINK_STATE_IND: the state of the uplink enhancement.
RADIO_API void vornVsClientNotifyHyperUplinkStateIndEvent(void* indication, int, void* userData,
                                                          RadioEventCallback callback);

/// RADIO_EVENT_ATOM_DATA_IND: data that an atom collected.
RADIO_API void vornVsClientNotifyAtomDataIndEvent(void* indication, int, void* userData,
                                                  RadioEventCallback callback);

/// RADIO_EVENT_IMS_RTP_CONTROL_IND: control of an IMS call's RTP session.
RADIO_API void vornVsClientNotifyImsRtpControlIndEvent(void* indication, int, void* userData,
                                                       RadioEventCallback callback);

/// RADIO_EVENT_OLOG_IND: how much was logged, and how much was lost.
RADIO_API void vornVsClentNotifyOlogIndEvent(void* indication, int, void* userData,
                                             RadioEventCallback callback);

/// RADIO_EVENT_SINGLE_SIM_CHANGE_IND: a change between one and two SIM cards.
RADIO_API void vornVsClentNotifySingleSimChangeIndEvent(void* indication, int, void* userData,
                                                        RadioEventCallback callback);

/// RADIO_EVENT_MCC_CHANGED_IND: the mobile country code changed.
RADIO_API void vornVsClentNotifyMccChangedIndEvent(void* indication, int, void* userData,
                                                   RadioEventCallback callback);

/// RADIO_EVENT_ALERT_EVENT_IND: an alert of the modem.
RADIO_API void vornVsClentNotifyAlertEventIndEvent(void* indication, int, void* userData,
                                                   RadioEventCallback callback);

/// RADIO_EVENT_IMS_AUDIO_QUALITY_IND has no record: nothing is delivered.
RADIO_API void vornVsClentNotifyImsAudioQualityEventIndEvent(void* indication, int, void* userData,
                                                             RadioEventCallback callback);

/// RADIO_EVENT_VODATA_IND: the state of a call over a data connection.
RADIO_API void vornVsClentNotifyVodataEventIndEvent(void* indication, int, void* userData,
                                                    RadioEventCallback callback);

/// RADIO_EVENT_CALL_STATE_CHANGE_IND: a change of a call's state.
RADIO_API void vornVsClentNotifyCallStateChangeIndEvent(void* indication, int, void* userData,
                                                        RadioEventCallback callback);

/// RADIO_EVENT_ALL_CELL_INFO_IND: the serving cells and neighbours of up to two subscriptions.
RADIO_API void vornVsClentNotifyAllCellInfoIndEvent(void* indication, int, void* userData,
                                                    RadioEventCallback callback);

/// RADIO_EVENT_QOS_PERIOD_REPORT_IND: quality of service, periodically.
RADIO_API void vornVsClientNotifyQosPeriodReportIndEvent(void* indication, int, void* userData,
                                                         RadioEventCallback callback);

/// RADIO_EVENT_QOS_EVENT_REPORT_IND: quality of service, when something happened.
RADIO_API void vornVsClientNotifyQosEventReportIndEvent(void* indication, int, void* userData,
                                                        RadioEventCallback callback);

/// RADIO_EVENT_NETWORK_ACTION_RESULT_IND: the outcome of network actions.
RADIO_API void vornVsClentNotifyNetworkActionResultIndEvent(void* indication, int, void* userData,
                                                            RadioEventCallback callback);

/// RADIO_EVENT_SCENE_MODE_IND: a change of scene modes.
RADIO_API void vornVsClentNotifySceneModeIndEvent(void* indication, int, void* userData,
                                                  RadioEventCallback callback);

/// RADIO_EVENT_SMART_NETWORK_SELECT_IND: the cell that the modem would select.
RADIO_API void vornVsClentNotifySmartNetworkSelectIndEvent(void* indication, int, void* userData,
                                                           RadioEventCallback callback);

/// RADIO_EVENT_RF_ICC_CLAT_INFO_IND: coexistence with the device's other radios.
RADIO_API void vornVsClientNotifyRfIccClatIndEvent(void* indication, int, void* userData,
                                                   RadioEventCallback callback);

/// RADIO_EVENT_RF_ICC_TX_SHARING_IND: sharing of the transmit path with the device's other radios.
RADIO_API void vornVsClientNotifyRfIccTxSharingIndEvent(void* indication, int, void* userData,
                                                        RadioEventCallback callback);

/// RADIO_EVENT_RF_ICC_EVENT_IND: an event of the coexistence with the device's other radios.
RADIO_API void vornVsClientNotifyRfIccEventIndEvent(void* indication, int, void* userData,
                                                    RadioEventCallback callback);

/// RADIO_EVENT_NW_ETX_POWER: the transmit power, which the modem reports in eighths.
RADIO_API void vornRadioClientNotifyNwEtxPwrEvent(void* indication, int, void* userData,
                                                  RadioEventCallback callback);

/// RADIO_EVENT_MSIM_SUB_MODE: a change of how the modem serves several SIM cards.
RADIO_API void vornRadioClientNotifyMsimSubModeEvent(void* indication, int, void* userData,
                                                     RadioEventCallback callback);

/// RADIO_EVENT_FREQ_HOPPING has no record: nothing is delivered.
RADIO_API void vornRadioClientNotifyFreqHoppingEvent(void* indication, int, void* userData,
                                                     RadioEventCallback callback);

/// RADIO_EVENT_DATA_IFUP_PACKET_ROUTE: the route of the packets of a new network interface.
RADIO_API void vornRadioClientNotifyDataIfupPacketRouteEvent(void* indication, int, void* userData,
                                                             RadioEventCallback callback);

/// RADIO_EVENT_CALL_RTP_SESSION_MLC: an event of an IMS call's RTP session.
RADIO_API void vornRadioClientNotifyCallRtpSessionMlcEvent(void* indication, int, void* userData,
                                                           RadioEventCallback callback);

} // extern "C"
