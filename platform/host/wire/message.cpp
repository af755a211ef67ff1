#include "host/wire/message.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace host {
namespace {

/// An array's record: header, counts, slots, and the elements that were set before another record followed. A
/// slot: the index of its element and where that stands, counted from the record's begin (so that a copied
/// record needs no repair). The slots in use come first, in the order of their indexes. An element: its
/// length, its bytes.
constexpr size_t kOffsetSize = sizeof(uint32_t);
constexpr size_t kSlotSize = sizeof(uint16_t) + kOffsetSize;
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

bool Message::addArray(uint16_t tag, uint16_t count, uint16_t slots)
{
    const size_t record = mSize;
    const size_t size = sizeof(Header) + sizeof(Counts) + slots * kSlotSize;
    if (append(size) == nullptr) {
        return false;
    }
    setHeader(record, {tag, Kind::Array, static_cast<uint32_t>(size)});
    setCounts(record, {count, slots, 0});
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

Message::Counts Message::countsAt(size_t array) const
{
    return load<Counts>(mData + array + sizeof(Header));
}

void Message::setCounts(size_t array, const Counts& counts)
{
    store(mData + array + sizeof(Header), counts);
}

uint8_t* Message::slotAt(size_t array, size_t slot) const
{
    return mData + array + sizeof(Header) + sizeof(Counts) + slot * kSlotSize;
}

uint16_t Message::indexAt(size_t array, size_t slot) const
{
    return load<uint16_t>(slotAt(array, slot));
}

/// The slot in use that holds this index or the first one above; the number of those in use when there is
/// none. An array without gaps, as nearly every one is, needs no search.
size_t Message::findSlot(size_t array, uint16_t index) const
{
    const size_t used = countsAt(array).used;
    if (index < used && indexAt(array, index) == index) {
        return index;
    }
    if (used == 0 || indexAt(array, used - 1) < index) {
        return used;
    }
    size_t first = 0;
    size_t last = used - 1;
    while (first < last) {
        const size_t middle = (first + last) / 2;
        if (indexAt(array, middle) < index) {
            first = middle + 1;
        } else {
            last = middle;
        }
    }
    return first;
}

std::span<uint8_t> Message::elementIn(size_t array, size_t slot) const
{
    uint8_t* place = mData + array + load<uint32_t>(slotAt(array, slot) + sizeof(uint16_t));
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
    Counts counts = countsAt(array);
    const size_t slot = findSlot(array, index);
    const bool isSet = slot < counts.used && indexAt(array, slot) == index;
    if (index >= counts.elements || counts.used == counts.slots || isSet) {
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
    uint8_t* taken = slotAt(array, slot);
    std::memmove(taken + kSlotSize, taken, (counts.used - slot) * kSlotSize);
    store(taken, index);
    store(taken + sizeof index, static_cast<uint32_t>(place - (mData + array)));
    ++counts.used;
    setCounts(array, counts);
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
    if (!array) {
        return {};
    }
    const size_t slot = findSlot(*array, index);
    const bool isSet = slot < countsAt(*array).used && indexAt(*array, slot) == index;
    return isSet ? elementIn(*array, slot) : std::span<uint8_t>();
}

uint16_t Message::elementCount(uint16_t tag) const
{
    const std::optional<size_t> array = find(tag, Kind::Array);
    return array ? countsAt(*array).elements : uint16_t{0};
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
