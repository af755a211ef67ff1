/// Every message both ways, written down for people or for programs.
#pragma once

#include "vorn/vorn_msg.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <string>

namespace sim {

enum class Direction { ToModem, FromModem };

struct TraceOptions {
    std::string file;         ///< "-" is standard error; another file is appended to
    bool json = false;        ///< one JSON object per line, else one line of text
    bool showPrivate = false; ///< identities, SIM authentication, NV contents and lock blobs too, not only
                              ///< their lengths
};

/// One line per message: when, which way, slot, transaction, name, fields. An answer is named as its request,
/// and what the catalogue does not know is shown by number. From any thread.
///
/// A new file is its user's alone. When a line can't be written - the disk is full, the reader has left, or
/// does not read for 100 ms - the trace ends with a warning in the log, and nothing else does.
class Trace {
public:
    /// Throws std::runtime_error when the file can't be written, or is a pipe by name that nobody reads.
    explicit Trace(const TraceOptions& options);
    ~Trace();
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;

    /// As the environment has it: RADIO_TRACE names the file, RADIO_TRACE_FORMAT is text or json,
    /// RADIO_TRACE_PRIVATE=1 shows private contents. Null when nothing is to be traced.
    static std::unique_ptr<Trace> fromEnvironment();

    void note(Direction direction, const vorn_msg_t& message);

private:
    const TraceOptions mOptions;
    const int mDescriptor;
    std::mutex mMutex; ///< so that lines stay whole
    std::atomic<bool> mHasEnded = false;
};

} // namespace sim
