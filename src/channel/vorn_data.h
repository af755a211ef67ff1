/// Building a message for the modem.
#pragma once

#include "channel/vorn_view.h"
#include "mindroid/object.h"

/// A reference-counted message of its own: fields are added in wire order and can be read back. Each add
/// returns what the modem library's add returned, for arrays that of the last element (of the array itself
/// when it is empty). A request need not look at these results: one failed add makes the message incomplete,
/// and an incomplete message is not sent.
class VornData : public mindroid::Object, public VornView {
public:
    VornData() : VornView(nullptr) {}
    explicit VornData(vorn_msg_t* message) : VornView(message) {} ///< takes the message over
    VornData(vorn_msg_t* message, bool copy);                     ///< takes it over, or owns a copy of it
    VornData(uint16_t msgId, int instance);
    VornData(uint16_t msgId, int instance, uint16_t txId); ///< an answer under the given transaction
    VornData(const VornData&) = delete;
    VornData& operator=(const VornData&) = delete;
    ~VornData() override;

    static mindroid::sp<VornData> obtainVornData(uint16_t msgId, int instance);
    static mindroid::sp<VornData> obtainVornData(uint16_t msgId, int instance, uint16_t txId);
    static mindroid::sp<VornData> obtainVornData(vorn_msg_t* message, bool copy);

    /// Whether there is a message, with every field that was to be added to it.
    bool isComplete() const { return mMessage != nullptr && !mLacksField; }

    int addVornTlv(uint16_t tag, uint16_t length, const void* value);
    int addVornTlvStr(uint16_t tag, const char* text); ///< with its terminating NUL
    int addVornTlv8(uint16_t tag, const void* value) { return addVornTlv(tag, 1, value); }
    int addVornTlv16(uint16_t tag, const void* value) { return addVornTlv(tag, 2, value); }
    int addVornTlv32(uint16_t tag, const void* value) { return addVornTlv(tag, 4, value); }
    int addVornTlvInt8(uint16_t tag, int8_t value) { return addVornTlv8(tag, &value); }
    int addVornTlvUint8(uint16_t tag, uint8_t value) { return addVornTlv8(tag, &value); }
    int addVornTlvInt16(uint16_t tag, int16_t value) { return addVornTlv16(tag, &value); }
    int addVornTlvUint16(uint16_t tag, uint16_t value) { return addVornTlv16(tag, &value); }
    int addVornTlvInt32(uint16_t tag, int32_t value) { return addVornTlv32(tag, &value); }
    int addVornTlvUint32(uint16_t tag, uint32_t value) { return addVornTlv32(tag, &value); }

    /// An array of `count` elements of `length` bytes each.
    int addVornTlvArray(uint16_t tag, uint16_t count, const void* const* elements, uint16_t length);

    /// An array of strings, without their terminating NULs - unlike addVornTlvStr.
    int addVornTlvArrayStr(uint16_t tag, uint16_t count, const char* const* texts);

    int addVornTlvArrayInt8(uint16_t tag, uint16_t count, const int8_t* values);
    int addVornTlvArrayUint8(uint16_t tag, uint16_t count, const uint8_t* values);
    int addVornTlvArrayInt16(uint16_t tag, uint16_t count, const int16_t* values);
    int addVornTlvArrayUint16(uint16_t tag, uint16_t count, const uint16_t* values);
    int addVornTlvArrayInt32(uint16_t tag, uint16_t count, const int32_t* values);
    int addVornTlvArrayUint32(uint16_t tag, uint16_t count, const uint32_t* values);

private:
    /// `element(i)` gives the bytes of element i.
    template <typename Element>
    int addElements(uint16_t tag, uint16_t count, Element element);

    /// Remembers whether an add failed; its result.
    int note(int result)
    {
        mLacksField |= result != 0;
        return result;
    }

    bool mLacksField = false;
};
