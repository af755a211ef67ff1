#include "support/event.h"
#include "support/request_rows.h"

#include <gmock/gmock.h>

#include <thread>

using namespace test;

namespace {

struct Registry : testing::Test {
    Device device;
    FakeModem& modem = FakeModem::instance();
    Caller caller;
    LogCapture log;

    int request() { return radioGetRRCStatus(&caller, Caller::onResult); }
};

void noService(RADIO_APIS_SERVICE_TYPE, RAPIS_CONNECT_STATE, void*) {}

} // namespace

TEST_F(Registry, RefusesRequestsWithoutInitialisation)
{
    const std::pair<std::string, Call> entryPoints[] = {
        {"radioGetServiceMode", call(radioGetServiceMode)},
        {"radioGetRRCStatus", call(radioGetRRCStatus)},
        {"radioReadNv", call(radioReadNv, 1, int8_t{0})},
        {"radioRegisterVsEvent", call(radioRegisterVsEvent, RegVsEvtType{})},
        {"radioRegisterRadioEvent", call(radioRegisterRadioEvent, RegRadioEvtType{})},
    };
    for (const auto& [name, entryPoint] : entryPoints) {
        EXPECT_EQ(entryPoint(&caller, Caller::onResult), 1) << name;
    }
    std::vector<std::string> lines;
    for (const auto& [name, entryPoint] : entryPoints) {
        lines.push_back("E VornApis: " + name + " : error : radio api does not init yet for instance 0");
    }
    EXPECT_EQ(log.lines(), lines);
    EXPECT_EQ(radioApisReleaseService(kModem), 0);
    EXPECT_EQ(radioApisDeinit(), 0);
    EXPECT_EQ(caller.calls, 0);
    EXPECT_TRUE(modem.journal.empty());
}

TEST_F(Registry, KeepsAnInstancePerThread)
{
    EXPECT_EQ(radioApisInit(kModem, 2), 0);
    EXPECT_TRUE(log.has("D VornApis: radioApisInit : radioApisInit tlssubid 2"));
    EXPECT_EQ(request(), 0);
    EXPECT_EQ(modem.sent.at(0).message->hdr.slot_id, 4);
    std::thread([&] {
        EXPECT_EQ(request(), 1); // instance 0
        EXPECT_EQ(radioApisInit(kModem, 1), 0);
        EXPECT_EQ(request(), 0);
        EXPECT_EQ(modem.sent.at(1).message->hdr.slot_id, 2);
    }).join();
    EXPECT_EQ(radioApisInit(kModem, 3), 1);
    EXPECT_EQ(request(), 0); // the thread keeps its instance
    EXPECT_EQ(modem.sent.at(2).message->hdr.slot_id, 4);
    for (int i = 0; i < 3; ++i) {
        modem.answer({result(0)});
    }
    EXPECT_EQ(caller.calls, 3);
}

TEST_F(Registry, CreatesClientsOnceAndResetsTheirSubscriptions)
{
    ASSERT_EQ(radioApisInit(kModem, 0), 0);
    auto* client = currentClient<VornVsClient>();
    auto* atClient = currentClient<VornAtClient>();
    EXPECT_EQ(radioRegisterVsEvent({.nec = {1, 1}}, nullptr, nullptr), 0);
    EXPECT_TRUE(log.has("D VornApis: radioRegisterVsEvent : radioRegisterVsEvent tlssubid 0"));
    EXPECT_EQ(radioRegisterRadioEvent({}, nullptr, nullptr), 0);
    Event heard;
    EXPECT_EQ(registerRadioEvent(RADIO_EVENT_CALL_RTP_SESSION_MLC, &heard, Event::onEvent), 0);
    EXPECT_TRUE(modem.indicate(0x492B, 1, {}));
    EXPECT_EQ(heard.calls, 1);
    modem.journal.clear();
    ASSERT_EQ(radioApisInit(kModem, 0), 0);
    EXPECT_EQ(currentClient<VornVsClient>(), client);
    EXPECT_EQ(currentClient<VornAtClient>(), atClient);
    EXPECT_EQ(std::ranges::count(modem.journal, "deregister 1 7e01"), 1);
    EXPECT_FALSE(modem.indicate(0x492B, 1, {}));
    EXPECT_EQ(radioRegisterRadioEvent({}, nullptr, nullptr), 0);
    EXPECT_TRUE(modem.indicate(0x492B, 1, {}));
    EXPECT_EQ(heard.calls, 2); // the listener stayed
}

TEST_F(Registry, ReportsTheChannelsFailure)
{
    device.setSupport("10");
    EXPECT_EQ(radioApisInit(kModem, 1), 2);
    EXPECT_NE(currentClient<VornRadioClient>(), nullptr);
    device.setSupport("1");
    modem.initResult = -1;
    EXPECT_EQ(radioApisInit(kModem, 1), 1);
    modem.initResult = 0;
    EXPECT_EQ(radioApisInit(kModem, 1), 0);
}

TEST_F(Registry, RoutesEventListeners)
{
    const auto listen = [](int event) {
        return registerRadioEvent(static_cast<RADIO_EVENT_TYPE>(event), nullptr, Event::onEvent);
    };
    EXPECT_EQ(registerRadioApisEvent(kModem, nullptr, noService), 0); // needs no instance
    EXPECT_EQ(listen(401), 1);
    EXPECT_TRUE(log.has("E VornApis: getVronClient : error in VornClient for instance 0"));
    EXPECT_TRUE(log.has("D VornApis: registerRadioEvent : registerRadioEvent tlssubid 0 eventId "));
    ASSERT_EQ(radioApisInit(kModem, 0), 0);
    const std::pair<int, int> events[] = {{400, 1},   {401, 0},   {499, 0},   {500, 1}, {9999, 1},
                                          {10000, 0}, {10999, 0}, {11000, 1}, {0, 1},   {-1, 1}};
    for (const auto& [event, expected] : events) {
        EXPECT_EQ(listen(event), expected) << event;
        if (expected != 0) {
            EXPECT_TRUE(log.has("E VornApis: getVronClient : error :do not define event range for " +
                                std::to_string(event)));
        }
    }
}

TEST_F(Registry, KnowsFiveRadioAccessTechnologies)
{
    ASSERT_EQ(radioApisInit(kModem, 0), 0);
    for (const int rat : {-1, 5}) {
        checkRefusal(call(radioSetAntForceStateByRat, rat, 1), 1,
                     "D VornApis: radioSetAntForceStateByRat : parameter rat(" + std::to_string(rat) +
                         ") is invlad");
    }
}
