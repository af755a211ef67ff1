/// @file
/// \domain{Quality of service}
///
/// Quality of service of data connections. What is measured and how often is set here; the reports come as
/// RADIO_EVENT_QOS_PERIOD_REPORT_IND and RADIO_EVENT_QOS_EVENT_REPORT_IND.
#pragma once

#include "radio_apis/blob.h"
#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetQosData: measured data, as the modem defines it.
using RadioQosData = RadioBlob<2048>;

extern "C" {

/// Sets how often the modem reports quality of service.
///
/// @param period  time between two reports, as the modem counts it \range{-2147483648 to 2147483647}; its low 32 bits
///                are sent
/// \verdict
/// \sent
RADIO_API int radioSetQosReportPeriod(long period, void* userData, RadioRequestCallback callback);

/// Sets what the modem measures of quality of service.
///
/// @param type    kind of configuration, as the modem defines it
/// @param data    configuration, as the modem defines it \range{0 to 65535} \countedby{length}; may be null when
///                `length` is 0
/// @param length  number of bytes in `data`
/// \verdict
/// \sentor{11 for null data or too much of it}
RADIO_API int radioSetQosConfig(signed char type, unsigned char* data, unsigned int length, void* userData,
                                RadioRequestCallback callback);

/// What the modem measured of quality of service.
///
/// @param type  kind of data, as the modem defines it
/// \fills{qosData}
/// \sent
RADIO_API int radioGetQosData(int type, void* userData, RadioRequestCallback callback);

} // extern "C"
