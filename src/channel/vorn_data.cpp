#include "channel/vorn_data.h"

#include "channel/slot_id.h"

#include <algorithm>
#include <cstring>
#include <limits>

using mindroid::sp;

namespace {

constexpr int kAddRefused = -1;
constexpr size_t kMaxFieldLength = std::numeric_limits<uint16_t>::max();

} // namespace

VornData::VornData(vorn_msg_t* message, bool copy) : VornView(copy ? vorn_msg_copy_hdr(message) : message)
{
    if (copy && mMessage != nullptr) {
        note(vorn_msg_copy_tlv(message, mMessage));
    }
}

VornData::VornData(uint16_t msgId, int instance)
    : VornView(vorn_msg_init(msgId, changeToVornSlotId(instance)))
{}

VornData::VornData(uint16_t msgId, int instance, uint16_t txId)
    : VornView(vorn_msg_init_with_txid(msgId, changeToVornSlotId(instance), txId))
{}

VornData::~VornData()
{
    if (mMessage != nullptr) {
        vorn_msg_deinit(mMessage);
    }
}

sp<VornData> VornData::obtainVornData(uint16_t msgId, int instance)
{
    return mindroid::make<VornData>(msgId, instance);
}

sp<VornData> VornData::obtainVornData(uint16_t msgId, int instance, uint16_t txId)
{
    return mindroid::make<VornData>(msgId, instance, txId);
}

sp<VornData> VornData::obtainVornData(vorn_msg_t* message, bool copy)
{
    return mindroid::make<VornData>(message, copy);
}

int VornData::addVornTlv(uint16_t tag, uint16_t length, const void* value)
{
    return note(vorn_msg_add_tlv(mMessage, tag, length, value));
}

int VornData::addVornTlvStr(uint16_t tag, const char* text)
{
    const size_t length = std::strlen(text) + 1;
    return length > kMaxFieldLength ? note(kAddRefused)
                                    : addVornTlv(tag, static_cast<uint16_t>(length), text);
}

template <typename Element>
int VornData::addElements(uint16_t tag, uint16_t count, Element element)
{
    int result = note(vorn_msg_add_array(mMessage, tag, count));
    for (uint16_t i = 0; i < count; ++i) {
        const std::span<const uint8_t> bytes = element(i);
        const auto length = static_cast<uint16_t>(bytes.size());
        result =
            note(bytes.size() > kMaxFieldLength ? kAddRefused
                                                : vorn_msg_add_idx(mMessage, tag, i, length, bytes.data()));
    }
    return result;
}

int VornData::addVornTlvArray(uint16_t tag, uint16_t count, const void* const* elements, uint16_t length)
{
    return addElements(
        tag, count, [=](uint16_t i) { return std::span(static_cast<const uint8_t*>(elements[i]), length); });
}

int VornData::addVornTlvArrayStr(uint16_t tag, uint16_t count, const char* const* texts)
{
    return addElements(tag, count, [=](uint16_t i) {
        return std::span(reinterpret_cast<const uint8_t*>(texts[i]), std::strlen(texts[i]));
    });
}

namespace {

template <typename Number>
auto elementsOf(const Number* values)
{
    return
        [=](uint16_t i) { return std::span(reinterpret_cast<const uint8_t*>(values + i), sizeof(Number)); };
}

} // namespace

int VornData::addVornTlvArrayInt8(uint16_t tag, uint16_t count, const int8_t* values)
{
    return addElements(tag, count, elementsOf(values));
}

int VornData::addVornTlvArrayUint8(uint16_t tag, uint16_t count, const uint8_t* values)
{
    return addElements(tag, count, elementsOf(values));
}

int VornData::addVornTlvArrayInt16(uint16_t tag, uint16_t count, const int16_t* values)
{
    return addElements(tag, count, elementsOf(values));
}

int VornData::addVornTlvArrayUint16(uint16_t tag, uint16_t count, const uint16_t* values)
{
    return addElements(tag, count, elementsOf(values));
}

int VornData::addVornTlvArrayInt32(uint16_t tag, uint16_t count, const int32_t* values)
{
    return addElements(tag, count, elementsOf(values));
}

int VornData::addVornTlvArrayUint32(uint16_t tag, uint16_t count, const uint32_t* values)
{
    return addElements(tag, count, elementsOf(values));
}
