#include "radio_apis/converters.h"
#include "support/event.h"
#include "support/fake_modem.h"
#include "support/log_capture.h"
#include "vs/vorn_vs_client.h"

#include <gmock/gmock.h>

using namespace test;

namespace {

using Converter = void (*)(void*, int, void*, RadioEventCallback);

struct Row {
    const char* name;
    Converter converter;
    uint16_t indication;
    int event;
    Fields fields;
    Bytes record;
    std::string log; ///< empty: none
};

/// A log line that begins with a blank goes on after the converter's name.
Row row(const char* name, Converter converter, uint16_t indication, int event, const Fields& fields,
        const Bytes& record, const std::string& log = " - enter")
{
    return {name, converter, indication, event, fields, record, log.starts_with(' ') ? name + log : log};
}

/// A record of the modem's that is copied as it is.
Row copied(const char* name, Converter converter, uint16_t indication, int event, size_t size,
           const std::string& log = " - enter")
{
    return row(name, converter, indication, event, {raw(256, counting(size))}, counting(size), log);
}

/// A blob: its length, then its bytes.
Row blob(const char* name, Converter converter, uint16_t indication, int event, size_t size, uint16_t tag,
         const std::string& log, size_t sent = 600)
{
    const size_t kept = std::min(sent, size - 4);
    Bytes record = joined({packed(static_cast<uint32_t>(kept)), counting(kept)});
    record.resize(size);
    return row(name, converter, indication, event, {raw(tag, counting(sent))}, record, log);
}

/// A block that claims more than a record holds: its count is cut, the rest is copied.
Row cut(const char* name, Converter converter, uint16_t indication, int event, size_t size, uint32_t most)
{
    const Bytes rest = counting(size - 4);
    return row(name, converter, indication, event, {raw(256, joined({packed(1000), rest}))},
               joined({packed(most), rest}));
}

std::vector<Row> rows()
{
    const std::string icc = "vronVsClientNotifyRfIccClatIndEvent - RADIO_EVENT_RF_ICC_CLAT_INFO_IND";
    Bytes iccEvent = counting(136);
    std::copy_n(packed(uint32_t{200}).begin(), 4, iccEvent.begin() + 4);
    Bytes iccRecord = iccEvent;
    iccRecord[4] = 128;
    return {
        blob("vornVsClientNotifySmlStatusIndEvent", vornVsClientNotifySmlStatusIndEvent, 0x7E0C, 436, 516,
             257, " - RADIO_EVENT_SML_STATUS_IND"),
        blob("vornVsClientNotifyRlkStatusIndEvent", vornVsClientNotifyRlkStatusIndEvent, 0x7E0D, 437, 516,
             257, " - RADIO_EVENT_RLK_STATUS_IND", 3),
        blob("vornVsClientNotifyNecEvent", vornVsClientNotifyNecEvent, 0x7E01, 403, 2052, 256,
             " - RADIO_EVENT_NEC_IND", 3000),
        row("vornVsClientNotifyVeyraInfoIndEvent", vornVsClientNotifyVeyraInfoIndEvent, 0x7E03, 409, {},
            Bytes(35208), "vornVsClientNotifyNecEvent - RADIO_EVENT_VEYRA_CELL_INFO_IND"),
        row("vornVsClientNotifyTestIndEvent", vornVsClientNotifyTestIndEvent, 0x7E02, 419, {int32(256, -7)},
            packed(-7), " - RADIO_EVENT_TEST_IND data -7"),
        row("vornVsClientNotifyVeyraEvevtIndEvent", vornVsClientNotifyVeyraEvevtIndEvent, 0x7E04, 410,
            {int32(256, 8)}, packed(8), " data 8"),
        copied("vornVsClientNotifySidoIssueIndEvent", vornVsClientNotifySidoIssueIndEvent, 0x7E05, 414, 84,
               "vornVsClientNotifySidoIssueIndEvent"),
        row("vornVsClientNotifyHstModeIndEvent", vornVsClientNotifyHstModeIndEvent, 0x7E09, 424,
            {int32(256, 1)}, packed(1), " - VORN_VS_HST_MODE_IND_T_HST_MODE data 1"),
        copied("vornVsClientNotifyServingCellInfoIndEvent", vornVsClientNotifyServingCellInfoIndEvent, 0x7E06,
               425, 88, "vornVsClientNotifyServingCellInfoIndEvent"),
        row("vornVsClientNotifyHyperUplinkStateIndEvent", vornVsClientNotifyHyperUplinkStateIndEvent, 0x7E07,
            426, {int32(256, 1), int32(257, 2), uint8(258, 3)}, packed(1, 2, 3),
            " - RADIO_EVENT_HYPER_UPLINK_STATE_IND scene 1,state 2,type 3"),
        blob("vornVsClientNotifyAtomDataIndEvent", vornVsClientNotifyAtomDataIndEvent, 0x7E08, 427, 4100, 256,
             " radioEvent.event.atomDataInd.data_len 4096 , len 5000", 5000),
        copied("vornVsClientNotifyImsRtpControlIndEvent", vornVsClientNotifyImsRtpControlIndEvent, 0x7E16,
               428, 2),
        row("vornVsClentNotifyOlogIndEvent", vornVsClentNotifyOlogIndEvent, 0x7E0A, 430,
            {int32(256, 9), int32(257, 1)}, packed(9, 1),
            "vornVsClientNotifyAtomDataIndEvent VORN_VS_OLOG_IND_T_DATA_LEN : 9 , "
            "VORN_VS_OLOG_IND_T_DATA_LOST : 1"),
        copied("vornVsClentNotifySingleSimChangeIndEvent", vornVsClentNotifySingleSimChangeIndEvent, 0x7E0B,
               435, 1),
        copied("vornVsClentNotifyMccChangedIndEvent", vornVsClentNotifyMccChangedIndEvent, 0x7E0E, 423, 8),
        row("vornVsClentNotifyAlertEventIndEvent", vornVsClentNotifyAlertEventIndEvent, 0x7E0F, 438,
            {int32(256, 1), int32(257, 2), numbers<int32_t>(258, {3, 4, 5, 6, 7, 8})},
            packed(1, 2, 3, 4, 5, 6, 7)),
        copied("vornVsClentNotifyVodataEventIndEvent", vornVsClentNotifyVodataEventIndEvent, 0x7E11, 440, 8),
        copied("vornVsClentNotifyCallStateChangeIndEvent", vornVsClentNotifyCallStateChangeIndEvent, 0x7E13,
               442, 8, ""),
        copied("vornVsClentNotifyAllCellInfoIndEvent", vornVsClentNotifyAllCellInfoIndEvent, 0x7E12, 441,
               4280),
        blob("vornVsClientNotifyQosPeriodReportIndEvent", vornVsClientNotifyQosPeriodReportIndEvent, 0x7E14,
             420, 2052, 256, " - enter", 0),
        blob("vornVsClientNotifyQosEventReportIndEvent", vornVsClientNotifyQosEventReportIndEvent, 0x7E15,
             421, 2052, 256, " - enter", 2048),
        cut("vornVsClentNotifyNetworkActionResultIndEvent", vornVsClentNotifyNetworkActionResultIndEvent,
            0x7E17, 443, 452, 16),
        cut("vornVsClentNotifySceneModeIndEvent", vornVsClentNotifySceneModeIndEvent, 0x7E18, 444, 516, 128),
        copied("vornVsClentNotifySmartNetworkSelectIndEvent", vornVsClentNotifySmartNetworkSelectIndEvent,
               0x7E19, 445, 12),
        copied("vornVsClientNotifyRfIccClatIndEvent", vornVsClientNotifyRfIccClatIndEvent, 0x7E1A, 433, 6,
               icc),
        copied("vornVsClientNotifyRfIccTxSharingIndEvent", vornVsClientNotifyRfIccTxSharingIndEvent, 0x7E1B,
               434, 12, icc),
        row("vornVsClientNotifyRfIccEventIndEvent", vornVsClientNotifyRfIccEventIndEvent, 0x7E1C, 446,
            {raw(256, iccEvent)}, iccRecord,
            "vronVsClientNotifyRfIccEventIndEvent - RADIO_EVENT_RF_ICC_EVENT_IND event 67305985, data_len "
            "128"),
    };
}

} // namespace

