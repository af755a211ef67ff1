#include "message.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace host {
namespace {

/// An array's record: header, count, and for each element where it stands, counted from the record's begin
/// (so that a copied record needs no repair), 0 for one that was never set. An element: its length, its
/// bytes.
constexpr size_t kCountSize = sizeof(uint16_t);
constexpr size_t kOffsetSize = sizeof(uint32_t);
constexpr size_t kLengthSize = sizeof(uint16_t);

template <typename T>
T load(const uint8_t* from)
{
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

template <typename T>
void store(uint8_t* to, T value)
{
    std::memcpy(to, &value, sizeof value);
}

void copyBytes(uint8_t* to, std::span<const uint8_t> bytes)
{
    if (!bytes.empty()) {
        std::memcpy(to, bytes.data(), bytes.size());
    }
}

} // namespace

Message::Header Message::headerAt(size_t record) const
{
    return load<Header>(mData + record);
}

void Message::setHeader(size_t record, const Header& header)
{
    store(mData + record, header);
}

/// The first record with this tag, when it is of this kind.
std::optional<size_t> Message::find(uint16_t tag, Kind kind) const
{
    for (size_t record = 0; record < mSize;) {
        const Header header = headerAt(record);
        if (header.tag == tag && header.kind != Kind::StrayElement) {
            return header.kind == kind ? std::optional(record) : std::nullopt;
        }
        record += header.size;
    }
    return std::nullopt;
}

bool Message::grow(size_t needed)
{
    const size_t capacity = std::max(needed, std::min(mCapacity * 2, kMaxSize));
    std::unique_ptr<uint8_t[]> heap(new (std::nothrow) uint8_t[capacity]);
    if (!heap) {
        return false;
    }
    std::memcpy(heap.get(), mData, mSize);
    mOutgrown = std::move(mHeap);
    mHeap = std::move(heap);
    mData = mHeap.get();
    mCapacity = capacity;
    return true;
}

/// Room for `size` more bytes, or null.
uint8_t* Message::append(size_t size)
{
    const size_t needed = mSize + size;
    if (needed > kMaxSize || (needed > mCapacity && !grow(needed))) {
        return nullptr;
    }
    uint8_t* place = mData + mSize;
    mSize = needed;
    return place;
}

bool Message::addField(uint16_t tag, std::span<const uint8_t> value)
{
    const size_t record = mSize;
    const size_t size = sizeof(Header) + value.size();
    uint8_t* place = append(size);
    if (place == nullptr) {
        return false;
    }
    setHeader(record, {tag, Kind::Field, static_cast<uint32_t>(size)});
    copyBytes(place + sizeof(Header), value);
    mLast = record;
    return true;
}

bool Message::addArray(uint16_t tag, uint16_t count)
{
    const size_t record = mSize;
    const size_t size = sizeof(Header) + kCountSize + count * kOffsetSize;
    uint8_t* place = append(size);
    if (place == nullptr) {
        return false;
    }
    setHeader(record, {tag, Kind::Array, static_cast<uint32_t>(size)});
    store(place + sizeof(Header), count);
    std::memset(place + sizeof(Header) + kCountSize, 0, count * kOffsetSize);
    mLast = record;
    return true;
}

bool Message::appendFieldsOf(const Message& other)
{
    const size_t size = other.mSize; // of before, when a message is appended to itself
    const size_t last = mSize + other.mLast;
    uint8_t* place = append(size);
    if (place == nullptr) {
        return false;
    }
    if (size != 0) {
        std::memcpy(place, other.mData, size);
        mLast = last;
    }
    return true;
}

uint16_t Message::countAt(size_t array) const
{
    return load<uint16_t>(mData + array + sizeof(Header));
}

uint32_t Message::elementOffset(size_t array, uint16_t index) const
{
    return load<uint32_t>(mData + array + sizeof(Header) + kCountSize + index * kOffsetSize);
}

std::span<uint8_t> Message::elementAt(size_t array, uint16_t index) const
{
    if (index >= countAt(array) || elementOffset(array, index) == 0) {
        return {};
    }
    uint8_t* place = mData + array + elementOffset(array, index);
    return {place + kLengthSize, load<uint16_t>(place)};
}

bool Message::addElement(uint16_t tag, uint16_t index, std::span<const uint8_t> value)
{
    const std::optional<size_t> array = find(tag, Kind::Array);
    return array && addElementAt(*array, index, value);
}

/// An element of the last record becomes part of it; behind any other record it makes one of its own, which
/// only the array's offset leads to.
bool Message::addElementAt(size_t array, uint16_t index, std::span<const uint8_t> value)
{
    if (index >= countAt(array) || elementOffset(array, index) != 0) {
        return false;
    }
    const bool isStray = array != mLast;
    const size_t record = mSize;
    const size_t size = (isStray ? sizeof(Header) : 0) + kLengthSize + value.size();
    uint8_t* place = append(size);
    if (place == nullptr) {
        return false;
    }
    Header header = headerAt(array);
    if (isStray) {
        setHeader(record, {header.tag, Kind::StrayElement, static_cast<uint32_t>(size)});
        place += sizeof(Header);
        mLast = record;
    } else {
        header.size += static_cast<uint32_t>(size);
        setHeader(array, header);
    }
    store(place, static_cast<uint16_t>(value.size()));
    copyBytes(place + kLengthSize, value);
    store(mData + array + sizeof(Header) + kCountSize + index * kOffsetSize,
          static_cast<uint32_t>(place - (mData + array)));
    return true;
}

std::span<uint8_t> Message::field(uint16_t tag) const
{
    const std::optional<size_t> record = find(tag, Kind::Field);
    if (!record) {
        return {};
    }
    return {mData + *record + sizeof(Header), headerAt(*record).size - sizeof(Header)};
}

std::span<uint8_t> Message::element(uint16_t tag, uint16_t index) const
{
    const std::optional<size_t> array = find(tag, Kind::Array);
    return array ? elementAt(*array, index) : std::span<uint8_t>();
}

uint16_t Message::elementCount(uint16_t tag) const
{
    const std::optional<size_t> array = find(tag, Kind::Array);
    return array ? countAt(*array) : uint16_t{0};
}

MessagePtr copyOf(const vorn_msg_t& message)
{
    MessagePtr copy(vorn_msg_copy_hdr(&message));
    if (copy && !Message::of(*copy).appendFieldsOf(Message::of(message))) {
        copy.reset();
    }
    return copy;
}

} // namespace host
