/// The vendor indications as events: each converter reads its message into its event's record.
#include "radio_apis/converters.h"
#include "channel/converter.h"
#include "vs/measurement_report.h"
#include "vs/vs_request.h"

using vs::kEventTag;

namespace {

/// The frame of the converters here: as deliverEvent, and a missing message or callback is logged.
template <typename Record, typename Fill>
void convert(const char* name, RADIO_EVENT_TYPE event, void* indication, void* userData,
             RadioEventCallback callback, Fill fill)
{
    if (indication == nullptr || callback == nullptr) {
        zorLogE(kEventTag, "%s invalid parameters", name);
        return;
    }
    deliverEvent<Record>(event, indication, userData, callback, fill);
}

void logEnter(const char* name)
{
    zorLogD(kEventTag, "%s - enter", name);
}

/// A record that lies in a field of the message as it is.
template <typename Record>
void copyField(const VornView& in, uint16_t tag, Record& out)
{
    copyBytes(in.bytes(tag), 0, {reinterpret_cast<uint8_t*>(&out), sizeof out});
}

} // namespace

void vornVsClientNotifySmlStatusIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioLockStatusEvent>(__func__, RADIO_EVENT_SML_STATUS_IND, indication, userData, callback,
                                  [](const VornView& in, RadioLockStatusEvent& out) {
                                      fillBlob(in.bytes(257), out);
                                      zorLogD(kEventTag, "%s - RADIO_EVENT_SML_STATUS_IND",
                                              "vornVsClientNotifySmlStatusIndEvent");
                                  });
}

void vornVsClientNotifyRlkStatusIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioLockStatusEvent>(__func__, RADIO_EVENT_RLK_STATUS_IND, indication, userData, callback,
                                  [](const VornView& in, RadioLockStatusEvent& out) {
                                      fillBlob(in.bytes(257), out);
                                      zorLogD(kEventTag, "%s - RADIO_EVENT_RLK_STATUS_IND",
                                              "vornVsClientNotifyRlkStatusIndEvent");
                                  });
}

void vornVsClientNotifyNecEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioReportEvent>(__func__, RADIO_EVENT_NEC_IND, indication, userData, callback,
                              [](const VornView& in, RadioReportEvent& out) {
                                  fillBlob(in.bytes(256), out);
                                  zorLogD(kEventTag, "vornVsClientNotifyNecEvent - RADIO_EVENT_NEC_IND");
                              });
}

void vornVsClientNotifyVeyraInfoIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    deliverWrittenEvent<RadioVeyraCellInfo>(
        RADIO_EVENT_VEYRA_CELL_INFO_IND, indication, userData, callback,
        [](const VornView& in, RadioVeyraCellInfo& out) {
            convertMeasurementReport(in.bytes(258), in.getVornUint8Val(256, 0), out);
            zorLogD(kEventTag, "vornVsClientNotifyNecEvent - RADIO_EVENT_VEYRA_CELL_INFO_IND");
        });
}

void vornVsClientNotifyTestIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioValueEvent>(
        __func__, RADIO_EVENT_TEST_IND, indication, userData, callback,
        [](const VornView& in, RadioValueEvent& out) {
            out.value = in.getVornInt32Val(256, 0);
            zorLogD(kEventTag, "vornVsClientNotifyTestIndEvent - RADIO_EVENT_TEST_IND data %d", out.value);
        });
}

void vornVsClientNotifyVeyraEvevtIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioValueEvent>(__func__, RADIO_EVENT_VEYRA_EVENT_IND, indication, userData, callback,
                             [](const VornView& in, RadioValueEvent& out) {
                                 out.value = in.getVornInt32Val(256, 0);
                                 zorLogD(kEventTag, "vornVsClientNotifyVeyraEvevtIndEvent data %d",
                                         out.value);
                             });
}

void vornVsClientNotifySidoIssueIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioSidoIssueEvent>(__func__, RADIO_EVENT_SIDO_ISSUE_IND, indication, userData, callback,
                                 [](const VornView& in, RadioSidoIssueEvent& out) {
                                     copyField(in, 256, out);
                                     zorLogD(kEventTag, "vornVsClientNotifySidoIssueIndEvent");
                                 });
}

void vornVsClientNotifyHstModeIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioValueEvent>(
        __func__, RADIO_EVENT_HST_MODE_IND, indication, userData, callback,
        [](const VornView& in, RadioValueEvent& out) {
            out.value = in.getVornInt32Val(256, 0);
            zorLogD(kEventTag, "vornVsClientNotifyHstModeIndEvent - VORN_VS_HST_MODE_IND_T_HST_MODE data %d",
                    out.value);
        });
}

