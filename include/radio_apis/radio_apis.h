/// @file
/// Everything that libradioapis.so offers.
///
/// A thread chooses its modem instance with radioApisInit and then sends requests. Every request function
///
///   - takes its arguments, then a user data pointer, then a callback, which must not be null;
///   - copies what it needs from its arguments before it returns;
///   - returns 0 when the request was accepted: the callback is then called exactly once, on the thread that
///     RadioRequestCallback tells, with the user data, a RADIO_APIS_RESULT and the record;
///   - returns another RADIO_APIS_RESULT when the request was refused: the callback is then never called.
///
/// A request is refused with RADIO_APIS_FAILURE without an initialised instance, without memory, while the modem can't
/// be reached, or when the arguments do not fit a message. Its description tells of further reasons.
///
/// The descriptions of requests use a few words over and over:
///
///   - "0 when handed to the modem": one message is on its way, and the modem's answer calls the callback.
///   - "0 once started": the request takes several commands, or pauses in between. It is accepted also while the modem
///     can't be reached: its callback then gets RADIO_APIS_FAILURE.
///   - "The modem's verdict": RADIO_APIS_SUCCESS when the modem did what the request asks for, otherwise its failure.
///   - "The modem's failure": the modem, or the way to it, did not take the request. The result is then the
///     modem's own as RADIO_APIS_RESULT lists it, and there is no record.
///   - "Whatever the modem said": a failure of the modem does not show in the result. Where the record has a member
///     `failure` or `result`, that one tells it.
///   - "The modem accepted" a command, or refused it: requests that become AT commands end with OK, or with an error.
///   - "An empty record" carries nothing: all its bytes are zero.
///
/// No function throws. lifecycle.h tells which ones may run at the same time, and what callbacks must not do.
#pragma once

#include "radio_apis/antenna.h"
#include "radio_apis/atom.h"
#include "radio_apis/bands.h"
#include "radio_apis/camping.h"
#include "radio_apis/carrier_aggregation.h"
#include "radio_apis/cell_info.h"
#include "radio_apis/device_state.h"
#include "radio_apis/events.h"
#include "radio_apis/idc.h"
#include "radio_apis/ims.h"
#include "radio_apis/lifecycle.h"
#include "radio_apis/metrics.h"
#include "radio_apis/multi_sim.h"
#include "radio_apis/network_action.h"
#include "radio_apis/nv.h"
#include "radio_apis/operation_mode.h"
#include "radio_apis/packet_route.h"
#include "radio_apis/policy.h"
#include "radio_apis/power.h"
#include "radio_apis/qos.h"
#include "radio_apis/rat.h"
#include "radio_apis/result.h"
#include "radio_apis/results.h"
#include "radio_apis/rf.h"
#include "radio_apis/rf_icc.h"
#include "radio_apis/rtp_redundancy.h"
#include "radio_apis/sar.h"
#include "radio_apis/scene.h"
#include "radio_apis/search.h"
#include "radio_apis/service_mode.h"
#include "radio_apis/sim.h"
