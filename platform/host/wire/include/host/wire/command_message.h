/// Commands to the simulation and their answers, among the messages to and from the modem.
#pragma once

#include "host/wire/message.h"

#include <string>

namespace host {

/// One JSON text and the number by which an answer finds its command.
struct CommandMessage {
    uint32_t number = 0;
    std::string text;
};

/// Requests have a transaction and indications have a slot; a command has neither.
inline bool isCommand(const vorn_msg_t& message)
{
    return message.hdr.tx_id == 0 && message.hdr.slot_id == 0;
}

/// Null when the text does not fit into a message.
MessagePtr toMessage(const CommandMessage& command);

/// What is not there reads as 0, or no text.
CommandMessage commandFrom(const vorn_msg_t& message);

} // namespace host