void vornVsClientNotifyServingCellInfoIndEvent(void* indication, int, void* userData,
                                               RadioEventCallback callback)
{
    convert<RadioServingCellEvent>(__func__, RADIO_EVENT_SERVING_CELL_INFO_IND, indication, userData,
                                   callback, [](const VornView& in, RadioServingCellEvent& out) {
                                       copyField(in, 256, out);
                                       zorLogD(kEventTag, "vornVsClientNotifyServingCellInfoIndEvent");
                                   });
}

void vornVsClientNotifyHyperUplinkStateIndEvent(void* indication, int, void* userData,
                                                RadioEventCallback callback)
{
    convert<RadioHyperUplinkStateEvent>(
        __func__, RADIO_EVENT_HYPER_UPLINK_STATE_IND, indication, userData, callback,
        [](const VornView& in, RadioHyperUplinkStateEvent& out) {
            out = {in.getVornInt32Val(256, 0), in.getVornInt32Val(257, 0), in.getVornInt32Val(258, 0)};
            zorLogD(kEventTag,
                    "vornVsClientNotifyHyperUplinkStateIndEvent - RADIO_EVENT_HYPER_UPLINK_STATE_IND scene "
                    "%d,state %d,type %d",
                    out.scene, out.state, out.type);
        });
}

void vornVsClientNotifyAtomDataIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioAtomDataEvent>(
        __func__, RADIO_EVENT_ATOM_DATA_IND, indication, userData, callback,
        [](const VornView& in, RadioAtomDataEvent& out) {
            const auto data = in.bytes(256);
            fillBlob(data, out);
            zorLogD(kEventTag,
                    "vornVsClientNotifyAtomDataIndEvent radioEvent.event.atomDataInd.data_len %d , len %d",
                    static_cast<int>(out.length), static_cast<int>(data.size()));
        });
}

void vornVsClientNotifyImsRtpControlIndEvent(void* indication, int, void* userData,
                                             RadioEventCallback callback)
{
    convert<RadioImsRtpControlEvent>(__func__, RADIO_EVENT_IMS_RTP_CONTROL_IND, indication, userData,
                                     callback, [](const VornView& in, RadioImsRtpControlEvent& out) {
                                         logEnter("vornVsClientNotifyImsRtpControlIndEvent");
                                         out.control = in.getVornUint16Val(256, 0);
                                     });
}

void vornVsClentNotifyOlogIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioOlogEvent>(__func__, RADIO_EVENT_OLOG_IND, indication, userData, callback,
                            [](const VornView& in, RadioOlogEvent& out) {
                                out = {in.getVornInt32Val(256, 0), in.getVornInt32Val(257, 0)};
                                zorLogD(kEventTag,
                                        "vornVsClientNotifyAtomDataIndEvent VORN_VS_OLOG_IND_T_DATA_LEN : %d "
                                        ", VORN_VS_OLOG_IND_T_DATA_LOST : %d",
                                        out.dataLength, out.dataLost);
                            });
}

void vornVsClentNotifySingleSimChangeIndEvent(void* indication, int, void* userData,
                                              RadioEventCallback callback)
{
    convert<RadioSingleSimChangeEvent>(__func__, RADIO_EVENT_SINGLE_SIM_CHANGE_IND, indication, userData,
                                       callback, [](const VornView& in, RadioSingleSimChangeEvent& out) {
                                           logEnter("vornVsClentNotifySingleSimChangeIndEvent");
                                           out.state = in.getVornUint8Val(256, 0);
                                       });
}

void vornVsClentNotifyMccChangedIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioMccChangedEvent>(__func__, RADIO_EVENT_MCC_CHANGED_IND, indication, userData, callback,
                                  [](const VornView& in, RadioMccChangedEvent& out) {
                                      logEnter("vornVsClentNotifyMccChangedIndEvent");
                                      copyField(in, 256, out);
                                  });
}

void vornVsClentNotifyAlertEventIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioAlertEvent>(__func__, RADIO_EVENT_ALERT_EVENT_IND, indication, userData, callback,
                             [](const VornView& in, RadioAlertEvent& out) {
                                 logEnter("vornVsClentNotifyAlertEventIndEvent");
                                 out.type = in.getVornInt32Val(256, 0);
                                 out.level = in.getVornInt32Val(257, 0);
                                 for (uint16_t i = 0; i < std::size(out.entries); ++i) {
                                     out.entries[i] = in.getVornInt32IdxVal(258, i, 0);
                                 }
                             });
}

void vornVsClentNotifyImsAudioQualityEventIndEvent(void*, int, void*, RadioEventCallback)
{
    logEnter(__func__);
}

void vornVsClentNotifyVodataEventIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioStateEvent>(__func__, RADIO_EVENT_VODATA_IND, indication, userData, callback,
                             [](const VornView& in, RadioStateEvent& out) {
                                 logEnter("vornVsClentNotifyVodataEventIndEvent");
                                 copyField(in, 256, out);
                             });
}

