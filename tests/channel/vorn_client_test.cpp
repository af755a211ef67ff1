#include "channel/vorn_client.h"
#include "support/request_rows.h"

#include <gmock/gmock.h>

using namespace test;

namespace {

struct TestClient : VornClient {
    explicit TestClient(int instance) : VornClient("TestClient", instance, nullptr, 0) {}

    int request(Caller& caller, RadioRequestCallback cb = Caller::onResult)
    {
        return send(newRequest(7), &caller, cb, processVoidResponseMsg);
    }
};

} // namespace

TEST(VornClient, MapsTheModemsResults)
{
    const std::pair<uint32_t, int> results[] = {{0, 0},   {21, 11},        {31, 10},       {104, 1},
                                                {105, 2}, {106, 2},        {107, 1},       {1, 1},
                                                {2, 1},   {0xFFFFFFFF, 1}, {0x80000000, 1}};
    for (const auto& [modem, expected] : results) {
        TestClient client(0);
        Caller caller;
        LogCapture log;
        ASSERT_EQ(client.request(caller), 0);
        FakeModem::instance().answer({modem == 2 ? int32(256, 1) : result(modem)}); // none counts as 2
        EXPECT_EQ(caller.calls, 1);
        EXPECT_EQ(caller.result, expected) << modem;
        EXPECT_EQ(caller.hadRecord, modem == 0);
        if (modem != 0) {
            const std::string code = std::to_string(static_cast<int>(modem));
            EXPECT_TRUE(log.has(
                "E VornClient: vornResponseCallback - fail to send async vorn req msg. result=" + code));
            EXPECT_TRUE(log.has("D VornClient: VornResultToRadioApiResult vornResult " + code +
                                ", radio result " + std::to_string(expected)));
        }
    }
}

TEST(VornClient, GuardsItsHandlersNotItsCallers)
{
    LogCapture log;
    vornResponseCallback(nullptr, nullptr);
    EXPECT_TRUE(log.has("E VornClient: vornResponseCallback invalid user data or callback"));
    VornClient::processVoidResponseMsg(nullptr, 0, nullptr);
    EXPECT_TRUE(log.has("E VornClient: processVoidResponseMsg : invalid vorn response"));

    TestClient client(0);
    Caller caller;
    client.request(caller, nullptr);
    EXPECT_THROW(FakeModem::instance().answer({result(0)}), std::bad_function_call);
    FakeModem::instance().sendResult = -3;
    EXPECT_EQ(client.request(caller), 1);
    EXPECT_TRUE(log.has("E VornClient: error - sendAsyncRequest VORN_VS_SEND_SCREEN_STATE_REQ ret -3"));
    EXPECT_EQ(VornClient::sendAsyncRequest(nullptr, nullptr), 1);
    FakeModem::instance().sendResult = 0;
    // A failure without a result callback is the handler's too.
    client.request(caller, nullptr);
    EXPECT_THROW(FakeModem::instance().answer({result(21)}), std::bad_function_call);
}

TEST(VornClient, LogsAndDropsIndicationsNobodyMapped)
{
    TestClient client(1);
    LogCapture log;
    ASSERT_TRUE(client.registerVornIndMsg(0x7E02));
    EXPECT_TRUE(FakeModem::instance().indicate(0x7E02, 2, {}));
    EXPECT_THAT(log.lines(), testing::ElementsAre("D VornClient: vornIndCallback - enter",
                                                  "D VornClient: vornIndMsgId:0x7e02, slot:1",
                                                  "D VornClient: onVornEventCallback - enter. msgId=32258"));
    vornIndCallback(message(1, 1, 0, {}).get(), nullptr);
    FakeModem::instance().refuses = [](int) { return true; };
    EXPECT_FALSE(client.deregisterVornIndMsg(0x7E02));
    EXPECT_TRUE(log.has("E VornClient: error - deregisterVornIndMsg slotId:1, msgId:0x7e02, ret:-1"));
}
