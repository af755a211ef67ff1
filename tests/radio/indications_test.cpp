#include "radio/vorn_radio_client.h"
#include "radio_apis/converters.h"
#include "support/event.h"
#include "support/fake_modem.h"
#include "support/log_capture.h"

#include <gmock/gmock.h>

using namespace test;

TEST(RadioIndications, BecomeEvents)
{
    const auto power = [](int32_t eighths, int32_t expected) {
        return std::tuple{0x4421, Fields{int32(257, eighths)}, 10001, packed(expected)};
    };
    const std::tuple<int, Fields, int, Bytes> cases[] = {
        power(-15, -100),
        power(-8, -100),
        power(-7, 0),
        power(0, 0),
        power(7, 0),
        power(8, 100),
        power(17, 200),
        // The extremes wrap: 268435455 * 100 has more than 32 bits.
        power(INT32_MAX, static_cast<int32_t>(int64_t{268435455} * 100)),
        power(INT32_MIN, static_cast<int32_t>(int64_t{-268435456} * 100)),
        {0x4421, {}, 10001, packed(0)},
        {0x4213, {uint8(257, 0), uint8(258, 1)}, 10002, packed(2, 2)},
        {0x4213, {uint8(257, 3), uint8(258, 0)}, 10002, packed(5, 1)},
        {0x4213, {uint8(257, 255), uint8(258, 2)}, 10002, packed(257, 1)},
        {0x4213, {}, 10002, packed(2, 1)},
        {0x4220, {uint8(256, 1), uint8(257, 2), uint8(258, 3), uint8(259, 4)}, 10004, {1, 2, 3, 4}},
        {0x4220, {uint32(257, 0x01020304)}, 10004, {0, 4, 0, 0}},
        {0x492B, {uint8(256, 9), int32(257, -5)}, 10005, packed(-5, 9)},
        {0x492B, {}, 10005, packed(0, 0)},
    };
    VornRadioClient client(false, 0);
    client.registerEvent({{1, 1}, {1, 1}}, nullptr, nullptr);
    for (const auto& [id, fields, event, record] : cases) {
        Event seen;
        client.registerRadioEvent(static_cast<RADIO_EVENT_TYPE>(event), &seen, Event::onEvent);
        ASSERT_TRUE(FakeModem::instance().indicate(static_cast<uint16_t>(id), 1, fields));
        client.deregisterRadioEvent(static_cast<RADIO_EVENT_TYPE>(event), Event::onEvent);
        EXPECT_EQ(seen.calls, 1);
        EXPECT_EQ(seen.event, event);
        EXPECT_EQ(seen.record, record) << id;
    }
}

TEST(RadioIndications, AreNotConvertedWithoutMessageOrCallback)
{
    const auto indication = message(0x4421, 1, 0, {});
    for (auto* converter :
         {vornRadioClientNotifyNwEtxPwrEvent, vornRadioClientNotifyMsimSubModeEvent,
          vornRadioClientNotifyDataIfupPacketRouteEvent, vornRadioClientNotifyCallRtpSessionMlcEvent}) {
        Event seen;
        converter(nullptr, 0, &seen, Event::onEvent);
        converter(indication.get(), 0, &seen, nullptr);
        EXPECT_EQ(seen.calls, 0);
        converter(indication.get(), 0, &seen, Event::onEvent);
        EXPECT_EQ(seen.calls, 1);
    }
    Event seen;
    vornRadioClientNotifyFreqHoppingEvent(indication.get(), 0, &seen, Event::onEvent);
    EXPECT_EQ(seen.calls, 0);
}

TEST(RadioSubscriptions, SwitchTwoAndKeepTwoOn)
{
    VornRadioClient client(false, 2);
    auto& journal = FakeModem::instance().journal;
    const std::vector<std::string> always = {"register 4 4220", "register 4 492b"};
    const struct {
        RegRadioEvtType request;
        std::vector<std::string> calls;
    } steps[] = {
        {{}, {}},
        {{{1, 1}, {}}, {"register 4 4421"}},
        {{{1, 1}, {1, 5}}, {"register 4 4213"}},
        {{{1, 0}, {0, 0}}, {"deregister 4 4421"}},
    };
    for (const auto& step : steps) {
        journal.clear();
        EXPECT_EQ(client.registerEvent(step.request, nullptr, nullptr), 0);
        std::vector<std::string> expected = step.calls;
        expected.insert(expected.end(), always.begin(), always.end());
        EXPECT_EQ(journal, expected);
    }
    for (const int refused : {0x4421, 0x4220, 0x492B}) {
        FakeModem::instance().refuses = [=](int id) { return id == refused; };
        client.init();
        EXPECT_EQ(client.registerEvent({{1, 1}, {}}, nullptr, nullptr), 1);
    }
    FakeModem::instance().refuses = nullptr;
    journal.clear();
    EXPECT_EQ(client.unregisterEvent(), 0);
    EXPECT_THAT(journal, testing::ElementsAre("deregister 4 4421", "deregister 4 4213", "deregister 4 4220",
                                              "deregister 4 492b"));
    FakeModem::instance().refuses = [](int id) { return id == 0x492B; };
    EXPECT_EQ(client.unregisterEvent(), 1); // the last one decides
}
