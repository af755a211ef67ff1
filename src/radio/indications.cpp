#include "radio/indications.h"

#include "channel/converter.h"
#include "radio_apis/converters.h"
#include "zor/log.h"

namespace {

constexpr char kEventTag[] = "VornRadioClientEvent";

} // namespace

void vornRadioClientNotifyNwEtxPwrEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    deliverEvent<RadioNwEtxPower>(RADIO_EVENT_NW_ETX_POWER, indication, userData, callback,
                                  [](const VornView& in, RadioNwEtxPower& out) {
                                      // 64 bits on the way: the modem's extremes wrap instead of overflowing.
                                      out.txPower =
                                          static_cast<int32_t>(int64_t{in.getVornInt32Val(257, 0)} / 8 * 100);
                                      zorLogD(kEventTag, "%s : radioEvent.event.etxPwr.txPower=%d",
                                              "vornRadioClientNotifyNwEtxPwrEvent", out.txPower);
                                  });
}

void vornRadioClientNotifyMsimSubModeEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    deliverEvent<RadioMsimSubMode>(RADIO_EVENT_MSIM_SUB_MODE, indication, userData, callback,
                                   [](const VornView& in, RadioMsimSubMode& out) {
                                       zorLogD(kEventTag, "%s - enter",
                                               "vornRadioClientNotifyMsimSubModeEvent");
                                       out.subMode = in.getVornUint8Val(257, 0) + 2;
                                       out.state = in.getVornUint8Val(258, 0) == 1 ? 2 : 1;
                                   });
}

void vornRadioClientNotifyFreqHoppingEvent(void*, int, void*, RadioEventCallback) {}

void vornRadioClientNotifyDataIfupPacketRouteEvent(void* indication, int, void* userData,
                                                   RadioEventCallback callback)
{
    deliverEvent<RadioDataIfupPacketRoute>(
        RADIO_EVENT_DATA_IFUP_PACKET_ROUTE, indication, userData, callback,
        [](const VornView& in, RadioDataIfupPacketRoute& out) {
            zorLogD(kEventTag, "%s - enter", "vornRadioClientNotifyDataIfupPacketRouteEvent");
            for (uint16_t i = 0; i < 4; ++i) {
                out.values[i] = in.getVornUint8Val(static_cast<uint16_t>(256 + i), 0);
            }
        });
}

void vornRadioClientNotifyCallRtpSessionMlcEvent(void* indication, int, void* userData,
                                                 RadioEventCallback callback)
{
    deliverEvent<RadioCallRtpSessionMlc>(
        RADIO_EVENT_CALL_RTP_SESSION_MLC, indication, userData, callback,
        [](const VornView& in, RadioCallRtpSessionMlc& out) {
            constexpr char kName[] = "vornRadioClientNotifyCallRtpSessionMlcEvent";
            zorLogD(kEventTag, "%s - enter", kName);
            out.event = in.getVornUint8Val(256, 0);
            out.id = in.getVornInt32Val(257, 0);
            zorLogD(kEventTag, "%s - event:%d, id:%d", kName, out.event, out.id);
        });
}

const std::array<rpcEventHandlerMap, 4> kRadioIndications = {{
    {RadioIndication::NwEtxPower, RADIO_EVENT_NW_ETX_POWER, vornRadioClientNotifyNwEtxPwrEvent},
    {RadioIndication::MsimSubMode, RADIO_EVENT_MSIM_SUB_MODE, vornRadioClientNotifyMsimSubModeEvent},
    {RadioIndication::DataIfupPacketRoute, RADIO_EVENT_DATA_IFUP_PACKET_ROUTE,
     vornRadioClientNotifyDataIfupPacketRouteEvent},
    {RadioIndication::CallRtpSessionMlc, RADIO_EVENT_CALL_RTP_SESSION_MLC,
     vornRadioClientNotifyCallRtpSessionMlcEvent},
}};
