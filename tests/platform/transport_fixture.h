/// A transport over a modem that a test plays.
#pragma once

#include "inbox.h"
#include "transport.h"

#include "host/device.h"
#include "host/link_status.h"
#include "host/log_sink.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <functional>

using namespace std::chrono_literals;
using host::Clock;
using host::MessagePtr;

constexpr uint16_t kMessage = 0x3801;

/// An answer, or an indication when its transaction is 0.
inline MessagePtr messageOf(uint16_t transaction, uint32_t result = 0, uint8_t slot = 1,
                            uint16_t id = kMessage)
{
    MessagePtr message(vorn_msg_init_with_txid(id, slot, transaction));
    vorn_msg_add_tlv(message.get(), 0, sizeof result, &result);
    return message;
}

/// The modem's side of the link.
struct FakeModem {
    std::function<void(uint16_t transaction, host::LinkEvents& link)>
        behaviour;                ///< on a request; may be empty
    std::atomic<int> failures{0}; ///< so many times the link can't be opened
    host::LinkEvents* link = nullptr;
    Inbox<bool> attempts; ///< to open the link
    Inbox<bool> resumed;
    Inbox<uint16_t> requests;
};

struct FakeLink : host::Link {
    FakeLink(FakeModem& itsModem, host::LinkEvents& events) : modem(itsModem) { modem.link = &events; }

    void open(std::chrono::milliseconds) override
    {
        modem.attempts.add(true);
        if (const int failure = modem.failures--; failure > 0) {
            failure % 2 == 0 ? throw host::LinkError("the modem is away") : throw std::bad_alloc();
        }
    }
    void resume() override { modem.resumed.add(true); }
    void close() override {}
    void send(const vorn_msg_t& request) override
    {
        if (modem.behaviour) {
            modem.behaviour(request.hdr.tx_id, *modem.link);
        }
        modem.requests.add(request.hdr.tx_id);
    }
    void control(const std::string& command, host::ControlAnswer answer) override
    {
        answer.set_value("did " + command);
    }

    FakeModem& modem;
};

/// Where the answers of requests go; the callback finds it by its user pointer.
struct Answers : Inbox<uint32_t> {
    std::function<void()> onAnswer; ///< runs inside the callback

    static void callback(vorn_msg_t* answer, void* user)
    {
        uint32_t result = 0;
        std::memcpy(&result, vorn_msg_get_val_ptr(answer, 0, nullptr), sizeof result);
        auto& self = *static_cast<Answers*>(user);
        if (self.onAnswer) {
            self.onAnswer();
        }
        self.add(result);
    }
};

class TransportTest : public testing::Test {
protected:
    TransportTest()
    {
        host::setLogSink([this](const host::LogLine& line) { warnings.add(line.text); });
        host::observeLinkState([this](host::LinkState state) { states.add(state); });
        host::setProperty("host.vorn.timeout_ms", "60000");
        Clock::freeze();
    }
    ~TransportTest() override
    {
        transport.close();
        host::observeLinkState(nullptr);
        host::setLogSink(nullptr);
    }

    bool open()
    {
        return transport.open([this](auto& events) { return std::make_unique<FakeLink>(modem, events); });
    }

    bool send(Answers& user) { return transport.send(*messageOf(0), Answers::callback, &user); }
    bool listen(Answers& user) { return transport.registerIndication(1, kMessage, Answers::callback, &user); }
    static void answer(uint16_t transaction, host::LinkEvents& link)
    {
        link.received(messageOf(transaction));
    }

    FakeModem modem;
    Inbox<std::string> warnings;
    Inbox<host::LinkState> states;
    Answers answers;
    host::Transport transport;
};
