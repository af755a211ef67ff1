#include "host/wire/frame_stream.h"

#include <algorithm>

namespace host {

std::span<uint8_t> FrameStream::room()
{
    std::copy(mBytes.begin() + static_cast<ptrdiff_t>(mBegin), mBytes.begin() + static_cast<ptrdiff_t>(mEnd),
              mBytes.begin());
    mEnd -= mBegin;
    mBegin = 0;
    mBytes.resize(std::max(mBytes.size(), mEnd + kReadSize));
    return std::span(mBytes).subspan(mEnd);
}

std::optional<std::span<const uint8_t>> FrameStream::next()
{
    const auto waiting = std::span<const uint8_t>(mBytes).subspan(mBegin, mEnd - mBegin);
    if (mIsBroken || waiting.size() < kFrameSizeBytes) {
        return std::nullopt;
    }
    const std::optional<size_t> size = frameSize(waiting.first<kFrameSizeBytes>());
    if (!size) {
        mIsBroken = true;
        return std::nullopt;
    }
    if (waiting.size() < *size) {
        return std::nullopt;
    }
    mBegin += *size;
    return waiting.first(*size);
}

} // namespace host
