/// A message library that sends nothing: the test sees what would be sent and answers it itself.
#pragma once

#include "support/fields.h"
#include "vorn/vorn_msg.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace test {

struct FakeModem {
    /// A request on its way, as it was when it was sent.
    struct Sent {
        host::MessagePtr message;
        vorn_msg_cb callback;
        void* user;
    };

    static FakeModem& instance();

    /// Calls the callback of the oldest request that was not answered with a response of these fields.
    void answer(const Fields& fields);
    void answerWith(vorn_msg_t* response);

    /// From now on each request is answered so on a thread of its own, before the call that sends it returns: whoever
    /// looks at what was handed over after that looks at what is gone.
    void answerBeforeSendReturns(const Fields& fields);

    /// Delivers an indication to whoever registered it; false when nobody did.
    bool indicate(uint16_t id, uint8_t slotBit, const Fields& fields);

    std::vector<Sent> sent;
    std::function<void()> onSend;     ///< runs while a request is being sent
    int sendResult = 0;               ///< what the next requests are accepted with
    int initResult = 0;               ///< of vorn_init_debug
    std::vector<std::string> journal; ///< every other call, as "register 1 7e03"
    std::function<bool(int)> refuses; ///< which message ids can't be registered or deregistered

    struct Registration {
        vorn_msg_cb callback;
        void* user;
    };
    std::map<std::pair<uint8_t, uint16_t>, Registration> registrations;
};

} // namespace test
