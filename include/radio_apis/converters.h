/// The functions that turn indications into events, for components that hold an indication themselves.
///
/// Each reads the indication message (a vorn_msg_t), builds the event's record and calls `callback` once,
/// before it returns, with the event, `userData`, the record and the record's size. What the message does not
/// carry is zero. The record is valid during the call only. Without a message or a callback nothing is
/// delivered. The int argument is not used. Each may be called from any thread.
#pragma once

#include "radio_apis/events.h"

extern "C" {

/// RADIO_EVENT_NW_ETX_POWER: the transmit power that the modem reports in eighths.
RADIO_API void vornRadioClientNotifyNwEtxPwrEvent(void* indication, int, void* userData,
                                                  RadioEventCallback callback);

/// RADIO_EVENT_MSIM_SUB_MODE: a change of the multi-SIM sub-mode.
RADIO_API void vornRadioClientNotifyMsimSubModeEvent(void* indication, int, void* userData,
                                                     RadioEventCallback callback);

/// Delivers nothing.
RADIO_API void vornRadioClientNotifyFreqHoppingEvent(void* indication, int, void* userData,
                                                     RadioEventCallback callback);

/// RADIO_EVENT_DATA_IFUP_PACKET_ROUTE: how the packets of a new data interface travel.
RADIO_API void vornRadioClientNotifyDataIfupPacketRouteEvent(void* indication, int, void* userData,
                                                             RadioEventCallback callback);

/// RADIO_EVENT_CALL_RTP_SESSION_MLC: an event of an IMS call's RTP session.
RADIO_API void vornRadioClientNotifyCallRtpSessionMlcEvent(void* indication, int, void* userData,
                                                           RadioEventCallback callback);

} // extern "C"