void vornVsClentNotifyCallStateChangeIndEvent(void* indication, int, void* userData,
                                              RadioEventCallback callback)
{
    convert<RadioStateEvent>(__func__, RADIO_EVENT_CALL_STATE_CHANGE_IND, indication, userData, callback,
                             [](const VornView& in, RadioStateEvent& out) { copyField(in, 256, out); });
}

void vornVsClentNotifyAllCellInfoIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioAllCellInfoEvent>(__func__, RADIO_EVENT_ALL_CELL_INFO_IND, indication, userData, callback,
                                   [](const VornView& in, RadioAllCellInfoEvent& out) {
                                       logEnter("vornVsClentNotifyAllCellInfoIndEvent");
                                       copyField(in, 256, out);
                                   });
}

void vornVsClientNotifyQosPeriodReportIndEvent(void* indication, int, void* userData,
                                               RadioEventCallback callback)
{
    convert<RadioReportEvent>(__func__, RADIO_EVENT_QOS_PERIOD_REPORT_IND, indication, userData, callback,
                              [](const VornView& in, RadioReportEvent& out) {
                                  logEnter("vornVsClientNotifyQosPeriodReportIndEvent");
                                  fillBlob(in.bytes(256), out);
                              });
}

void vornVsClientNotifyQosEventReportIndEvent(void* indication, int, void* userData,
                                              RadioEventCallback callback)
{
    convert<RadioReportEvent>(__func__, RADIO_EVENT_QOS_EVENT_REPORT_IND, indication, userData, callback,
                              [](const VornView& in, RadioReportEvent& out) {
                                  logEnter("vornVsClientNotifyQosEventReportIndEvent");
                                  fillBlob(in.bytes(256), out);
                              });
}

void vornVsClentNotifyNetworkActionResultIndEvent(void* indication, int, void* userData,
                                                  RadioEventCallback callback)
{
    convert<RadioNetworkActionResultEvent>(__func__, RADIO_EVENT_NETWORK_ACTION_RESULT_IND, indication,
                                           userData, callback,
                                           [](const VornView& in, RadioNetworkActionResultEvent& out) {
                                               logEnter("vornVsClentNotifyNetworkActionResultIndEvent");
                                               copyField(in, 256, out);
                                               out.count = cutTo(out.outcomes, out.count);
                                           });
}

void vornVsClentNotifySceneModeIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioSceneModeEvent>(__func__, RADIO_EVENT_SCENE_MODE_IND, indication, userData, callback,
                                 [](const VornView& in, RadioSceneModeEvent& out) {
                                     logEnter("vornVsClentNotifySceneModeIndEvent");
                                     copyField(in, 256, out);
                                     out.count = cutTo(out.values, out.count);
                                 });
}

void vornVsClentNotifySmartNetworkSelectIndEvent(void* indication, int, void* userData,
                                                 RadioEventCallback callback)
{
    convert<RadioSmartNetworkSelectEvent>(__func__, RADIO_EVENT_SMART_NETWORK_SELECT_IND, indication,
                                          userData, callback,
                                          [](const VornView& in, RadioSmartNetworkSelectEvent& out) {
                                              logEnter("vornVsClentNotifySmartNetworkSelectIndEvent");
                                              copyField(in, 256, out);
                                          });
}

void vornVsClientNotifyRfIccClatIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioRfIccClatEvent>(
        __func__, RADIO_EVENT_RF_ICC_CLAT_INFO_IND, indication, userData, callback,
        [](const VornView& in, RadioRfIccClatEvent& out) {
            copyField(in, 256, out);
            zorLogD(kEventTag, "vronVsClientNotifyRfIccClatIndEvent - RADIO_EVENT_RF_ICC_CLAT_INFO_IND");
        });
}

void vornVsClientNotifyRfIccTxSharingIndEvent(void* indication, int, void* userData,
                                              RadioEventCallback callback)
{
    convert<RadioRfIccTxSharingEvent>(
        __func__, RADIO_EVENT_RF_ICC_TX_SHARING_IND, indication, userData, callback,
        [](const VornView& in, RadioRfIccTxSharingEvent& out) {
            copyField(in, 256, out);
            zorLogD(kEventTag, "vronVsClientNotifyRfIccClatIndEvent - RADIO_EVENT_RF_ICC_CLAT_INFO_IND");
        });
}

void vornVsClientNotifyRfIccEventIndEvent(void* indication, int, void* userData, RadioEventCallback callback)
{
    convert<RadioRfIccEvent>(
        __func__, RADIO_EVENT_RF_ICC_EVENT_IND, indication, userData, callback,
        [](const VornView& in, RadioRfIccEvent& out) {
            copyField(in, 256, out);
            out.dataLength = cutTo(out.data, out.dataLength);
            zorLogD(
                kEventTag,
                "vronVsClientNotifyRfIccEventIndEvent - RADIO_EVENT_RF_ICC_EVENT_IND event %d, data_len %d",
                out.event, static_cast<int>(out.dataLength));
        });
}
