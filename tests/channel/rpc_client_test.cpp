#include "channel/rpc_client.h"
#include "support/log_capture.h"

#include <gmock/gmock.h>

using namespace test;
using testing::ElementsAre;

namespace {

std::vector<std::pair<char, void*>> calls;

template <char listener>
void heard(RADIO_EVENT_TYPE, void* user, void*, int)
{
    calls.emplace_back(listener, user);
}
constexpr auto first = heard<'1'>;
constexpr auto second = heard<'2'>;

void convert(void* indication, int, void* user, RadioEventCallback callback)
{
    callback(RADIO_EVENT_TEST_IND, user, indication, 0);
}

constexpr rpcEventHandlerMap kMap[] = {{1, RADIO_EVENT_TEST_IND, convert},
                                       {2, RADIO_EVENT_NONE, convert},
                                       {3, RADIO_EVENT_NEC_IND, nullptr},
                                       {1, RADIO_EVENT_NEC_IND, nullptr},
                                       {4, RADIO_EVENT_NEC_IND, convert}};

struct TestClient : RpcClient {
    TestClient() : RpcClient(true, 0, kMap, 5)
    {
        mLowestEvent = static_cast<RADIO_EVENT_TYPE>(401);
        mHighestEvent = static_cast<RADIO_EVENT_TYPE>(500);
    }
};

struct Listeners : testing::Test {
    TestClient client;
    LogCapture log;
    int a = 0;
    int b = 0;
    void SetUp() override { calls.clear(); }
};

} // namespace

TEST_F(Listeners, AreCalledInOrderOnceEach)
{
    EXPECT_EQ(client.registerRadioEvent(RADIO_EVENT_TEST_IND, &a, second), 0);
    EXPECT_EQ(client.registerRadioEvent(RADIO_EVENT_TEST_IND, &a, first), 0);
    EXPECT_EQ(client.registerRadioEvent(RADIO_EVENT_NEC_IND, &a, first), 0);
    EXPECT_EQ(client.registerRadioEvent(RADIO_EVENT_TEST_IND, &a, second), 0);
    EXPECT_TRUE(log.has("D RpcClient: registerRadioEvent already in list"));
    EXPECT_EQ(client.registerRadioEvent(RADIO_EVENT_TEST_IND, &b, second), 0);
    EXPECT_EQ(client.registerRadioEvent(RADIO_EVENT_TEST_IND, &b, nullptr), 0);
    for (const int event : {400, 501}) {
        EXPECT_EQ(client.registerRadioEvent(static_cast<RADIO_EVENT_TYPE>(event), &a, first), 1);
        EXPECT_TRUE(log.has("E RpcClient: registerEvent error, invalid eventId " + std::to_string(event)));
    }
    client.notifyEventForAllClient(1, nullptr, 0);
    EXPECT_THAT(calls, ElementsAre(std::pair{'2', &a}, std::pair{'1', &a}, std::pair{'2', &b}));

    calls.clear();
    client.deregisterRadioEvent(RADIO_EVENT_TEST_IND, second); // the first of two, whatever its user data
    client.deregisterRadioEvent(RADIO_EVENT_VODATA_IND, second);
    client.notifyEventForAllClient(1, nullptr, 0);
    EXPECT_THAT(calls, ElementsAre(std::pair{'1', &a}, std::pair{'2', &b}));

    EXPECT_EQ(client.registerRadioApisEvent(&a, nullptr), 0);
    client.radioApiEventCall(RADIO_APIS_SERVICE_MODEM, RAPIS_CONNECTED); // nobody is there to call

    calls.clear();
    EXPECT_EQ(client.init(), 0);
    client.notifyEventForAllClient(1, nullptr, 0);
    EXPECT_THAT(calls, ElementsAre());
}

TEST_F(Listeners, HearOnlyMappedIndications)
{
    client.registerRadioEvent(RADIO_EVENT_TEST_IND, &a, first);
    client.registerRadioEvent(RADIO_EVENT_NEC_IND, &a, first);
    log.clear();
    client.notifyEventForAllClient(99, nullptr, 0); // not in the table
    client.notifyEventForAllClient(3, nullptr, 0);  // without a handler
    EXPECT_THAT(log.lines(), ElementsAre());
    client.notifyEventForAllClient(2, nullptr, 0);
    EXPECT_THAT(log.lines(),
                ElementsAre("E RpcClient: notifyEventForAllClient : can not find the maped event"));
    EXPECT_THAT(calls, ElementsAre());
    EXPECT_EQ(client.rpcEventMap(1), RADIO_EVENT_TEST_IND); // the first of two rows
    EXPECT_EQ(client.rpcEventMap(99), RADIO_EVENT_NONE);
}
