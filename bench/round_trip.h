/// Requests through the library, and the same ones straight through the message library.
#pragma once

#include "pairs.h"
#include "radio_apis/radio_apis.h"
#include "vorn/vorn_msg.h"

/// Opens the library on RADIO_VORN_DEVICE, or on a simulated modem in this process, for the calling thread.
void openLibrary(RADIO_SUBS_ID_TYPE instance = 0);

/// The answer to a request came; called from its callback.
void answerCame();

/// Waits for one.
void waitForAnswer();

/// Sends a finished message without the library, frees it and waits for its answer.
void sendStraight(vorn_msg_t* request);

/// A request of two numbers without the library, and the wait for its answer.
void bareRoundTrip();

/// comparePairs with an open library, of ways that wait for what they send. Also counts what the library takes from the
/// heap: "library_allocs" on the calling thread, "library_reply_allocs" on the thread that calls back.
void compareRoundTrips(benchmark::State& state, Way throughLibrary, Way straight);