TEST(VsConverters, MakeTheirRecords)
{
    VornVsClient client(false, 0);
    auto& modem = FakeModem::instance();
    client.registerEvent({.nec = {1, 1},
                          .test = {1, 1},
                          .servingCellInfo = {1, 1},
                          .hyperUplinkState = {1, 1},
                          .mccChanged = {1, 1}},
                         nullptr, nullptr);
    client.registerVornIndMsg(0x7E0B); // which the client itself never registers
    for (const Row& row : rows()) {
        SCOPED_TRACE(row.name);
        Event seen;
        const auto event = static_cast<RADIO_EVENT_TYPE>(row.event);
        ASSERT_EQ(client.registerRadioEvent(event, &seen, Event::onEvent), 0);
        LogCapture log;
        ASSERT_TRUE(modem.indicate(row.indication, 1, row.fields));
        client.deregisterRadioEvent(event, Event::onEvent);
        EXPECT_EQ(seen.calls, 1);
        EXPECT_EQ(seen.event, row.event);
        EXPECT_EQ(seen.record, row.record);
        EXPECT_TRUE(row.log.empty() || log.has("D VornVsClientEvent: " + row.log))
            << testing::PrintToString(log.lines());
    }
}

TEST(VsConverters, SurviveWhatTheModemSends)
{
    for (const Row& row : rows()) {
        SCOPED_TRACE(row.name);
        LogCapture log;
        Event seen;
        const auto empty = message(row.indication, 1, 0, {});
        row.converter(nullptr, 0, &seen, Event::onEvent);
        row.converter(empty.get(), 0, &seen, nullptr);
        EXPECT_EQ(seen.calls, 0);
        EXPECT_EQ(log.count(std::string("E VornVsClientEvent: ") + row.name + " invalid parameters"),
                  row.event == 409 ? 0 : 2);
        row.converter(empty.get(), 0, &seen, Event::onEvent);
        EXPECT_EQ(seen.record, Bytes(row.record.size()));
        const Fields hostile[] = {{raw(256, {}), raw(257, {}), raw(258, {})},
                                  {raw(256, {1}), raw(257, {1}), raw(258, {1})},
                                  {raw(256, Bytes(60000, 0xFF)), raw(257, Bytes(60000, 0xFF))},
                                  {uint8(256, 0xFF), raw(258, Bytes(60000, 0xFF))},
                                  {numbers<int32_t>(256, {-1, -1}), numbers<int32_t>(258, {-1, -1})}};
        for (const Fields& fields : hostile) {
            row.converter(message(row.indication, 1, 0, fields).get(), 0, &seen, Event::onEvent);
            EXPECT_EQ(seen.record.size(), row.record.size());
        }
        EXPECT_EQ(seen.calls, 6);
    }
    Event seen;
    LogCapture log;
    vornVsClentNotifyImsAudioQualityEventIndEvent(message(0x7E10, 1, 0, {}).get(), 0, &seen, Event::onEvent);
    EXPECT_EQ(seen.calls, 0);
    EXPECT_TRUE(log.has("D VornVsClientEvent: vornVsClentNotifyImsAudioQualityEventIndEvent - enter"));
}
