/// @file
/// Result codes, service states and the callbacks through which the library answers.
#pragma once

#include <cstdint>

/// Exported by the library.
#define RADIO_API __attribute__((visibility("default")))

struct RadioApisResultType;

/// What became of a request: returned by its function when it is refused, and handed to its callback when it was
/// accepted. 0 is success, every other value a failure. The modem's own results become these: 0 success,
/// 21 RADIO_APIS_INVALID_PARAMETER, 31 RADIO_APIS_MODEM_RESULT_31, 105 and 106 RADIO_APIS_NOT_SUPPORTED, all others
/// RADIO_APIS_FAILURE.
enum RADIO_APIS_RESULT : int32_t {
    /// accepted, or carried out; the record holds the result
    RADIO_APIS_SUCCESS = 0,
    /// \label{reason unknown}: not sent, no memory, or failed in the modem without a closer reason
    RADIO_APIS_FAILURE = 1,
    /// an argument, or the channel, is not supported; modem results 105 and 106
    RADIO_APIS_NOT_SUPPORTED = 2,
    /// modem result 31
    RADIO_APIS_MODEM_RESULT_31 = 10,
    /// an argument is missing or out of its range; modem result 21
    RADIO_APIS_INVALID_PARAMETER = 11
};

/// Which service a call or a report is about. The library knows one; functions that take a type ignore it.
enum RADIO_APIS_SERVICE_TYPE : int32_t {
    RADIO_APIS_SERVICE_MODEM = 11 ///< \label{modem}: the modem's service
};

/// Whether the modem's service can be reached.
enum RAPIS_CONNECT_STATE : int32_t {
    RAPIS_CONNECTED = 0,   ///< the service can be reached
    RAPIS_DISCONNECTED = 1 ///< the service can't be reached
};

/// The modem instance, which is the SIM slot: 0, 1 or 2.
using RADIO_SUBS_ID_TYPE = uint32_t;

/// Answers one request, exactly once, possibly before the request function returns to its caller. It must not throw;
/// lifecycle.h tells what else it must not do.
///
/// It is called on the modem library's delivery thread, as all events are, one after the other. A request that
/// returns "0 once started" runs several commands, or waits in between, and may call it on the timer thread
/// instead, while another callback runs on the delivery thread.
///
/// @param userData  the pointer given with the request, never dereferenced by the library
/// @param result    RADIO_APIS_SUCCESS or why the request failed. An answer that does not come in time, or is lost
///                  with the link, is a failure of the modem
/// @param record    the result, valid during the call only: copy what is needed later. What the answer did not
///                  carry is zero. Null where the request's description says so, as for every failure that is "the
///                  modem's verdict" or "the modem's failure"; and, with RADIO_APIS_FAILURE, when there was no memory
///                  to read the answer
using RadioRequestCallback = void (*)(void* userData, RADIO_APIS_RESULT result, RadioApisResultType* record);

/// Reports a change of the modem service, on the modem status library's thread. It must not throw.
///
/// @param service   RADIO_APIS_SERVICE_MODEM
/// @param state     whether the service can be reached now
/// @param userData  the pointer given at registration, never dereferenced by the library
using RadioServiceCallback = void (*)(RADIO_APIS_SERVICE_TYPE service, RAPIS_CONNECT_STATE state,
                                      void* userData);
