#include "android/log.h"
#include "host/log_sink.h"
#include "host/quiet_write.h"
#include "mindroid/log.h"
#include "zor/log.h"

#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <new>

namespace {

constexpr int kEverything = 0;
constexpr int kNothing = 100;

/// Lines below this priority go nowhere. It starts with everything, which leads the first line to the
/// environment.
constinit std::atomic<int> gThreshold{kEverything};

struct Destination {
    std::mutex mutex; ///< held while the sink runs
    host::LogSink sink;
};

/// Never destroyed: threads of the host's libraries may log after main() has returned. In a forked child the
/// mutex is a new one: its parent's may be held by a thread that is not there to release it.
Destination& destination()
{
    static Destination& instance = *[] {
        pthread_atfork(nullptr, nullptr, [] { new (&destination().mutex) std::mutex; });
        return new Destination;
    }();
    return instance;
}

int thresholdOfEnvironment()
{
    static const int threshold = [] {
        const char* text = std::getenv("RADIO_LOG");
        const std::string_view level = text != nullptr ? text : "";
        if (level == "debug") {
            return int{ANDROID_LOG_DEBUG};
        }
        if (level == "error") {
            return int{ANDROID_LOG_ERROR};
        }
        return level == "off" ? kNothing : int{ANDROID_LOG_WARN};
    }();
    return threshold;
}

char letterOf(int priority)
{
    if (priority >= ANDROID_LOG_ERROR) {
        return 'E';
    }
    if (priority >= ANDROID_LOG_WARN) {
        return 'W';
    }
    return priority > ANDROID_LOG_DEBUG ? 'I' : 'D';
}

std::string format(const char* fmt, va_list arguments)
{
    va_list first;
    va_copy(first, arguments);
    char shortText[512];
    const int length = std::vsnprintf(shortText, sizeof shortText, fmt, first);
    va_end(first);
    if (length < static_cast<int>(sizeof shortText)) {
        return {shortText, static_cast<size_t>(std::max(length, 0))};
    }
    std::string text(static_cast<size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, fmt, arguments);
    return text;
}

/// One write for the whole line, so that lines of several threads don't mix. Line ends that came with the
/// modem's text would make two lines of one.
void writeLine(const host::LogLine& line)
{
    std::string text{letterOf(line.priority), ' '};
    if (!line.tag.empty()) {
        text += line.tag + ": ";
    }
    text += line.text;
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    text += '\n';
    host::writeQuietly(STDERR_FILENO, text);
}

int logLine(int priority, const char* tag, const char* fmt, va_list arguments) noexcept
{
    try {
        const host::LogLine line{priority, tag != nullptr ? tag : "", format(fmt, arguments)};
        Destination& log = destination();
        const std::lock_guard lock(log.mutex);
        if (log.sink) {
            log.sink(line);
        } else {
            gThreshold.store(thresholdOfEnvironment(), std::memory_order_relaxed);
            if (priority >= thresholdOfEnvironment()) {
                writeLine(line);
            }
        }
        return static_cast<int>(line.text.size());
    } catch (const std::exception&) {
        return 0; // no memory for the line: nobody could be told
    }
}

/// What every function below does with its arguments. The check comes first and is, but for the few stores of va_start,
/// all that a line costs which nobody wants: requests log on their way.
inline int logIfWanted(int priority, const char* tag, const char* fmt, va_list arguments)
{
    return priority >= gThreshold.load(std::memory_order_relaxed) ? logLine(priority, tag, fmt, arguments)
                                                                  : 0;
}

} // namespace

namespace host {

void setLogSink(LogSink sink)
{
    Destination& log = destination();
    const std::lock_guard lock(log.mutex);
    log.sink = std::move(sink);
    gThreshold.store(kEverything, std::memory_order_relaxed);
}

} // namespace host

int zorLogD(const char* tag, const char* fmt, ...)
{
    va_list arguments;
    va_start(arguments, fmt);
    const int length = logIfWanted(ANDROID_LOG_DEBUG, tag, fmt, arguments);
    va_end(arguments);
    return length;
}

int zorLogW(const char* tag, const char* fmt, ...)
{
    va_list arguments;
    va_start(arguments, fmt);
    const int length = logIfWanted(ANDROID_LOG_WARN, tag, fmt, arguments);
    va_end(arguments);
    return length;
}

int zorLogE(const char* tag, const char* fmt, ...)
{
    va_list arguments;
    va_start(arguments, fmt);
    const int length = logIfWanted(ANDROID_LOG_ERROR, tag, fmt, arguments);
    va_end(arguments);
    return length;
}

int __android_log_print(int prio, const char* tag, const char* fmt, ...)
{
    va_list arguments;
    va_start(arguments, fmt);
    const int length = logIfWanted(prio, tag, fmt, arguments);
    va_end(arguments);
    return length;
}

int mindroid::Log::d(const char* tag, const char* fmt, ...)
{
    va_list arguments;
    va_start(arguments, fmt);
    const int length = logIfWanted(ANDROID_LOG_DEBUG, tag, fmt, arguments);
    va_end(arguments);
    return length;
}

int mindroid::Log::e(const char* tag, const char* fmt, ...)
{
    va_list arguments;
    va_start(arguments, fmt);
    const int length = logIfWanted(ANDROID_LOG_ERROR, tag, fmt, arguments);
    va_end(arguments);
    return length;
}
