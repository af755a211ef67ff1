/// What a workstation can do with the message library beyond what a device offers.
#pragma once

#include "vorn/vorn_msg.h"

#ifdef __cplusplus
extern "C" {
#endif

/// Hands a command (one JSON object) to the simulated modem behind the open link and waits for its answer.
/// `answer` is called once, on the calling thread, with one JSON object, valid during the call. 0 when
/// answered, negative when the library is not initialised or the link is lost; then `answer` is not called.
/// Not to be called from the delivery thread.
int vorn_host_control(const char* command, void (*answer)(const char* json, void* user), void* user);

/// Has `observer` called with every answer of the modem to a request, right before the request's callback runs and
/// on the same thread, the delivery thread; not with the answers that the library makes when the modem has none.
/// The message is valid during the call. There is one observer, whether the library is initialised or not; a null
/// `observer` ends it. When this returns, no call of the former observer is running any more, unless this is called
/// by the observer itself.
void vorn_host_observe(void (*observer)(const vorn_msg_t* message, void* user), void* user);

#ifdef __cplusplus
}
#endif
