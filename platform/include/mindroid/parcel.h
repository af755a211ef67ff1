/// A flat sequence of typed values, written once in order and then read in the same order.
#pragma once

#include "mindroid/object.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

namespace mindroid {

class Parcel : public Object {
public:
    Parcel() = default;
    Parcel(const Parcel&) = delete;
    Parcel& operator=(const Parcel&) = delete;

    static sp<Parcel> obtain() { return make<Parcel>(); }

    void putBoolean(bool value) { put(Kind::Boolean, value); }
    void putByte(int8_t value) { put(Kind::Byte, value); }
    void putInt(int32_t value) { put(Kind::Int, value); }
    void putString(std::string_view value);

    /// Reading starts again at the first value.
    void rewind() { mPosition = mBegin; }
    bool atEnd() const { return mPosition == mEnd; }

    /// Each get throws ParcelException, and stays where it is, when no value is left or the next one is of
    /// another kind.
    bool getBoolean() { return get<bool>(Kind::Boolean); }
    int8_t getByte() { return get<int8_t>(Kind::Byte); }
    int32_t getInt() { return get<int32_t>(Kind::Int); }
    std::string_view getString(); ///< valid as long as the parcel and until the next put

private:
    /// Stands in front of every value, so that reading another kind is noticed.
    enum class Kind : uint8_t { Boolean, Byte, Int, String };

    /// Room for `size` more bytes.
    uint8_t* append(size_t size)
    {
        if (static_cast<size_t>(mLimit - mEnd) < size) {
            grow(size);
        }
        uint8_t* place = mEnd;
        mEnd += size;
        return place;
    }

    template <typename T>
    void put(Kind kind, T value)
    {
        uint8_t* place = append(1 + sizeof value);
        *place = static_cast<uint8_t>(kind);
        std::memcpy(place + 1, &value, sizeof value);
    }

    template <typename T>
    T get(Kind kind)
    {
        checkNext(kind);
        T value;
        std::memcpy(&value, mPosition + 1, sizeof value);
        mPosition += 1 + sizeof value;
        return value;
    }

    void grow(size_t size);
    void checkNext(Kind kind) const;

    static constexpr size_t kOrdinaryAnswer = 256;

    uint8_t* mBegin = mInline; ///< mInline, or mHeap when that is too small
    uint8_t* mEnd = mInline;   ///< of what was written
    uint8_t* mLimit = mInline + kOrdinaryAnswer;
    const uint8_t* mPosition = mInline;
    std::unique_ptr<uint8_t[]> mHeap;
    uint8_t mInline[kOrdinaryAnswer]; ///< only what was put is ever read
};

} // namespace mindroid
