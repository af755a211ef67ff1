/// Android's log.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

enum { ANDROID_LOG_DEBUG = 3, ANDROID_LOG_WARN = 5, ANDROID_LOG_ERROR = 6 };

/// Writes one line of the given priority; `tag` may be null. Any thread.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is Android's
int __android_log_print(int prio, const char* tag, const char* fmt, ...)
    __attribute__((format(printf, 3, 4)));

#ifdef __cplusplus
}
#endif
