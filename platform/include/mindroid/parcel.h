/// A flat sequence of typed values, written once in order and then read in the same order.
#pragma once

#include "mindroid/object.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace mindroid {

class Parcel : public Object {
public:
    static sp<Parcel> obtain() { return make<Parcel>(); }

    void putBoolean(bool value);
    void putByte(int8_t value);
    void putInt(int32_t value);
    void putString(std::string_view value);

    /// Reading starts again at the first value.
    void rewind() { mPosition = 0; }
    bool atEnd() const { return mPosition == mEnd; }

    /// Each get throws ParcelException, and stays where it is, when no value is left or the next one is of
    /// another kind.
    bool getBoolean();
    int8_t getByte();
    int32_t getInt();
    std::string_view getString(); ///< valid as long as the parcel and until the next put

private:
    uint8_t* append(size_t size);
    const uint8_t* peek(uint8_t kind) const;

    std::vector<uint8_t> mData; ///< larger than what was written
    size_t mEnd = 0;
    size_t mPosition = 0;
};

} // namespace mindroid
