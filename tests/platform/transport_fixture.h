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
#include <map>

using namespace std::chrono_literals;
using host::Clock;
using host::MessagePtr;

inline MessagePtr answerTo(uint16_t transaction, uint32_t result = 0)
{
    MessagePtr answer(vorn_msg_init_with_txid(0x3801, 1, transaction));
    vorn_msg_add_tlv(answer.get(), 0, sizeof result, &result);
    return answer;
}

/// The modem's side of the link.
struct FakeModem {
    using Behaviour = std::function<void(uint16_t transaction, host::LinkEvents& modem)>;

    Behaviour behaviour;          ///< what it does on a request; nothing when empty
    std::atomic<int> failures{0}; ///< so many times the link can't be opened
    host::LinkEvents* events = nullptr;
    Inbox<uint16_t> requests;
};

class FakeLink : public host::Link {
public:
    FakeLink(FakeModem& modem, host::LinkEvents& events) : mModem(modem) { mModem.events = &events; }

    void open() override
    {
        if (mModem.failures > 0) {
            --mModem.failures;
            throw host::LinkError("the modem is away");
        }
    }
    void close() override {}
    void send(const vorn_msg_t& request) override
    {
        if (mModem.behaviour) {
            mModem.behaviour(request.hdr.tx_id, *mModem.events);
        }
        mModem.requests.add(request.hdr.tx_id);
    }
    std::optional<std::string> control(const std::string& command) override { return "did " + command; }

private:
    FakeModem& mModem;
};

/// Where the answers of requests go; the callback finds it by its user pointer.
struct Answers : Inbox<uint32_t> {
    std::function<void()> onAnswer; ///< runs inside the callback
    uint16_t transaction = 0;       ///< of the last request

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
        host::setLogSink([this](const host::LogLine& line) {
            if (line.priority >= 5) {
                warnings.add(line.text);
            }
        });
        host::observeLinkState([this](host::LinkState state) { states.add(state); });
        host::setProperty("host.vorn.timeout_ms", "60000");
        Clock::freeze();
    }
    ~TransportTest() override
    {
        transport.close();
        host::observeLinkState(nullptr);
        host::setLogSink(nullptr);
        Clock::thaw();
    }

    bool open()
    {
        return transport.open(
            [this](host::LinkEvents& events) { return std::make_unique<FakeLink>(modem, events); });
    }

    bool send(Answers& user)
    {
        const MessagePtr request(vorn_msg_init(0x3801, 1));
        const bool accepted = transport.send(*request, Answers::callback, &user);
        user.transaction = request->hdr.tx_id;
        return accepted;
    }

    static void answerRequest(uint16_t transaction, host::LinkEvents& link)
    {
        link.received(answerTo(transaction));
    }

    FakeModem modem;
    Inbox<std::string> warnings;
    Inbox<host::LinkState> states;
    Answers answers;
    host::Transport transport;
};
