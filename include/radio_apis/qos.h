/// @file
/// \domain{Quality of service}
///
/// Quality of service of data connections.
#pragma once

#include "radio_apis/blob.h"
#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetQosData.
using RadioQosData = RadioBlob<2048>;

extern "C" {

/// Sets how often quality of service is reported.
///
/// @param period  as the modem counts it, 32 bits; further ones are not sent
/// \verdict
/// \sent
RADIO_API int radioSetQosReportPeriod(long period, void* userData, RadioRequestCallback callback);

/// Sets what is measured.
///
/// @param type    kind of configuration
/// @param data    the configuration; may be null when `length` is 0
/// @param length  number of bytes, at most 65535
/// \verdict
/// \sentor{11 for null data or too much of it}
RADIO_API int radioSetQosConfig(signed char type, unsigned char* data, unsigned int length, void* userData,
                                RadioRequestCallback callback);

/// What was measured.
///
/// @param type  kind of data, passed through
/// \fills{qosData}
/// \sent
RADIO_API int radioGetQosData(int type, void* userData, RadioRequestCallback callback);

} // extern "C"
