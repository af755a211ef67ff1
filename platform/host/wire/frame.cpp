// A message as a frame on a byte stream, all numbers little-endian:
//   u32 size of what follows, u16 message id, u16 transaction, u8 slot, then the records:
//   u8 1, u16 tag, u16 length, bytes                           a field
//   u8 2, u16 tag, u16 count, u16 number of elements that are set, then for each, by ascending index:
//   u16 index, u16 length, bytes
#include "host/wire/message.h"

namespace host {
namespace {

constexpr uint8_t kFieldRecord = 1;
constexpr uint8_t kArrayRecord = 2;

void put16(std::vector<uint8_t>& out, size_t value)
{
    out.push_back(static_cast<uint8_t>(value));
    out.push_back(static_cast<uint8_t>(value >> 8));
}

void putBytes(std::vector<uint8_t>& out, std::span<const uint8_t> bytes)
{
    put16(out, bytes.size());
    out.insert(out.end(), bytes.begin(), bytes.end());
}

} // namespace

void Message::encode(std::vector<uint8_t>& out) const
{
    const size_t begin = out.size();
    out.resize(begin + kFrameSizeBytes);
    put16(out, hdr.msg_id);
    put16(out, hdr.tx_id);
    out.push_back(hdr.slot_id);
    for (size_t record = 0; record < mSize; record += headerAt(record).size) {
        const Header header = headerAt(record);
        if (header.kind == Kind::Field) {
            out.push_back(kFieldRecord);
            put16(out, header.tag);
            putBytes(out, {mData + record + sizeof(Header), header.size - sizeof(Header)});
        } else if (header.kind == Kind::Array) {
            out.push_back(kArrayRecord);
            put16(out, header.tag);
            encodeArray(record, out);
        }
    }
    const size_t size = out.size() - begin - kFrameSizeBytes;
    for (size_t i = 0; i < kFrameSizeBytes; ++i) {
        out[begin + i] = static_cast<uint8_t>(size >> (8 * i));
    }
}

void Message::encodeArray(size_t array, std::vector<uint8_t>& out) const
{
    const Counts counts = countsAt(array);
    put16(out, counts.elements);
    put16(out, counts.used);
    for (size_t slot = 0; slot < counts.used; ++slot) {
        put16(out, indexAt(array, slot));
        putBytes(out, elementIn(array, slot));
    }
}

/// Walks over the bytes of a frame, of which none can be trusted. After a failure it stays failed.
class FrameReader {
public:
    explicit FrameReader(std::span<const uint8_t> bytes) : mRest(bytes) {}

    MessagePtr readMessage()
    {
        vorn_msg_hdr_t header{};
        header.msg_id = take16();
        header.tx_id = take16();
        header.slot_id = take8();
        MessagePtr message(vorn_msg_init_with_txid(header.msg_id, header.slot_id, header.tx_id));
        while (message && !mFailed && !mRest.empty()) {
            readRecord(Message::of(*message));
        }
        return mFailed ? nullptr : std::move(message);
    }

private:
    void readRecord(Message& message)
    {
        const uint8_t kind = take8();
        const uint16_t tag = take16();
        if (kind == kFieldRecord) {
            const std::span<const uint8_t> value = takeBytes(take16());
            mFailed = mFailed || !message.addField(tag, value);
        } else if (kind == kArrayRecord) {
            readArray(message, tag);
        } else {
            mFailed = true;
        }
    }

    void readArray(Message& message, uint16_t tag)
    {
        const uint16_t count = take16();
        const uint16_t number = take16();
        // No more memory than the bytes that came account for, whatever they claim.
        constexpr size_t kLeastElement = 4;
        mFailed = mFailed || mRest.size() < number * kLeastElement || !message.addArray(tag, count, number);
        const size_t array = message.mLast;
        for (uint32_t i = 0, next = 0; i < number && !mFailed; ++i) {
            const uint16_t index = take16();
            const std::span<const uint8_t> value = takeBytes(take16());
            mFailed = mFailed || index < next || !message.addElementAt(array, index, value);
            next = index + 1U;
        }
    }

    std::span<const uint8_t> takeBytes(size_t size)
    {
        if (mRest.size() < size) {
            mFailed = true;
            mRest = {};
            return {};
        }
        const std::span<const uint8_t> bytes = mRest.first(size);
        mRest = mRest.subspan(size);
        return bytes;
    }

    uint8_t take8()
    {
        const std::span<const uint8_t> bytes = takeBytes(1);
        return bytes.empty() ? uint8_t{0} : bytes[0];
    }

    uint16_t take16()
    {
        const std::span<const uint8_t> bytes = takeBytes(2);
        return bytes.empty() ? uint16_t{0} : static_cast<uint16_t>(bytes[0] | (bytes[1] << 8));
    }

    std::span<const uint8_t> mRest;
    bool mFailed = false;
};

std::optional<size_t> frameSize(std::span<const uint8_t, kFrameSizeBytes> begin)
{
    uint32_t size = 0;
    for (size_t i = 0; i < kFrameSizeBytes; ++i) {
        size |= static_cast<uint32_t>(begin[i]) << (8 * i);
    }
    constexpr size_t kHeaderSize = 5;
    if (size < kHeaderSize || size > kMaxFrameSize - kFrameSizeBytes) {
        return std::nullopt;
    }
    return kFrameSizeBytes + size;
}

MessagePtr decodeFrame(std::span<const uint8_t> frame)
{
    if (frame.size() < kFrameSizeBytes || frameSize(frame.first<kFrameSizeBytes>()) != frame.size()) {
        return nullptr;
    }
    return FrameReader(frame.subspan(kFrameSizeBytes)).readMessage();
}

} // namespace host
