#include "inbox.h"

#include "host/link_status.h"
#include "kst/libkst.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

using host::LinkState;
using host::publishLinkState;
using Events = std::vector<uint32_t>;

struct Client : Inbox<uint32_t> {
    static void callback(void* client, md_status_event* event)
    {
        auto& self = *static_cast<Client*>(client);
        self.thread = std::this_thread::get_id();
        if (self.next != nullptr) {
            EXPECT_EQ(libkst_md_event_register(callback, std::exchange(self.next, nullptr)), 0);
        }
        if (self.closes) {
            libkst_deinit();
        }
        self.add(event->event);
    }

    std::thread::id thread;
    Client* next = nullptr; ///< registered by this one's callback
    bool closes = false;
};

TEST(Kst, tellsEachClientThePresentStateAndThenEveryChange)
{
    Client early;
    Client late;
    EXPECT_LT(libkst_md_event_register(Client::callback, &early), 0) << "not prepared";
    publishLinkState(LinkState::Lost);
    publishLinkState(LinkState::Unknown);
    ASSERT_EQ(libkst_init(), 0);
    ASSERT_EQ(libkst_init(), 0);
    EXPECT_LT(libkst_md_event_register(nullptr, &early), 0);
    ASSERT_EQ(libkst_md_event_register(Client::callback, &early), 0);
    publishLinkState(LinkState::Up);
    publishLinkState(LinkState::Up);
    publishLinkState(LinkState::Lost);
    EXPECT_EQ(early.waitFor(2), (Events{1, 10}));
    EXPECT_NE(early.thread, std::this_thread::get_id());
    early.next = &late;
    publishLinkState(LinkState::Up);
    EXPECT_EQ(late.waitFor(1), Events{1});
    publishLinkState(LinkState::Unknown);
    publishLinkState(LinkState::Lost);
    EXPECT_EQ(late.waitFor(2), (Events{1, 10}));
    EXPECT_EQ(early.waitFor(4), (Events{1, 10, 1, 10}));

    libkst_deinit();
    publishLinkState(LinkState::Up);
    EXPECT_LT(libkst_md_event_register(Client::callback, &late), 0);
    EXPECT_EQ(late.waitFor(0).size(), 2u);
}

TEST(Kst, mayBeClosedByItsCallbackAndOpenedAgain)
{
    publishLinkState(LinkState::Up);
    for (int round = 0; round < 2; ++round) {
        Client client;
        client.closes = true;
        ASSERT_EQ(libkst_init(), 0);
        ASSERT_EQ(libkst_md_event_register(Client::callback, &client), 0);
        EXPECT_EQ(client.waitFor(1), Events{1});
    }
}

} // namespace
