/// Requests through the library and straight through the message library, in turns, so that their ratio holds
/// whatever else the machine does.
#pragma once

#include "radio_apis/radio_apis.h"
#include "vorn/vorn_msg.h"

#include <benchmark/benchmark.h>

/// Opens the library on RADIO_VORN_DEVICE, or on a simulated modem in this process, for the calling thread.
void openLibrary(RADIO_SUBS_ID_TYPE instance = 0);

/// The answer to a request came; called from its callback.
void answerCame();

/// Waits for one.
void waitForAnswer();

/// Sends a finished message without the library, frees it and waits for its answer.
void sendStraight(vorn_msg_t* request);

/// Measures two ways of doing the same: time and heap allocations of each on the sending thread, and the
/// ratio of the times. Each way waits for what it sends.
void comparePairs(benchmark::State& state, void (*throughLibrary)(), void (*straight)());
