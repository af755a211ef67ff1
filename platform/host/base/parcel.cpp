#include "mindroid/parcel.h"

#include "mindroid/exception.h"

#include <algorithm>
#include <limits>
#include <string>

namespace mindroid {

void Parcel::grow(size_t size)
{
    const auto written = static_cast<size_t>(mEnd - mBegin);
    const auto read = mPosition - mBegin;
    const size_t capacity = std::max(static_cast<size_t>(mLimit - mBegin) * 2, written + size);
    auto larger = std::make_unique_for_overwrite<uint8_t[]>(capacity);
    std::copy_n(mBegin, written, larger.get());
    mHeap = std::move(larger);
    mBegin = mHeap.get();
    mEnd = mBegin + written;
    mLimit = mBegin + capacity;
    mPosition = mBegin + read;
}

void Parcel::checkNext(Kind kind) const
{
    if (atEnd()) {
        throw ParcelException("no value left in the parcel");
    }
    const uint8_t next = *mPosition;
    if (next != static_cast<uint8_t>(kind)) {
        throw ParcelException("the parcel's next value is of kind " + std::to_string(next) + ", not " +
                              std::to_string(static_cast<int>(kind)));
    }
}

void Parcel::putString(std::string_view value)
{
    if (value.size() > std::numeric_limits<uint32_t>::max()) {
        throw ParcelException("a string too long for a parcel");
    }
    put(Kind::String, static_cast<uint32_t>(value.size()));
    uint8_t* place = append(value.size());
    if (!value.empty()) {
        std::memcpy(place, value.data(), value.size());
    }
}

std::string_view Parcel::getString()
{
    const auto length = get<uint32_t>(Kind::String);
    const auto* text = reinterpret_cast<const char*>(mPosition);
    mPosition += length;
    return {text, length};
}

} // namespace mindroid
