/// The modem status library, opened by its name at run time: libkst.so.
#pragma once

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct {
    uint32_t event; /* 1: the modem is up; 10: the modem is lost; others exist */
} md_status_event;

/// Prepares the library; may be called repeatedly. 0 when done.
int libkst_init(void);

/// Ends all registrations. No callback is running any more when it returns.
void libkst_deinit(void);

/// Has `cb` called with `client` on the library's status thread for every status event from now on, beginning
/// with the present state when that is known. The event is valid during the call only. 0 when registered,
/// negative when refused (not prepared, null callback).
int libkst_md_event_register(void (*cb)(void* client, md_status_event* event), void* client);

#ifdef __cplusplus
}
#endif
