/// The maker's log: one line per call, printf formats, a tag per component. Any thread.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

int zorLogD(const char* tag, const char* fmt, ...) __attribute__((format(printf, 2, 3))); /* debug */
int zorLogW(const char* tag, const char* fmt, ...) __attribute__((format(printf, 2, 3))); /* warning */
int zorLogE(const char* tag, const char* fmt, ...) __attribute__((format(printf, 2, 3))); /* error */

#ifdef __cplusplus
}
#endif
