/// A listener that keeps what it heard.
#pragma once

#include "radio_apis/events.h"
#include "support/fields.h"

namespace test {

/// The last event, and how many there were.
struct Event {
    int event = 0;
    Bytes record;
    int calls = 0;

    static void onEvent(RADIO_EVENT_TYPE event, void* user, void* data, int length)
    {
        auto& self = *static_cast<Event*>(user);
        const auto* bytes = static_cast<const uint8_t*>(data);
        self = {event, Bytes(bytes, bytes + length), self.calls + 1};
    }
};

} // namespace test
