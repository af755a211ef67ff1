/// Specific absorption rate: what limits transmit power near a body.
#pragma once

#include "radio_apis/result.h"

extern "C" {

/// Sets the state of one source of SAR decisions.
///
/// @param source    which source, passed through
/// @param state     its state, passed through
/// @param callback  called once with the modem's verdict and, on success, an empty record
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetSarState(int source, int state, void* userData, RadioRequestCallback callback);

} // extern "C"
