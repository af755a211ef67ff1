/// @file
/// Start and end of the library's work.
#pragma once

#include "radio_apis/result.h"

extern "C" {

/// Opens the modem channel if it is not open yet, prepares the clients of one modem instance, and binds the
/// calling thread to that instance: from now on every function called on this thread addresses it. A thread
/// that never called this addresses instance 0. Calling it again resets the instance's subscriptions of
/// indications and keeps its event listeners.
///
/// @param service   ignored
/// @param instance  0, 1 or 2
/// @return 0 when the channel is open; 1 when the modem library could not be initialised (a later call tries
///         again) or `instance` is above 2 (nothing happens then, the thread keeps its instance); 2 when the
///         device does not support the channel. After a failure of the channel the instance exists all the
///         same, but its requests are refused.
RADIO_API int radioApisInit(RADIO_APIS_SERVICE_TYPE service, RADIO_SUBS_ID_TYPE instance);

/// Ends the work of the calling thread's instance: its event listeners are dropped, and the subscriptions of
/// indications of all instances end. Requests that are still on their way are answered all the same. Other
/// threads must not send requests on this instance meanwhile. Without an earlier radioApisInit nothing
/// happens.
///
/// @param service  ignored
/// @return 0
RADIO_API int radioApisReleaseService(RADIO_APIS_SERVICE_TYPE service);

/// Ends the subscriptions of indications of all instances. Clients, listeners and the open channel stay.
///
/// @return 0
RADIO_API int radioApisDeinit(void);

/// Listens for changes of the modem service, for the rest of the process's life. May be called before
/// radioApisInit. The present state, when it is known, is reported too.
///
/// @param service   ignored
/// @param userData  handed to each call of `callback`
/// @param callback  called with RADIO_APIS_SERVICE_MODEM and the new state
/// @return 0, also when the same user data and callback were registered before
RADIO_API int registerRadioApisEvent(RADIO_APIS_SERVICE_TYPE service, void* userData,
                                     RadioServiceCallback callback);

} // extern "C"
