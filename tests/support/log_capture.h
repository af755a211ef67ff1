/// Looks at what the library logs.
#pragma once

#include "host/log_sink.h"

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

namespace test {

/// Takes the log over as long as it lives. Lines read "E VornClient: text".
class LogCapture {
public:
    LogCapture()
    {
        host::setLogSink([this](const host::LogLine& line) {
            const std::lock_guard lock(mMutex);
            const char level = line.priority >= 6 ? 'E' : line.priority >= 5 ? 'W' : 'D';
            mLines.push_back(std::string(1, level) + ' ' + line.tag + ": " + line.text);
        });
    }
    ~LogCapture() { host::setLogSink(nullptr); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    bool has(const std::string& line) const { return count(line) != 0; }
    long count(const std::string& line) const
    {
        const std::lock_guard lock(mMutex);
        return std::ranges::count(mLines, line);
    }
    std::vector<std::string> lines() const
    {
        const std::lock_guard lock(mMutex);
        return mLines;
    }
    void clear()
    {
        const std::lock_guard lock(mMutex);
        mLines.clear();
    }

private:
    mutable std::mutex mMutex;
    std::vector<std::string> mLines;
};

} // namespace test
