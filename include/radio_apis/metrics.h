/// @file
/// \domain{Metrics}
///
/// Metrics, and data of the modem's network evaluation.
#pragma once

#include "radio_apis/blob.h"
#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetMetricsData.
struct RadioMetricsData {
    uint32_t length;     ///< bytes in `data`; more are cut
    uint8_t data[16384]; ///< as the modem defines it
    int32_t type;        ///< which metrics; -1 when the modem does not say
    int32_t count;       ///< number of metrics; 0 when the modem does not say
    int32_t state;       ///< as the modem defines it; 0 when it does not say
};

using RadioAtomData = RadioBlob<4096>;     ///< Result of radioGetAtomData.
using RadioNecData = RadioBlob<2048>;      ///< Result of radioGetNecData.
using RadioProtocolInfo = RadioBlob<4096>; ///< Result of radioGetModemProtocolInfo.

/// Which measurements the modem reports: eight values as it defines them, sent in this order.
struct VeyraConfigPolicy {
    int32_t values[8]; ///< sent in this order
};

extern "C" {

/// Starts the collection of metrics.
///
/// @param type   kind of metrics, passed through
/// @param ids    which metrics; may be null when `count` is 0
/// @param count  their number, at most 65535
/// \verdict
/// \sentor{11 for null ids or too many of them}
RADIO_API int radioStartMetricsCollect(int type, int* ids, unsigned int count, void* userData,
                                       RadioRequestCallback callback);

/// Stops the collection.
///
/// @param type  kind of metrics
/// \verdict
/// \sent
RADIO_API int radioStopMetricsCollect(int type, void* userData, RadioRequestCallback callback);

/// What was collected.
///
/// @param type    kind of metrics
/// @param option  passed through
/// @param state   passed through
/// @param ids     which metrics; may be null when `count` is 0
/// @param count   their number, at most 65535
/// \fills{metricsData}
/// \sentor{11 for null ids or too many of them}
RADIO_API int radioGetMetricsData(int type, int option, int state, int* ids, unsigned int count,
                                  void* userData, RadioRequestCallback callback);

/// Data of the network evaluation.
///
/// @param type    kind of data, passed through
/// @param data    what the modem needs for it; may be null when `length` is 0
/// @param length  number of bytes, at most 65535
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
/// @param policy  see the record
/// \verdict
/// \sent
RADIO_API int radioSetVeyraConfigPolicy(VeyraConfigPolicy policy, void* userData,
                                        RadioRequestCallback callback);

} // extern "C"
