// The message functions of the device boundary.
#include "host/wire/message.h"

#include <cstring>
#include <new>

using host::Message;

namespace {

int toResult(bool done)
{
    return done ? 0 : -1;
}

std::span<const uint8_t> bytesOf(const void* value, uint16_t length)
{
    return {static_cast<const uint8_t*>(value), length};
}

void* toPointer(std::span<uint8_t> bytes, uint16_t* length)
{
    if (length != nullptr) {
        *length = static_cast<uint16_t>(bytes.size());
    }
    return bytes.data();
}

} // namespace

vorn_msg_t* vorn_msg_init(uint16_t msg_id, uint8_t slot_id)
{
    return vorn_msg_init_with_txid(msg_id, slot_id, 0);
}

vorn_msg_t* vorn_msg_init_with_txid(uint16_t msg_id, uint8_t slot_id, uint16_t tx_id)
{
    return new (std::nothrow) Message({msg_id, tx_id, slot_id});
}

void vorn_msg_deinit(vorn_msg_t* msg)
{
    if (msg != nullptr) {
        delete &Message::of(*msg);
    }
}

vorn_msg_t* vorn_msg_copy_hdr(const vorn_msg_t* msg)
{
    return msg != nullptr ? new (std::nothrow) Message(msg->hdr) : nullptr;
}

int vorn_msg_copy_tlv(const vorn_msg_t* from, vorn_msg_t* to)
{
    return toResult(from != nullptr && to != nullptr && Message::of(*to).appendFieldsOf(Message::of(*from)));
}

int vorn_msg_add_tlv(vorn_msg_t* msg, uint16_t tag, uint16_t len, const void* val)
{
    return toResult(msg != nullptr && (val != nullptr || len == 0) &&
                    Message::of(*msg).addField(tag, bytesOf(val, len)));
}

int vorn_msg_add_array(vorn_msg_t* msg, uint16_t tag, uint16_t count)
{
    return toResult(msg != nullptr && Message::of(*msg).addArray(tag, count));
}

int vorn_msg_add_idx(vorn_msg_t* msg, uint16_t tag, uint16_t idx, uint16_t len, const void* val)
{
    return toResult(msg != nullptr && (val != nullptr || len == 0) &&
                    Message::of(*msg).addElement(tag, idx, bytesOf(val, len)));
}

void* vorn_msg_get_val_ptr(const vorn_msg_t* msg, uint16_t tag, uint16_t* len)
{
    return toPointer(msg != nullptr ? Message::of(*msg).field(tag) : std::span<uint8_t>(), len);
}

char* vorn_msg_get_val_str(const vorn_msg_t* msg, uint16_t tag)
{
    uint16_t length = 0;
    void* value = vorn_msg_get_val_ptr(msg, tag, &length);
    const bool isString = value != nullptr && std::memchr(value, '\0', length) != nullptr;
    return isString ? static_cast<char*>(value) : nullptr;
}

uint16_t vorn_msg_get_tlv_num(const vorn_msg_t* msg, uint16_t tag)
{
    return msg != nullptr ? Message::of(*msg).elementCount(tag) : uint16_t{0};
}

void* vorn_msg_get_idx_ptr(const vorn_msg_t* msg, uint16_t tag, uint16_t idx, uint16_t* len)
{
    return toPointer(msg != nullptr ? Message::of(*msg).element(tag, idx) : std::span<uint8_t>(), len);
}
