/// The framework's log: printf formats, a tag per component.
#pragma once

namespace mindroid {

class Log {
public:
    static int d(const char* tag, const char* fmt, ...) __attribute__((format(printf, 2, 3))); ///< debug
    static int e(const char* tag, const char* fmt, ...) __attribute__((format(printf, 2, 3))); ///< error
};

} // namespace mindroid
