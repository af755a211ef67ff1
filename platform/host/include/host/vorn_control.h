/// What a workstation can do with the message library beyond what a device offers.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/// Hands a command (one JSON object) to the simulated modem behind the open link and waits for its answer.
/// `answer` is called once, on the calling thread, with one JSON object, valid during the call. 0 when
/// answered, negative when the library is not initialised or the link is lost; then `answer` is not called.
/// Not to be called from the delivery thread.
int vorn_host_control(const char* command, void (*answer)(const char* json, void* user), void* user);

#ifdef __cplusplus
}
#endif
