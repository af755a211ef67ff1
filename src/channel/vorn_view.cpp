#include "channel/vorn_view.h"

#include "channel/slot_id.h"

#include <algorithm>
#include <bit>
#include <cstring>

static_assert(std::endian::native == std::endian::little, "fields are little-endian and copied as they are");

void copyBytes(std::span<const uint8_t> from, size_t offset, std::span<uint8_t> to)
{
    if (offset < from.size()) {
        const size_t count = std::min(from.size() - offset, to.size());
        if (count != 0) {
            std::memcpy(to.data(), from.data() + offset, count);
        }
    }
}

uint16_t VornView::getVornMsgId() const
{
    return mMessage == nullptr ? uint16_t{0} : mMessage->hdr.msg_id;
}

uint16_t VornView::getVornMsgTxId() const
{
    return mMessage == nullptr ? uint16_t{0} : mMessage->hdr.tx_id;
}

uint8_t VornView::getVornSlotId() const
{
    return mMessage == nullptr ? uint8_t{0} : mMessage->hdr.slot_id;
}

int VornView::getSlotId() const
{
    return changeToSlotId(getVornSlotId());
}

const uint8_t* VornView::getVornVal(uint16_t tag, uint16_t* length) const
{
    *length = 0;
    if (mMessage == nullptr) {
        return nullptr;
    }
    return static_cast<const uint8_t*>(vorn_msg_get_val_ptr(mMessage, tag, length));
}

std::span<const uint8_t> VornView::bytes(uint16_t tag) const
{
    uint16_t length = 0;
    const uint8_t* value = getVornVal(tag, &length);
    return {value, length};
}

const char* VornView::getVornStr(uint16_t tag) const
{
    const std::span<const uint8_t> field = bytes(tag);
    const bool ends = !field.empty() && std::memchr(field.data(), '\0', field.size()) != nullptr;
    return ends ? vorn_msg_get_val_str(mMessage, tag) : nullptr;
}

uint16_t VornView::getVornArrayTlvNum(uint16_t tag) const
{
    return mMessage == nullptr ? uint16_t{0} : vorn_msg_get_tlv_num(mMessage, tag);
}

const uint8_t* VornView::getVornIdxVal(uint16_t tag, uint16_t index, uint16_t* length) const
{
    *length = 0;
    if (mMessage == nullptr) {
        return nullptr;
    }
    return static_cast<const uint8_t*>(vorn_msg_get_idx_ptr(mMessage, tag, index, length));
}

std::span<const uint8_t> VornView::elementBytes(uint16_t tag, uint16_t index) const
{
    uint16_t length = 0;
    const uint8_t* value = getVornIdxVal(tag, index, &length);
    return {value, length};
}
