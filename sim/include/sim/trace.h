/// Every message both ways, written down for people or for programs.
#pragma once

#include "vorn/vorn_msg.h"

#include <fstream>
#include <memory>
#include <mutex>
#include <ostream>
#include <string>

namespace sim {

enum class Direction { ToModem, FromModem };

struct TraceOptions {
    std::string file;         ///< "-" is standard error; another file is appended to
    bool json = false;        ///< one JSON object per line, else one line of text
    bool showPrivate = false; ///< SIM authentication, NV contents and lock blobs too, not only their lengths
};

/// One line per message: when, which way, slot, transaction, name, fields. An answer is named as its request,
/// and what the catalogue does not know is shown by number. From any thread.
class Trace {
public:
    /// Throws std::runtime_error when the file can't be written.
    explicit Trace(const TraceOptions& options);

    /// As the environment has it: RADIO_TRACE names the file, RADIO_TRACE_FORMAT is text or json,
    /// RADIO_TRACE_PRIVATE=1 shows private contents. Null when nothing is to be traced.
    static std::unique_ptr<Trace> fromEnvironment();

    void note(Direction direction, const vorn_msg_t& message);

private:
    TraceOptions mOptions;
    std::ofstream mFile;
    std::ostream& mOut;
    std::mutex mMutex; ///< so that lines stay whole
};

} // namespace sim
