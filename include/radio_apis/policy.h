/// @file
/// \domain{Indications}
///
/// Which indications the modem sends, and how many it sent.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxPolicies = 48; ///< policies in one request

#pragma pack(push, 1)

/// The policy for one indication. As on the wire.
struct RadioPolicyConfig {
    uint32_t indication; ///< number of the indication
    uint8_t enabled;     ///< whether the modem sends the indication \values{0: off, 1: on}
    uint32_t interval;   ///< shortest time between two of these indications \unit{ms}
    int16_t threshold;   ///< change that is worth an indication, as the modem defines it
    uint8_t length1;     ///< number of characters in `text1`, at most 9
    char text1[10];      ///< first text, as the modem defines it \countedby{length1}
    uint8_t length2;     ///< number of characters in `text2`, at most 9
    char text2[10];      ///< second text, as the modem defines it \countedby{length2}
};

/// Result of radioGetModemIndicationPolicy, whose texts always end with a NUL, and argument of
/// radioSetModemIndicationPolicy: policies for indications. As on the wire.
struct RadioPolicyConfigListType {
    uint32_t count;                                ///< number of policies, at most 48
    RadioPolicyConfig policies[kRadioMaxPolicies]; ///< policies, one for each indication \countedby{count}
};

/// Whether one indication is sent. As on the wire.
struct RadioIndicationConfig {
    uint32_t indication; ///< number of the indication
    uint8_t enabled;     ///< whether the modem sends the indication \values{0: off, 1: on}
};

#pragma pack(pop)

static_assert(sizeof(RadioPolicyConfig) == 33);
static_assert(sizeof(RadioPolicyConfigListType) == 1588);
static_assert(sizeof(RadioIndicationConfig) == 5);

inline constexpr unsigned kRadioMaxIndicationConfigs = 64; ///< switches in one request

/// The switches of several indications.
struct RadioIndicationConfigListType {
    uint32_t count;                                            ///< number of switches; 64 at most are sent
    RadioIndicationConfig configs[kRadioMaxIndicationConfigs]; ///< switches of indications \countedby{count}
};

inline constexpr unsigned kRadioMaxReportRecords = 100; ///< indications in one answer

/// How often an indication was sent. As on the wire.
struct RadioIndicationReport {
    uint32_t indication; ///< number of the indication
    uint32_t times;      ///< how often the modem sent it
};

/// Result of radioGetIndicationReportRecords: how often each indication was sent.
struct RadioIndicationReportList {
    uint32_t count;                                        ///< number of indications, at most 100
    RadioIndicationReport records[kRadioMaxReportRecords]; ///< indications that were sent \countedby{count}
};

extern "C" {

/// Sets for each indication whether the modem sends it, and how often.
///
/// @param policies  policies, one for each indication; sent as they are
/// \verdict
/// \sent
RADIO_API int radioSetModemIndicationPolicy(const RadioPolicyConfigListType& policies, void* userData,
                                            RadioRequestCallback callback);

/// Which indications the modem sends, and how often.
///
/// \fills{indicationPolicy}
/// \sent
RADIO_API int radioGetModemIndicationPolicy(void* userData, RadioRequestCallback callback);

/// How often the modem sent which indication.
///
/// \fills{indicationReports}
/// \sent
RADIO_API int radioGetIndicationReportRecords(void* userData, RadioRequestCallback callback);

/// Switches indications of one kind on and off.
///
/// @param type     kind of the indications, as the modem defines it
/// @param configs  switches, one for each indication
/// \verdict
/// \sent
RADIO_API int radioSetIndicationConfig(int type, const RadioIndicationConfigListType& configs, void* userData,
                                       RadioRequestCallback callback);

} // extern "C"
