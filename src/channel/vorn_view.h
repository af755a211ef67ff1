/// Reading a message of the modem.
#pragma once

#include "vorn/vorn_msg.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

/// Copies what `from` holds, from byte `offset` on, to the front of `to`, as far as both reach.
void copyBytes(std::span<const uint8_t> from, size_t offset, std::span<uint8_t> to);

/// The number at byte `offset`, little-endian; what lies past the end counts as zero.
template <std::integral Number>
Number numberAt(std::span<const uint8_t> bytes, size_t offset)
{
    Number number = 0;
    if (sizeof number <= bytes.size() && offset <= bytes.size() - sizeof number) {
        std::memcpy(&number, bytes.data() + offset, sizeof number); // one load: hundreds are read of a report
    } else {
        copyBytes(bytes, offset, {reinterpret_cast<uint8_t*>(&number), sizeof number});
    }
    return number;
}

/// Reads a message where it lies, without owning it. Whatever the modem sent - missing fields, fields shorter
/// than their type, counts that lie - a read stays inside the message: bytes that are not there are zero.
class VornView {
public:
    explicit VornView(const vorn_msg_t* message) : mMessage(const_cast<vorn_msg_t*>(message)) {}

    vorn_msg_t* getData() const { return mMessage; }

    /// The modem's result code: field 0, or kNoResult without a message or without that field.
    uint32_t getResult() const { return getVornUint32Val(0, kNoResult); }
    static constexpr uint32_t kNoResult = 2;

    /// Header fields; 0 without a message.
    uint16_t getVornMsgId() const;
    uint16_t getVornMsgTxId() const;
    uint8_t getVornSlotId() const; ///< as in the header, one-hot
    int getSlotId() const;         ///< converted by changeToSlotId

    /// A field's bytes and their number; null and 0 when it is absent.
    const uint8_t* getVornVal(uint16_t tag, uint16_t* length) const;
    std::span<const uint8_t> bytes(uint16_t tag) const;

    /// A field as a C string; null when it is absent, or does not end within its length.
    const char* getVornStr(uint16_t tag) const;

    /// A field's first bytes as a number; `fallback` when it is absent.
    int8_t getVornInt8Val(uint16_t tag, int8_t fallback) const { return number(bytes(tag), fallback); }
    int16_t getVornInt16Val(uint16_t tag, int16_t fallback) const { return number(bytes(tag), fallback); }
    int32_t getVornInt32Val(uint16_t tag, int32_t fallback) const { return number(bytes(tag), fallback); }
    uint8_t getVornUint8Val(uint16_t tag, uint8_t fallback) const { return number(bytes(tag), fallback); }
    uint16_t getVornUint16Val(uint16_t tag, uint16_t fallback) const { return number(bytes(tag), fallback); }
    uint32_t getVornUint32Val(uint16_t tag, uint32_t fallback) const { return number(bytes(tag), fallback); }

    /// The number of elements of an array field, and an element's bytes; as the field operations above.
    uint16_t getVornArrayTlvNum(uint16_t tag) const;
    const uint8_t* getVornIdxVal(uint16_t tag, uint16_t index, uint16_t* length) const;
    std::span<const uint8_t> elementBytes(uint16_t tag, uint16_t index) const;
    int8_t getVornInt8IdxVal(uint16_t tag, uint16_t index, int8_t fallback) const
    {
        return number(elementBytes(tag, index), fallback);
    }
    int16_t getVornInt16IdxVal(uint16_t tag, uint16_t index, int16_t fallback) const
    {
        return number(elementBytes(tag, index), fallback);
    }
    int32_t getVornInt32IdxVal(uint16_t tag, uint16_t index, int32_t fallback) const
    {
        return number(elementBytes(tag, index), fallback);
    }
    uint8_t getVornUint8IdxVal(uint16_t tag, uint16_t index, uint8_t fallback) const
    {
        return number(elementBytes(tag, index), fallback);
    }
    uint16_t getVornUint16IdxVal(uint16_t tag, uint16_t index, uint16_t fallback) const
    {
        return number(elementBytes(tag, index), fallback);
    }
    uint32_t getVornUint32IdxVal(uint16_t tag, uint16_t index, uint32_t fallback) const
    {
        return number(elementBytes(tag, index), fallback);
    }

protected:
    vorn_msg_t* mMessage;

private:
    template <std::integral Number>
    static Number number(std::span<const uint8_t> bytes, Number fallback)
    {
        return bytes.data() == nullptr ? fallback : numberAt<Number>(bytes, 0);
    }
};
