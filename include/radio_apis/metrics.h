/// @file
/// \domain{Metrics}
///
/// Metrics, and data of the modem's network evaluation.
#pragma once

#include "radio_apis/blob.h"
#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetMetricsData: metrics that were collected.
struct RadioMetricsData {
    uint32_t length;     ///< number of bytes in `data`; a longer answer is cut
    uint8_t data[16384]; ///< metrics, as the modem defines them \countedby{length}
    int32_t type;        ///< kind of metrics, as the modem numbers it \values{-1: unknown}
    int32_t count;       ///< number of metrics; 0 when the modem does not say
    int32_t state;       ///< state of the collection, as the modem defines it; 0 when the modem does not say
};

/// Result of radioGetAtomData: data that atoms collected, as the modem defines it.
using RadioAtomData = RadioBlob<4096>;

/// Result of radioGetNecData: data of the network evaluation, as the modem defines it.
using RadioNecData = RadioBlob<2048>;

/// Result of radioGetModemProtocolInfo: the modem's protocol state, as the modem defines it.
using RadioProtocolInfo = RadioBlob<4096>;

/// Which measurements the modem reports.
struct VeyraConfigPolicy {
    int32_t values[8]; ///< values of the policy, as the modem defines them; sent in this order
};

extern "C" {

/// Starts the collection of metrics.
///
/// @param type   kind of metrics, as the modem numbers it
/// @param ids    metrics to collect, as the modem numbers them \range{0 to 65535} \countedby{count}; may be null when
///               `count` is 0
/// @param count  number of metrics
/// \verdict
/// \sentor{11 for null ids or too many of them}
RADIO_API int radioStartMetricsCollect(int type, int* ids, unsigned int count, void* userData,
                                       RadioRequestCallback callback);

/// Stops the collection of metrics.
///
/// @param type  kind of metrics, as the modem numbers it
/// \verdict
/// \sent
RADIO_API int radioStopMetricsCollect(int type, void* userData, RadioRequestCallback callback);

/// The metrics that were collected.
///
/// @param type    kind of metrics, as the modem numbers it
/// @param option  option of the request, as the modem defines it
/// @param state   state of the collection, as the modem defines it
/// @param ids     metrics to report, as the modem numbers them \range{0 to 65535} \countedby{count}; may be null when
///                `count` is 0
/// @param count   number of metrics
/// \fills{metricsData}
/// \sentor{11 for null ids or too many of them}
RADIO_API int radioGetMetricsData(int type, int option, int state, int* ids, unsigned int count,
                                  void* userData, RadioRequestCallback callback);

/// Data of the modem's network evaluation.
///
/// @param type    kind of data, as the modem numbers it
/// @param data    what the modem needs to find the data \range{0 to 65535} \countedby{length}; may be null when
///                `length` is 0
/// @param length  number of bytes in `data`
/// \fills{necData}
/// \sentor{11 for null data or too much of it}
RADIO_API int radioGetNecData(int type, const unsigned char* data, unsigned int length, void* userData,
                              RadioRequestCallback callback);

/// What the modem tells of its protocol state.
///
/// \fills{protocolInfo}
/// \sent
RADIO_API int radioGetModemProtocolInfo(void* userData, RadioRequestCallback callback);

/// Sets which measurements the modem reports with RADIO_EVENT_VEYRA_CELL_INFO_IND.
///
/// @param policy  measurements to report
/// \verdict
/// \sent
RADIO_API int radioSetVeyraConfigPolicy(VeyraConfigPolicy policy, void* userData,
                                        RadioRequestCallback callback);

} // extern "C"
