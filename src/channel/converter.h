/// The frame around every converter of an indication.
#pragma once

#include "channel/vorn_view.h"
#include "radio_apis/events.h"

/// Builds a zeroed record, has `fill(in, record)` read the message into it, and calls the event callback
/// once. Nothing happens without a message or a callback.
template <typename Record, typename Fill>
void deliverEvent(RADIO_EVENT_TYPE event, void* indication, void* userData, RadioEventCallback callback,
                  Fill fill)
{
    if (indication == nullptr || callback == nullptr) {
        return;
    }
    Record record{};
    fill(VornView(static_cast<vorn_msg_t*>(indication)), record);
    callback(event, userData, &record, sizeof record);
}
