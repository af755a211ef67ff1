/// The message library's messages: how one lies in memory, and as a frame on a byte stream.
#pragma once

#include "vorn/vorn_msg.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace host {

/// One message. All fields stand in one buffer in the order of adding, each behind a header that tells its
/// size, so that adding is an append and reading a short walk; copying a message copies bytes.
class Message : public vorn_msg_t {
public:
    static constexpr size_t kMaxSize = size_t{1} << 20; ///< of the buffer

    explicit Message(const vorn_msg_hdr_t& header) : vorn_msg_t{header} {}
    ~Message() = default;
    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;

    /// The private part behind a public pointer, which every message has.
    static Message& of(vorn_msg_t& message) { return static_cast<Message&>(message); }
    static const Message& of(const vorn_msg_t& message) { return static_cast<const Message&>(message); }

    // Each of these returns false, and changes nothing, when there is no room.
    bool addField(uint16_t tag, std::span<const uint8_t> value);
    bool addArray(uint16_t tag, uint16_t count) { return addArray(tag, count, count); }
    bool appendFieldsOf(const Message& other);

    /// Also false when there is no such array or element, the element is set already, or the array came in a
    /// frame: that has room for the elements that came with it.
    bool addElement(uint16_t tag, uint16_t index, std::span<const uint8_t> value);

    /// No data when there is no such thing; data of size 0 when it is empty.
    std::span<uint8_t> field(uint16_t tag) const;
    std::span<uint8_t> element(uint16_t tag, uint16_t index) const;
    uint16_t elementCount(uint16_t tag) const;

    /// How much memory it takes, or a little more.
    size_t memoryUse() const { return sizeof *this + (mHeap ? mCapacity + mCapacity / 2 : 0); }

    /// Appends this message as one frame, its size first.
    void encode(std::vector<uint8_t>& out) const;

private:
    friend class FrameReader;

    enum class Kind : uint16_t { Field, Array, StrayElement };

    /// In front of every record in the buffer. Records are not aligned.
    struct Header {
        uint16_t tag;
        Kind kind;
        uint32_t size; ///< of the whole record
    };

    /// Behind the header of an array.
    struct Counts {
        uint16_t elements;
        uint16_t slots; ///< so many elements can be set
        uint16_t used;  ///< so many are
    };

    Header headerAt(size_t record) const;
    void setHeader(size_t record, const Header& header);
    std::optional<size_t> find(uint16_t tag, Kind kind) const;
    Counts countsAt(size_t array) const;
    void setCounts(size_t array, const Counts& counts);
    uint8_t* slotAt(size_t array, size_t slot) const;
    uint16_t indexAt(size_t array, size_t slot) const;
    size_t findSlot(size_t array, uint16_t index) const;
    std::span<uint8_t> elementIn(size_t array, size_t slot) const;
    bool addArray(uint16_t tag, uint16_t count, uint16_t slots);
    bool addElementAt(size_t array, uint16_t index, std::span<const uint8_t> value);
    uint8_t* append(size_t size);
    bool grow(size_t needed);
    void encodeArray(size_t array, std::vector<uint8_t>& out) const;

    static constexpr size_t kInlineSize = 256;

    uint8_t* mData = mInline; ///< mInline, or mHeap when that is too small
    std::unique_ptr<uint8_t[]> mHeap;
    std::unique_ptr<uint8_t[]> mOutgrown; ///< kept since the bytes just being added may be this message's own
    size_t mCapacity = kInlineSize;
    size_t mSize = 0;
    size_t mLast = 0;             ///< where the last record begins
    uint8_t mInline[kInlineSize]; ///< only what was added is ever read
};

struct MessageDeleter {
    void operator()(vorn_msg_t* message) const { vorn_msg_deinit(message); }
};
using MessagePtr = std::unique_ptr<vorn_msg_t, MessageDeleter>;

/// A message with the header and the fields of another; null when there is no memory.
MessagePtr copyOf(const vorn_msg_t& message);

/// What stands at the front of a frame, and the most that the frame may have in all.
constexpr size_t kFrameSizeBytes = 4;
constexpr size_t kMaxFrameSize = Message::kMaxSize + 64;

/// The size of the whole frame whose first bytes are these; nothing when no frame can begin like that.
std::optional<size_t> frameSize(std::span<const uint8_t, kFrameSizeBytes> begin);

/// The message in one whole frame; null when it is malformed in any way.
MessagePtr decodeFrame(std::span<const uint8_t> frame);

} // namespace host
