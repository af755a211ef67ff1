/// What a socket brings, in pieces of the size that the first byte tells: frames that hold a message must hold the
/// same one when they are written again, and the simulated modem takes each as a request.
#include "host/wire/command_message.h"
#include "host/wire/frame_stream.h"
#include "nobody.h"
#include "support/fields.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

/// Takes what the modem sends as the other side would.
struct Reader : fuzz::Nobody {
    void answer(sim::ClientId, sim::Message message) override { writeAgain(*message); }
    void indicate(sim::Message message) override { writeAgain(*message); }

    static void writeAgain(const vorn_msg_t& message)
    {
        const test::Bytes frame = test::frame(message);
        const host::MessagePtr read = host::decodeFrame(frame);
        if (!read || test::frame(*read) != frame) {
            std::abort();
        }
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    static Reader reader;
    static sim::Modem modem(sim::Scenario::builtIn(), reader);
    static sim::TimePoint now;
    host::FrameStream stream;
    std::span<const uint8_t> input(data + 1, size - 1);
    while (!input.empty() && !stream.isBroken()) {
        const auto room = stream.room();
        const size_t piece = std::min({size_t{data[0]} + 1, input.size(), room.size()});
        std::memcpy(room.data(), input.data(), piece);
        stream.filled(piece);
        input = input.subspan(piece);
        while (const auto frame = stream.next()) {
            if (const host::MessagePtr message = host::decodeFrame(*frame)) {
                Reader::writeAgain(*message);
                if (host::isCommand(*message)) {
                    host::commandFrom(*message);
                } else {
                    modem.receive(0, *message, now);
                }
            }
        }
    }
    now += std::chrono::seconds(1);
    modem.advance(now);
    return 0;
}
