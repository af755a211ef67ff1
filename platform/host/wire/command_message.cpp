#include "host/wire/command_message.h"

#include <algorithm>
#include <cstring>

namespace host {
namespace {

constexpr uint16_t kNumber = 1;
constexpr uint16_t kText = 2; ///< an array, since a field holds no more than 65535 bytes
constexpr size_t kPiece = UINT16_MAX;

} // namespace

MessagePtr toMessage(const CommandMessage& command)
{
    MessagePtr message(vorn_msg_init(0, 0));
    const size_t pieces = (command.text.size() + kPiece - 1) / kPiece;
    bool fits = message && pieces <= UINT16_MAX &&
                vorn_msg_add_tlv(message.get(), kNumber, sizeof command.number, &command.number) == 0 &&
                vorn_msg_add_array(message.get(), kText, static_cast<uint16_t>(pieces)) == 0;
    for (size_t i = 0; i < pieces && fits; ++i) {
        const std::string_view piece = std::string_view(command.text).substr(i * kPiece, kPiece);
        fits = vorn_msg_add_idx(message.get(), kText, static_cast<uint16_t>(i),
                                static_cast<uint16_t>(piece.size()), piece.data()) == 0;
    }
    return fits ? std::move(message) : nullptr;
}

CommandMessage commandFrom(const vorn_msg_t& message)
{
    CommandMessage command;
    uint16_t length = 0;
    if (const void* number = vorn_msg_get_val_ptr(&message, kNumber, &length)) {
        std::memcpy(&command.number, number, std::min<size_t>(length, sizeof command.number));
    }
    const uint16_t pieces = vorn_msg_get_tlv_num(&message, kText);
    for (uint16_t i = 0; i < pieces; ++i) {
        if (const void* piece = vorn_msg_get_idx_ptr(&message, kText, i, &length)) {
            command.text.append(static_cast<const char*>(piece), length);
        }
    }
    return command;
}

} // namespace host
