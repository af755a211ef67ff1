/// @file
/// \domain{Power and memory}
///
/// Power saving, and what the modem tells of its own resources.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Switches of the power saving features. Requests for the modem's messages send all ten values in this
/// order.
struct UAIINFO {
    int32_t cgType;  ///< the group of switches, for requests that become AT commands
    int32_t type;    ///< what is switched; 600 makes the request an AT command
    int32_t op;      ///< operation
    int32_t dl;      ///< downlink value
    int32_t ul;      ///< uplink value
    int32_t delay;   ///< delay value
    int32_t cnt;     ///< count value
    int32_t value8;  ///< passed through
    int32_t value9;  ///< passed through
    int32_t value10; ///< passed through
};
static_assert(sizeof(UAIINFO) == 40);

/// When the modem may rest while the device idles. As on the wire.
struct RadioSmartIdleInfoType {
    int32_t type;  ///< kind of idling
    int32_t nr_t;  ///< NR: time
    int32_t nr_c;  ///< NR: count
    int32_t lte_t; ///< LTE: time
    int32_t lte_c; ///< LTE: count
};
static_assert(sizeof(RadioSmartIdleInfoType) == 20);

inline constexpr unsigned kRadioMaxHeaps = 50; ///< that an answer holds

/// One heap of the modem.
struct RadioModemHeap {
    char name[20]; ///< at most 19 characters
    uint32_t size; ///< bytes
    uint32_t used; ///< bytes
};

/// Result of radioGetModemHeapList.
struct RadioModemHeapList {
    uint32_t poolCount;                   ///< 1 when the modem gave a list, 0 when it gave none
    char poolName[20];                    ///< "modem_pool"
    uint32_t size;                        ///< bytes of the pool
    uint32_t used;                        ///< bytes in use
    uint32_t free;                        ///< bytes free
    uint32_t largestFree;                 ///< bytes of the largest free block
    uint32_t heapCount;                   ///< at most 50
    RadioModemHeap heaps[kRadioMaxHeaps]; ///< the first `heapCount` count
};

inline constexpr unsigned kRadioMaxAtValues = 8; ///< that an answer holds

/// The numbers of an answer, up to the first field that is none: result of radioQueryFastDormancyMode,
/// radioQueryLegacyFastDormancyMode and radioGetSarSnsData.
struct RadioAtValues {
    uint32_t count;                    ///< values that count, at most 8
    int32_t values[kRadioMaxAtValues]; ///< the first `count` count
};

extern "C" {

/// Sets power saving switches. With type 600 they are AT commands of one group: 1 sets five features from `op`,
/// `dl`, `ul`, `delay` and `cnt`, one after the other; 2 two other features from `op` and `dl`; 3 sets `op` for the
/// receive level adjustment of NR, 4 for the search without a SIM, 5 for the low power control.
///
/// @param info  the switches
/// \user
/// @param callback  called once with the modem's verdict and, on success, an empty record. With type 600 called once
///                  with RADIO_APIS_SUCCESS when the modem accepted all commands, else with RADIO_APIS_FAILURE at the
///                  first that it did not, each with an empty record; for groups 3 to 5 also with the modem's failure
///                  and no record
/// @return 0 when handed to the modem, and with type 600 and group 1 or 2 0 once started, also when the modem then
///         can't be reached; 1 when refused, as with type 600 every group but 1 to 5
RADIO_API int radioSetPowerSavingState(const UAIINFO& info, void* userData, RadioRequestCallback callback);

/// Sets when the modem may rest.
///
/// @param info  sent as it is
/// \verdict
/// \sent
RADIO_API int radioSetSmartIdleCfg(const RadioSmartIdleInfoType& info, void* userData,
                                   RadioRequestCallback callback);

/// Switches the power boost. The modem gets the same message as from radioSetSarRegionCode: it can't tell the two
/// apart.
///
/// @param state  passed through
/// \verdict
/// \sent
RADIO_API int radioSetPowerBoostState(int state, void* userData, RadioRequestCallback callback);

/// Has the modem take its power statistics.
///
/// \fills{powerStatistics}
/// \sent
RADIO_API int radioGetPowerStatistics(void* userData, RadioRequestCallback callback);

/// Sets a timer of fast dormancy, the early release of an idle connection (3GPP TS 25.331).
///
/// @param index  which timer; -1: not sent
/// @param timer  its time as the modem counts it; -1: not sent
/// \verdict
/// \sent
RADIO_API int radioSetFastDormancyTimer(int index, int timer, void* userData, RadioRequestCallback callback);

/// What the modem's memory is used for.
///
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS, whatever the modem said, and \answer{modemHeapList}; or with
///                  RADIO_APIS_INVALID_PARAMETER and no record when the modem lists more than 50 heaps
/// \sent
RADIO_API int radioGetModemHeapList(void* userData, RadioRequestCallback callback);

/// Sets how the modem's voltage converter rests.
///
/// @param state  bits: 0 asleep, 1 the receiver follows the transmitter, 2 the 100k mode, 3 the converter is an
///               RQ4120, which needs bit 1 or 2
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem accepted all commands, else with
///                  RADIO_APIS_FAILURE; the record is empty. Without bit 3 also with the modem's failure and no
///                  record
/// @return 0 when handed to the modem, and with bit 3 0 once started, also when the modem then can't be reached; 1
///         when refused, as for an RQ4120 without bit 1 or 2
RADIO_API int radioUpdateDcdcSleepState(int state, void* userData, RadioRequestCallback callback);

/// Has the modem ask the network to release its connection (fast dormancy).
///
/// \command
/// \sent
RADIO_API int radioSendFastDormancy(void* userData, RadioRequestCallback callback);

/// Sets the modem's conformance of packet services.
///
/// @param value1  as the modem defines it
/// @param value2  likewise
/// \command
/// \sent
RADIO_API int radioSetPSConformanceMode(int value1, int value2, void* userData,
                                        RadioRequestCallback callback);

/// The modem's conformance of packet services, which fast dormancy depends on.
///
/// \asks{atValues, the modem refused}
/// \sent
RADIO_API int radioQueryFastDormancyMode(void* userData, RadioRequestCallback callback);

/// Whether fast dormancy of releases before 8 is off.
///
/// \asks{atValues, the modem refused}
/// \sent
RADIO_API int radioQueryLegacyFastDormancyMode(void* userData, RadioRequestCallback callback);

} // extern "C"
