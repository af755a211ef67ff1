/// @file
/// Start and end of the library's work.
///
/// Any function of the library may be called from any thread, and from within a callback, but:
///
///   - While a thread is in radioApisReleaseService, no other thread may be in a function that addresses the same
///     instance - a request, a registration, radioApisInit - nor in a callback that calls one.
///   - A callback must not wait for another callback. Nor must an event callback wait for a thread that is in
///     radioApisInit, radioApisReleaseService, radioApisDeinit or one of the registrations of indications: those
///     may be waiting for that callback to return.
///   - For the same reason an event callback must not call radioApisInit while another thread may be in it.
///
/// Callbacks run on threads of the platform's, which address instance 0 unless a callback calls radioApisInit. The
/// library serves the process that opened the channel: on a workstation requests of a forked child are refused.
/// After dlclose it stays mapped, and its requests are answered all the same.
#pragma once

#include "radio_apis/result.h"

extern "C" {

/// Opens the modem channel if it is not open yet, prepares the clients of one modem instance, and binds the
/// calling thread to that instance: from now on every function called on this thread addresses it. A thread
/// that never called this addresses instance 0. Calling it again, on whichever thread, ends the instance's
/// subscriptions of indications for everyone and keeps its event listeners.
///
/// @param service   ignored: there is one service
/// @param instance  the modem instance, which is the SIM slot: 0, 1 or 2
/// @return 0 when the channel is open; 1 when the modem library could not be initialised (a later call tries
///         again), `instance` is above 2 or there was no memory (the thread then keeps its instance); 2 when the
///         device does not support the channel. After a failure of the channel the instance exists all the same,
///         but its requests are refused, and those that return "0 once started" end in RADIO_APIS_FAILURE
RADIO_API int radioApisInit(RADIO_APIS_SERVICE_TYPE service, RADIO_SUBS_ID_TYPE instance);

/// Ends the work of the calling thread's instance: its event listeners are dropped, and the subscriptions of
/// indications of all instances end, as with radioApisDeinit - also when this instance was never initialised.
/// Requests that are still on their way are answered all the same. No other thread may use the instance meanwhile,
/// see the head of this file.
///
/// @param service  ignored: there is one service
/// @return 0
RADIO_API int radioApisReleaseService(RADIO_APIS_SERVICE_TYPE service);

/// Ends the subscriptions of indications of all instances. Clients, listeners and the open channel stay. The head of
/// events.h tells how an instance gets its indications back: with radioApisInit first.
///
/// @return 0
RADIO_API int radioApisDeinit(void);

/// Listens for changes of the modem service, for the rest of the process's life. May be called before
/// radioApisInit. On a workstation the first listener is told the present state, too, when that is known; a later
/// one first hears of the next change. On a device without the status library nothing is ever reported.
///
/// @param service   ignored: there is one service
/// @param userData  handed to each call of `callback`
/// @param callback  called with RADIO_APIS_SERVICE_MODEM and the new state; null is skipped
/// @return 0, also when the same user data and callback were registered before; 1 without memory
RADIO_API int registerRadioApisEvent(RADIO_APIS_SERVICE_TYPE service, void* userData,
                                     RadioServiceCallback callback);

} // extern "C"
