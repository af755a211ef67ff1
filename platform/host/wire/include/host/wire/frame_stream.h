/// Frames cut out of the bytes that a peer sends, in whatever pieces these come.
#pragma once

#include "host/wire/message.h"

namespace host {

/// Holds no more than the frame it waits for and one read beyond it, whatever the peer claims.
class FrameStream {
public:
    /// Where the next bytes go: some room, however many bytes still wait.
    std::span<uint8_t> room();

    /// So many bytes were put at the front of room().
    void filled(size_t size) { mEnd += size; }

    /// The next whole frame, valid until room() is called; nothing while bytes are missing.
    std::optional<std::span<const uint8_t>> next();

    /// No frame begins like the bytes that came: where the next one would begin can't be known.
    bool isBroken() const { return mIsBroken; }

private:
    static constexpr size_t kReadSize = size_t{64} << 10;

    std::vector<uint8_t> mBytes;
    size_t mBegin = 0; ///< of what is not handed out yet
    size_t mEnd = 0;   ///< of what came
    bool mIsBroken = false;
};

} // namespace host
