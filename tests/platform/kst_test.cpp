#include "inbox.h"

#include "host/link_status.h"
#include "kst/libkst.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using host::LinkState;
using host::publishLinkState;
using Events = std::vector<uint32_t>;

struct Client : Inbox<uint32_t> {
    static void callback(void* client, md_status_event* event)
    {
        auto& self = *static_cast<Client*>(client);
        if (const auto action = std::exchange(self.onEvent, nullptr)) {
            action();
        }
        self.add(event->event);
    }

    std::function<void()> onEvent; ///< runs inside the next callback
};

TEST(Kst, tellsEachClientThePresentStateAndThenEveryChange)
{
    Client early;
    Client late;
    EXPECT_LT(libkst_md_event_register(Client::callback, &early), 0) << "not prepared";
    publishLinkState(LinkState::Lost);
    publishLinkState(LinkState::Unknown);
    ASSERT_TRUE(libkst_init() == 0 && libkst_init() == 0);
    EXPECT_LT(libkst_md_event_register(nullptr, &early), 0);
    ASSERT_EQ(libkst_md_event_register(Client::callback, &early), 0);
    publishLinkState(LinkState::Up);
    publishLinkState(LinkState::Up);
    publishLinkState(LinkState::Lost);
    EXPECT_EQ(early.waitFor(2), (Events{1, 10}));
    early.onEvent = [&] { libkst_md_event_register(Client::callback, &late); };
    publishLinkState(LinkState::Up);
    EXPECT_EQ(late.waitFor(1), Events{1});
    publishLinkState(LinkState::Unknown);
    publishLinkState(LinkState::Lost);
    EXPECT_EQ(late.waitFor(2), (Events{1, 10}));
    EXPECT_EQ(early.waitFor(4), (Events{1, 10, 1, 10}));

    late.onEvent = libkst_deinit;
    publishLinkState(LinkState::Up);
    EXPECT_EQ(late.waitFor(3), (Events{1, 10, 1}));
    EXPECT_LT(libkst_md_event_register(Client::callback, &late), 0) << "closed by the callback";
    ASSERT_EQ(libkst_init(), 0);
    EXPECT_EQ(libkst_md_event_register(Client::callback, &late), 0);
    EXPECT_EQ(late.waitFor(4).back(), 1u);
    libkst_deinit();
    publishLinkState(LinkState::Lost);
    EXPECT_EQ(late.waitFor(0).size(), 4u);
}

} // namespace
