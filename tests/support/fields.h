/// Fields of messages, written down in tables.
#pragma once

#include "host/wire/message.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <numeric>
#include <string_view>
#include <vector>

namespace test {

/// Adds itself to a message.
using Field = std::function<void(vorn_msg_t*)>;
using Fields = std::vector<Field>;
using Bytes = std::vector<uint8_t>;

template <typename Number>
Field numeric(uint16_t tag, Number value)
{
    return [=](vorn_msg_t* message) { vorn_msg_add_tlv(message, tag, sizeof value, &value); };
}

inline constexpr auto int8 = numeric<int8_t>;
inline constexpr auto uint8 = numeric<uint8_t>;
inline constexpr auto int16 = numeric<int16_t>;
inline constexpr auto uint16 = numeric<uint16_t>;
inline constexpr auto int32 = numeric<int32_t>;
inline constexpr auto uint32 = numeric<uint32_t>;

/// Fields of 32 bits each whose ids follow one another.
inline Fields int32s(uint16_t firstTag, const std::vector<int32_t>& values)
{
    Fields fields;
    for (const int32_t value : values) {
        fields.push_back(int32(firstTag++, value));
    }
    return fields;
}

/// The modem's result.
inline Field result(uint32_t value)
{
    return uint32(0, value);
}

inline Field raw(uint16_t tag, Bytes bytes)
{
    return [=](vorn_msg_t* message) {
        vorn_msg_add_tlv(message, tag, static_cast<uint16_t>(bytes.size()), bytes.data());
    };
}

inline Field text(uint16_t tag, std::string_view value)
{
    Bytes bytes(value.begin(), value.end());
    bytes.push_back(0);
    return raw(tag, std::move(bytes));
}

/// An array field of elements given as bytes.
inline Field array(uint16_t tag, std::vector<Bytes> elements)
{
    return [=](vorn_msg_t* message) {
        vorn_msg_add_array(message, tag, static_cast<uint16_t>(elements.size()));
        for (uint16_t i = 0; i < elements.size(); ++i) {
            const Bytes& bytes = elements[i];
            vorn_msg_add_idx(message, tag, i, static_cast<uint16_t>(bytes.size()), bytes.data());
        }
    };
}

/// The bytes of plain values, one after the other, little-endian.
template <typename... Values>
Bytes packed(Values... values)
{
    Bytes bytes((sizeof(Values) + ... + 0));
    uint8_t* to = bytes.data();
    ((std::memcpy(to, &values, sizeof values), to += sizeof values), ...);
    return bytes;
}

/// Adds bytes at the end.
inline void append(Bytes& to, const Bytes& more)
{
    to.insert(to.end(), more.begin(), more.end());
}

/// Bytes or fields one after the other.
template <typename Parts = Bytes>
Parts joined(std::initializer_list<Parts> parts)
{
    Parts all;
    for (const Parts& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

template <typename Number>
Field numbers(uint16_t tag, std::vector<Number> values)
{
    std::vector<Bytes> elements;
    for (const Number value : values) {
        elements.push_back(packed(value));
    }
    return array(tag, std::move(elements));
}

/// 1, 2, 3, ... up to `size` bytes.
inline Bytes counting(size_t size, uint8_t first = 1)
{
    Bytes bytes(size);
    std::iota(bytes.begin(), bytes.end(), first);
    return bytes;
}

/// Bytes that count on from record to record.
inline std::vector<Bytes> countingRecords(size_t size, size_t count)
{
    std::vector<Bytes> records;
    for (size_t i = 0; i < count; ++i) {
        records.push_back(counting(size, static_cast<uint8_t>(i * size + 1)));
    }
    return records;
}

/// A record that is made of these bytes.
template <typename Record>
Record recordOf(const Bytes& bytes)
{
    Record record{};
    std::memcpy(static_cast<void*>(&record), bytes.data(), std::min(bytes.size(), sizeof record));
    return record;
}

inline host::MessagePtr message(uint16_t id, uint8_t slotBit, uint16_t transaction, const Fields& fields)
{
    host::MessagePtr message(vorn_msg_init_with_txid(id, slotBit, transaction));
    for (const Field& field : fields) {
        field(message.get());
    }
    return message;
}

/// Everything that a message says, in order: two messages are equal when their frames are.
inline Bytes frame(const vorn_msg_t& message)
{
    Bytes frame;
    host::Message::of(message).encode(frame);
    return frame;
}

} // namespace test
