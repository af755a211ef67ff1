/// Requests through the library and straight through the message library, in turns, so that their ratio holds
/// whatever else the machine does.
#pragma once

#include "vorn/vorn_msg.h"

#include <benchmark/benchmark.h>

/// Opens the library on the simulated modem in this process.
void openLibrary();

/// The answer to the one request in flight came; called from its callback.
void answerCame();

/// Waits for it.
void waitForAnswer();

/// Sends a finished message without the library, frees it and waits for its answer.
void sendStraight(vorn_msg_t* request);

/// Measures two ways of doing the same: time and heap allocations of each on the sending thread, and the
/// ratio of the times. Each way waits for what it sends.
void comparePairs(benchmark::State& state, void (*throughLibrary)(), void (*straight)());
