#include "support/fake_modem.h"
#include "support/log_capture.h"
#include "vs/vorn_vs_client.h"

#include <gmock/gmock.h>

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::vector<std::string> kAlwaysOn = {
    "register 2 7e03", "register 2 7e04", "register 2 7e05", "register 2 7e09", "register 2 7e08",
    "register 2 7e0a", "register 2 7e0c", "register 2 7e0d", "register 2 7e0f", "register 2 7e10",
    "register 2 7e11", "register 2 7e12", "register 2 7e13", "register 2 7e14", "register 2 7e15",
    "register 2 7e16", "register 2 7e17", "register 2 7e18", "register 2 7e19", "register 2 7e1a",
    "register 2 7e1b", "register 2 7e1c"};

struct Subscriptions : testing::Test {
    VornVsClient client{false, 1};
    FakeModem& modem = FakeModem::instance();

    int registerEvent(const RegVsEvtType& request)
    {
        modem.journal.clear();
        return client.registerEvent(request, nullptr, nullptr);
    }
};

} // namespace

TEST_F(Subscriptions, SwitchOnlyWhatChanges)
{
    EXPECT_EQ(registerEvent({}), 0);
    EXPECT_EQ(modem.journal, kAlwaysOn);
    const struct {
        RegVsEvtType request;
        std::vector<std::string> calls;
    } steps[] = {
        {{}, {}},
        {{.nec = {1, 1}}, {"register 2 7e01"}},
        {{.nec = {1, 1}}, {}},
        {{.nec = {0, 0}}, {}},
        {{.nec = {1, 0}}, {"deregister 2 7e01"}},
        {{.nec = {1, 1},
          .test = {1, 1},
          .servingCellInfo = {1, 1},
          .hyperUplinkState = {1, 1},
          .reserved4 = {1, 1},
          .reserved5 = {1, 1},
          .mccChanged = {1, 1},
          .reserved7 = {1, 1}},
         {"register 2 7e01", "register 2 7e02", "register 2 7e06", "register 2 7e07", "register 2 7e0e"}},
        {{.test = {1, 2}, .mccChanged = {1, 0}}, {"register 2 7e02", "deregister 2 7e0e"}},
    };
    for (const auto& step : steps) {
        EXPECT_EQ(registerEvent(step.request), 0);
        EXPECT_EQ(modem.journal, step.calls);
    }
}

TEST_F(Subscriptions, TryTheAlwaysOnSetAgainAfterAnyFailure)
{
    for (const int refused : {0x7E03, 0x7E10, 0x7E1C}) {
        client.init();
        modem.refuses = [=](int id) { return id == refused; };
        EXPECT_EQ(registerEvent({}), 1);
        EXPECT_EQ(modem.journal, kAlwaysOn);
        modem.refuses = nullptr;
        EXPECT_EQ(registerEvent({}), 0);
        EXPECT_EQ(modem.journal, kAlwaysOn);
        EXPECT_EQ(registerEvent({}), 0);
        EXPECT_THAT(modem.journal, IsEmpty());
    }
    LogCapture log;
    modem.refuses = [](int id) { return id == 0x7E01; };
    EXPECT_EQ(registerEvent({.nec = {1, 1}}), 1);
    EXPECT_TRUE(log.has("E VornClient: error - registerVornIndMsg slotId:1, msgId:0x7e01, ret:-1"));
    EXPECT_TRUE(log.has("D VornVsClient: registerEvent: instance 1 event 32257 register result 0"));
    EXPECT_EQ(registerEvent({.nec = {1, 1}}), 0); // the wish was remembered all the same
    EXPECT_THAT(modem.journal, IsEmpty());
}

TEST_F(Subscriptions, EndInTheirOwnOrder)
{
    registerEvent({.test = {1, 1}});
    modem.journal.clear();
    client.init();
    std::vector<std::string> expected = {"7e01", "7e02", "7e06", "7e07"};
    for (const std::string& call : kAlwaysOn) {
        const std::string id = call.substr(call.size() - 4);
        if (id != "7e10") {
            expected.push_back(id);
        }
        if (id == "7e0d") {
            expected.emplace_back("7e0e");
        }
    }
    for (std::string& id : expected) {
        id.insert(0, "deregister 2 ");
    }
    EXPECT_EQ(modem.journal, expected);
    ASSERT_EQ(modem.registrations.size(), 1u);
    EXPECT_EQ(modem.registrations.begin()->first.second, 0x7E10);
}
