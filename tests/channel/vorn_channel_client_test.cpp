#include "channel/vorn_channel_client.h"
#include "host/link_status.h"
#include "platform/inbox.h"
#include "support/fake_modem.h"
#include "support/instance.h"
#include "support/log_capture.h"

#include <gmock/gmock.h>

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ChannelClient, FindsTheDeviceOfItsPlatform)
{
    const std::string kNone = "/dev/ttyCVORN8";
    const auto config = [](const std::string& platforms) {
        return "<vorn_device_config>" + platforms + "</vorn_device_config>";
    };
    const std::pair<std::string, std::string> rows[] = {
        {"not xml", kNone},
        {"<vorn_device_config><platform name='board1' vorn_device='/dev/ttyX'/>", kNone},
        {"<other><platform name='board1' vorn_device='/dev/ttyX'/></other>", kNone},
        {config(""), kNone},
        {config("<platform name='Board1' vorn_device='/dev/ttyX'/>"), kNone},
        {config("<platform vorn_device='/dev/ttyX'/>"), kNone},
        {"<!-- c -->" + config("<x name='board1' vorn_device='/dev/no'/><platform name='board1'/>"
                               "<platform name='board2' vorn_device='/dev/no'/>"
                               "<platform name='board1' vorn_device='/dev/ttyX'/>"
                               "<platform name='board1' vorn_device='/dev/ttyY'/>"),
         "/dev/ttyX"},
        {config("<platform name='board1' vorn_device=''/>"), ""},
    };
    const DeviceRoot root;
    root.write("default.prop", "ro.boot.hardware=board1\n");
    for (const auto& [file, device] : rows) {
        root.write("odm/etc/vorn_device_config.xml", file);
        LogCapture log;
        const VornChannelClient client(false);
        EXPECT_TRUE(log.has("D VornChannelClient: mVornDeviceName is " + device)) << file;
    }
    const std::string longDevice = "/dev/" + std::string(65, 'x');
    root.write("odm/etc/vorn_device_config.xml",
               config("<platform name='b' vorn_device='" + longDevice + "'/>"));
    char device[VornChannelClient::kDeviceNameSize];
    EXPECT_TRUE(VornChannelClient::parseVornDeviceName("b", device));
    EXPECT_EQ(device, longDevice.substr(0, 63));
    EXPECT_FALSE(VornChannelClient::parseVornDeviceName(nullptr, device));
    EXPECT_FALSE(VornChannelClient::parseVornDeviceName("b", nullptr));
}

TEST(ChannelClient, OpensTheMessageLibraryOnce)
{
    const Device device;
    auto& modem = FakeModem::instance();
    LogCapture log;
    {
        VornChannelClient client(false);
        modem.initResult = -1;
        EXPECT_EQ(client.init(), 1);
        EXPECT_TRUE(log.has("E VornChannelClient: VornVsClient::init call vorn_init_debug error"));
        modem.initResult = 0;
        EXPECT_EQ(client.init(), 0);
        EXPECT_EQ(client.deInit(), 0);
        EXPECT_EQ(client.init(), 0);
    }
    EXPECT_THAT(modem.journal, ElementsAre("device /dev/ttyCVORN8", "init subsys-daemon",
                                           "device /dev/ttyCVORN8", "init subsys-daemon", "reset", "deinit"));
}

TEST(ChannelClient, WantsItsSupportPropertyToBeExactlyOne)
{
    for (const std::string value : {"", "0", "true", "10", "1 ", " 1", "2"}) {
        const Device device;
        device.setSupport(value);
        LogCapture log;
        EXPECT_EQ(VornChannelClient(false).init(), 2) << value;
        EXPECT_EQ(log.count("E VornChannelClient: VORN is not supportted, zor_vorn_support=" + value), 2)
            << value;
    }
    EXPECT_EQ(VornChannelClient(false).init(), 2); // not set at all
    EXPECT_THAT(FakeModem::instance().journal, IsEmpty());
}

TEST(ChannelClient, TellsServiceListenersOfTheModem)
{
    using States = Inbox<int>;
    const auto onService = [](RADIO_APIS_SERVICE_TYPE service, RAPIS_CONNECT_STATE state, void* user) {
        static_cast<States*>(user)->add(service * 10 + state);
    };
    const std::vector<int> upAndLost = {110, 111};
    LogCapture log;
    VornChannelClient client(false);
    const Device device; // ends the reports to the client
    States one;
    States two;
    EXPECT_EQ(client.registerRadioApisEvent(&one, onService), 0);
    EXPECT_EQ(client.registerRadioApisEvent(&two, onService), 0);
    EXPECT_EQ(client.registerRadioApisEvent(&two, onService), 0);
    EXPECT_TRUE(log.has("D RpcClient: registerRadioApisEvent already in list"));
    EXPECT_TRUE(log.has("D VornChannelClient: VornVsClient::VornVsClient : open libkst.so success"));
    EXPECT_EQ(log.count("D VornChannelClient: registerRadioApisEvent kst register"), 1);
    host::publishLinkState(host::LinkState::Up);
    host::publishLinkState(host::LinkState::Lost);
    EXPECT_EQ(one.waitFor(2), upAndLost);
    EXPECT_EQ(two.waitFor(2), upAndLost);
    md_status_event other{2};
    mdStatusEventCb(&client, &other);
    mdStatusEventCb(nullptr, nullptr);
    EXPECT_TRUE(log.has("D VornChannelClient: VornChannelClient::mdStatusEventCb : mdStatusEvent 2"));
    EXPECT_EQ(one.waitFor(0), upAndLost);
    host::publishLinkState(host::LinkState::Unknown);
}
