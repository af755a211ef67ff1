/// The frame around every converter of an indication.
#pragma once

#include "channel/vorn_view.h"
#include "radio_apis/events.h"

#include <cstring>

/// Has `write(in, record)` write the whole of a record from the message, and calls the event callback once.
/// Nothing happens without a message or a callback.
template <typename Record, typename Write>
void deliverWrittenEvent(RADIO_EVENT_TYPE event, void* indication, void* userData,
                         RadioEventCallback callback, Write write)
{
    if (indication == nullptr || callback == nullptr) {
        return;
    }
    Record record;
    write(VornView(static_cast<vorn_msg_t*>(indication)), record);
    callback(event, userData, &record, sizeof record);
}

/// The same with a record that is all zero but for what `fill(in, record)` fills.
template <typename Record, typename Fill>
void deliverEvent(RADIO_EVENT_TYPE event, void* indication, void* userData, RadioEventCallback callback,
                  Fill fill)
{
    deliverWrittenEvent<Record>(event, indication, userData, callback, [&](const VornView& in, Record& out) {
        std::memset(static_cast<void*>(&out), 0, sizeof out);
        fill(in, out);
    });
}
