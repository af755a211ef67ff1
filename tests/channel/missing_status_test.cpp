#include "channel/vorn_channel_client.h"
#include "support/log_capture.h"

#include <gtest/gtest.h>

using test::LogCapture;

TEST(MissingStatusLibrary, LeavesListenersRegistered)
{
    LogCapture log;
    VornChannelClient client(false);
    const std::string warning = "W VornChannelClient: VornVsClient::VornVsClient : open libkst.so fail";
    EXPECT_EQ(log.count(warning), 1);
    static int heard;
    heard = 0;
    const auto listener = [](RADIO_APIS_SERVICE_TYPE, RAPIS_CONNECT_STATE, void*) { ++heard; };
    EXPECT_EQ(client.registerRadioApisEvent(nullptr, listener), 0);
    EXPECT_EQ(client.registerRadioApisEvent(&client, listener), 0); // tries to open it again
    EXPECT_EQ(log.count(warning), 3);
    md_status_event up{1};
    mdStatusEventCb(&client, &up);
    EXPECT_EQ(heard, 2);
}
