#include "api/registry.h"
#include "host/device.h"
#include "radio_apis/radio_apis.h"
#include "support/request_rows.h"

#include <gmock/gmock.h>

#include <thread>

using namespace test;

namespace {

constexpr auto kModem = RADIO_APIS_SERVICE_MODEM;

struct Registry : testing::Test {
    FakeModem& modem = FakeModem::instance();
    Caller caller;
    LogCapture log;

    Registry() { host::setProperty("ro.vendor.zor_vorn_support", "1"); }

    int request() { return radioGetRRCStatus(&caller, Caller::onResult); }
};

void noService(RADIO_APIS_SERVICE_TYPE, RAPIS_CONNECT_STATE, void*) {}
void noEvent(RADIO_EVENT_TYPE, void*, void*, int) {}

} // namespace

TEST_F(Registry, RefusesRequestsWithoutInitialisation)
{
    const std::pair<const char*, std::function<int()>> entryPoints[] = {
        {"radioSendScreenState", [&] { return radioSendScreenState(1, &caller, Caller::onResult); }},
        {"radioSetMicroMotionState",
         [&] { return radioSetMicroMotionState(1, 1, &caller, Caller::onResult); }},
        {"radioSetSarState", [&] { return radioSetSarState(1, 1, &caller, Caller::onResult); }},
        {"radioGetLteCellInfo", [&] { return radioGetLteCellInfo(&caller, Caller::onResult); }},
        {"radioGetRRCStatus", [&] { return radioGetRRCStatus(&caller, Caller::onResult); }},
        {"radioGetServingCellularCellInfo",
         [&] { return radioGetServingCellularCellInfo(&caller, Caller::onResult); }},
        {"radioGetAllCellularCellInfo",
         [&] { return radioGetAllCellularCellInfo(&caller, Caller::onResult); }},
        {"radioGetServiceMode", [&] { return radioGetServiceMode(&caller, Caller::onResult); }},
        {"radioSetUimPowerUp", [&] { return radioSetUimPowerUp(&caller, Caller::onResult); }},
        {"radioSetUimPowerDown", [&] { return radioSetUimPowerDown(&caller, Caller::onResult); }},
        {"radioSetOosCfg", [&] { return radioSetOosCfg({.option = 100}, &caller, Caller::onResult); }},
        {"radioReadNv", [&] { return radioReadNv(1, 0, &caller, Caller::onResult); }},
        {"radioWriteNv", [&] { return radioWriteNv(1, 0, nullptr, 0, &caller, Caller::onResult); }},
        {"radioRegisterVsEvent", [&] { return radioRegisterVsEvent({}, &caller, Caller::onResult); }},
        {"radioRegisterRadioEvent", [&] { return radioRegisterRadioEvent({}, &caller, Caller::onResult); }},
    };
    for (const auto& [name, call] : entryPoints) {
        EXPECT_EQ(call(), 1) << name;
        EXPECT_TRUE(log.has(std::string("E VornApis: ") + name +
                            " : error : radio api does not init yet for instance 0"))
            << name;
    }
    EXPECT_TRUE(
        log.has("D VornApis: radioGetServingCellularCellInfo : radioGetServingCellularCellInfo tlssubid 0"));
    EXPECT_TRUE(log.has("D VornApis: radioSetUimPowerUp : radioSetUimPowerUp tlssubid 0"));
    EXPECT_TRUE(log.has("D VornApis: radioSetUimPowerDown : radioSetUimPowerDown tlssubid 0"));
    EXPECT_TRUE(log.has("E VornApis: radioSetOosCfg : radioSetOosCfg tlssubid 0"));
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
    static int heard;
    heard = 0;
    EXPECT_EQ(registerRadioEvent(RADIO_EVENT_CALL_RTP_SESSION_MLC, nullptr,
                                 [](RADIO_EVENT_TYPE, void*, void*, int) { ++heard; }),
              0);
    EXPECT_TRUE(modem.indicate(0x492B, 1, {}));
    EXPECT_EQ(heard, 1);
    modem.journal.clear();
    ASSERT_EQ(radioApisInit(kModem, 0), 0);
    EXPECT_EQ(currentClient<VornVsClient>(), client);
    EXPECT_EQ(currentClient<VornAtClient>(), atClient);
    EXPECT_EQ(std::ranges::count(modem.journal, "deregister 1 7e01"), 1);
    EXPECT_FALSE(modem.indicate(0x492B, 1, {}));
    EXPECT_EQ(radioRegisterRadioEvent({}, nullptr, nullptr), 0);
    EXPECT_TRUE(modem.indicate(0x492B, 1, {}));
    EXPECT_EQ(heard, 2); // the listener stayed
}

TEST_F(Registry, ReportsTheChannelsFailure)
{
    host::setProperty("ro.vendor.zor_vorn_support", "10");
    EXPECT_EQ(radioApisInit(kModem, 1), 2);
    EXPECT_NE(currentClient<VornRadioClient>(), nullptr);
    host::setProperty("ro.vendor.zor_vorn_support", "1");
    modem.initResult = -1;
    EXPECT_EQ(radioApisInit(kModem, 1), 1);
    modem.initResult = 0;
    EXPECT_EQ(radioApisInit(kModem, 1), 0);
}

TEST_F(Registry, RoutesEventListeners)
{
    const auto listen = [](int event) {
        return registerRadioEvent(static_cast<RADIO_EVENT_TYPE>(event), nullptr, noEvent);
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

TEST_F(Registry, ChoosesTheClientByArguments)
{
    constexpr uint16_t kAt = 3;
    ASSERT_EQ(radioApisInit(kModem, 0), 0);
    const std::pair<std::function<int()>, bool> calls[] = {
        {[&] { return radioSetOosCfg({.option = 100}, &caller, Caller::onResult); }, false},
        {[&] { return radioSetOosCfg({.option = 5}, &caller, Caller::onResult); }, true},
        {[&] { return radioSetPowerSavingState({.cgType = 3, .type = 600}, &caller, Caller::onResult); },
         true},
        {[&] { return radioSetPowerSavingState({.cgType = 3, .type = 5}, &caller, Caller::onResult); },
         false},
        {[&] { return radioSetAntForceStateByRat(4, 1, &caller, Caller::onResult); }, true},
        {[&] { return radioSetAntForceStateByRat(3, 1, &caller, Caller::onResult); }, false},
    };
    for (const auto& [request, isAt] : calls) {
        ASSERT_EQ(request(), 0);
        EXPECT_EQ(modem.sent.at(0).message->hdr.msg_id == kAt, isAt);
        modem.answer({result(0)});
    }
    for (const int rat : {-1, 5}) {
        EXPECT_EQ(radioSetAntForceStateByRat(rat, 1, &caller, Caller::onResult), 1);
        EXPECT_TRUE(log.has("D VornApis: radioSetAntForceStateByRat : parameter rat(" + std::to_string(rat) +
                            ") is invlad"));
    }
}
