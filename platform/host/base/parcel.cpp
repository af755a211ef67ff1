#include "mindroid/parcel.h"
#include "mindroid/exception.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>

namespace mindroid {
namespace {

/// Stands in front of every value, so that reading another kind is noticed.
enum Kind : uint8_t { kBoolean = 1, kByte, kInt, kString };

/// Room for an ordinary answer at once.
constexpr size_t kFirstRoom = 256;

} // namespace

/// Room for `size` more bytes. The buffer is larger than what was written: to grow it value by value would
/// cost more than the values do.
uint8_t* Parcel::append(size_t size)
{
    if (mData.size() - mEnd < size) {
        mData.resize(std::max({kFirstRoom, mData.size() * 2, mEnd + size}));
    }
    uint8_t* place = mData.data() + mEnd;
    mEnd += size;
    return place;
}

/// The bytes of the next value, which must be of this kind.
const uint8_t* Parcel::peek(uint8_t kind) const
{
    if (atEnd()) {
        throw ParcelException("no value left in the parcel");
    }
    const uint8_t* place = mData.data() + mPosition;
    if (*place != kind) {
        throw ParcelException("the parcel's next value is of kind " + std::to_string(*place) + ", not " +
                              std::to_string(kind));
    }
    return place + 1;
}

void Parcel::putBoolean(bool value)
{
    uint8_t* place = append(2);
    place[0] = kBoolean;
    place[1] = value ? 1 : 0;
}

void Parcel::putByte(int8_t value)
{
    uint8_t* place = append(2);
    place[0] = kByte;
    place[1] = static_cast<uint8_t>(value);
}

void Parcel::putInt(int32_t value)
{
    uint8_t* place = append(1 + sizeof value);
    place[0] = kInt;
    std::memcpy(place + 1, &value, sizeof value);
}

void Parcel::putString(std::string_view value)
{
    if (value.size() > std::numeric_limits<uint32_t>::max()) {
        throw ParcelException("a string too long for a parcel");
    }
    const auto length = static_cast<uint32_t>(value.size());
    uint8_t* place = append(1 + sizeof length + value.size());
    place[0] = kString;
    std::memcpy(place + 1, &length, sizeof length);
    std::copy(value.begin(), value.end(), place + 1 + sizeof length);
}

bool Parcel::getBoolean()
{
    const bool value = *peek(kBoolean) != 0;
    mPosition += 2;
    return value;
}

int8_t Parcel::getByte()
{
    const auto value = static_cast<int8_t>(*peek(kByte));
    mPosition += 2;
    return value;
}

int32_t Parcel::getInt()
{
    int32_t value = 0;
    std::memcpy(&value, peek(kInt), sizeof value);
    mPosition += 1 + sizeof value;
    return value;
}

std::string_view Parcel::getString()
{
    uint32_t length = 0;
    const uint8_t* place = peek(kString);
    std::memcpy(&length, place, sizeof length);
    mPosition += 1 + sizeof length + length;
    return {reinterpret_cast<const char*>(place) + sizeof length, length};
}

} // namespace mindroid
