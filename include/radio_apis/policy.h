/// @file
/// \domain{Indications}
///
/// Which indications the modem sends, and how many it sent.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxPolicies = 48; ///< of one request

#pragma pack(push, 1)

/// The policy for one indication. As on the wire.
struct RadioPolicyConfig {
    uint32_t indication; ///< the indication's number
    uint8_t enabled;     ///< 1: sent, 0: held back
    uint32_t interval;   ///< shortest time between two, ms
    int16_t threshold;   ///< change that is worth one, as the modem defines it
    uint8_t length1;     ///< characters in `text1`, at most 9
    char text1[10];      ///< the modem defines what it is for
    uint8_t length2;     ///< characters in `text2`, at most 9
    char text2[10];      ///< the modem defines what it is for
};

/// The policies. As on the wire. Also the result of radioGetModemIndicationPolicy, whose texts always end
/// with a NUL.
struct RadioPolicyConfigListType {
    uint32_t count;                                ///< at most 48
    RadioPolicyConfig policies[kRadioMaxPolicies]; ///< the first `count` count
};

/// Whether one indication is sent. As on the wire.
struct RadioIndicationConfig {
    uint32_t indication; ///< the indication's number
    uint8_t enabled;     ///< 1: sent, 0: held back
};

#pragma pack(pop)

static_assert(sizeof(RadioPolicyConfig) == 33);
static_assert(sizeof(RadioPolicyConfigListType) == 1588);
static_assert(sizeof(RadioIndicationConfig) == 5);

inline constexpr unsigned kRadioMaxIndicationConfigs = 64; ///< of one request

/// The switches of several indications.
struct RadioIndicationConfigListType {
    uint32_t count;                                            ///< at most 64; more are not sent
    RadioIndicationConfig configs[kRadioMaxIndicationConfigs]; ///< the first `count` count
};

inline constexpr unsigned kRadioMaxReportRecords = 100; ///< that an answer holds

/// How often an indication was sent. As on the wire.
struct RadioIndicationReport {
    uint32_t indication; ///< the indication's number
    uint32_t times;      ///< how often it was sent
};

/// Result of radioGetIndicationReportRecords.
struct RadioIndicationReportList {
    uint32_t count;                                        ///< at most 100
    RadioIndicationReport records[kRadioMaxReportRecords]; ///< the first `count` count
};

extern "C" {

/// Sets the policies.
///
/// @param policies  sent as they are
/// \verdict
/// \sent
RADIO_API int radioSetModemIndicationPolicy(const RadioPolicyConfigListType& policies, void* userData,
                                            RadioRequestCallback callback);

/// The policies.
///
/// \fills{indicationPolicy}
/// \sent
RADIO_API int radioGetModemIndicationPolicy(void* userData, RadioRequestCallback callback);

/// How often the modem sent which indication.
///
/// \fills{indicationReports}
/// \sent
RADIO_API int radioGetIndicationReportRecords(void* userData, RadioRequestCallback callback);

/// Switches indications of one kind.
///
/// @param type     which kind, passed through
/// @param configs  see the record
/// \verdict
/// \sent
RADIO_API int radioSetIndicationConfig(int type, const RadioIndicationConfigListType& configs, void* userData,
                                       RadioRequestCallback callback);

} // extern "C"
