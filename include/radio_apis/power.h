/// @file
/// \domain{Power and memory}
///
/// Power saving, and what the modem tells of its own resources.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Kinds of power saving switches that the library knows; others are the modem's.
enum RadioPowerSavingType : int32_t {
    RADIO_POWER_SAVING_AT_COMMANDS = 600 ///< \label{AT commands}: a group of switches that are AT commands
};

/// Groups of power saving switches that are AT commands.
enum RadioPowerSavingGroup : int32_t {
    RADIO_POWER_SAVING_GROUP_ASSISTANCE = 1, ///< assistance of the network: five switches, see UAIINFO
    RADIO_POWER_SAVING_GROUP_IVSR = 2,     ///< \label{IVSR}, and an enhancement of release 13: `op` and `dl`
    RADIO_POWER_SAVING_GROUP_NR_LEVEL = 3, ///< \label{NR level}: receive level adjustment of NR, `op`
    RADIO_POWER_SAVING_GROUP_NO_SIM = 4,   ///< \label{no SIM}: no search for LTE and NR without a SIM, `op`
    RADIO_POWER_SAVING_GROUP_LOW_POWER = 5 ///< low power control, `op`
};

/// Power saving switches. Requests for the modem's messages send all ten values in this order.
struct UAIINFO {
    /// group of switches, with type 600 \values{RadioPowerSavingGroup}; with other types as the modem defines it
    int32_t cgType;
    int32_t type;    ///< what is switched, as the modem defines it \values{RadioPowerSavingType}
    int32_t op;      ///< operation; with type 600 in group 1 the wake-up signal of release 16
    int32_t dl;      ///< downlink value; with type 600 in group 1 the MIMO layer reduction of NR
    int32_t ul;      ///< uplink value; with type 600 in group 1 the skipping of uplink transmissions
    int32_t delay;   ///< delay value; with type 600 in group 1 the release preference of NR
    int32_t cnt;     ///< count value; with type 600 in group 1 the power saving of release 16
    int32_t value8;  ///< eighth value, as the modem defines it; not sent with type 600
    int32_t value9;  ///< ninth value, as the modem defines it; not sent with type 600
    int32_t value10; ///< tenth value, as the modem defines it; not sent with type 600
};
static_assert(sizeof(UAIINFO) == 40);

/// When the modem may rest while the device idles. As on the wire.
struct RadioSmartIdleInfoType {
    int32_t type;  ///< kind of idling, as the modem defines it
    int32_t nr_t;  ///< time with NR, as the modem counts it
    int32_t nr_c;  ///< count with NR, as the modem defines it
    int32_t lte_t; ///< time with LTE, as the modem counts it
    int32_t lte_c; ///< count with LTE, as the modem defines it
};
static_assert(sizeof(RadioSmartIdleInfoType) == 20);

inline constexpr unsigned kRadioMaxHeaps = 50; ///< heaps in one answer

/// One heap of the modem.
struct RadioModemHeap {
    char name[20]; ///< name of the heap, at most 19 characters
    uint32_t size; ///< size of the heap \unit{bytes}
    uint32_t used; ///< what is in use of the heap \unit{bytes}
};

/// Result of radioGetModemHeapList: the modem's memory pool and its heaps.
struct RadioModemHeapList {
    uint32_t poolCount;                   ///< whether the modem gave a list \values{0: no, 1: yes}
    char poolName[20];                    ///< name of the pool, always "modem_pool"
    uint32_t size;                        ///< size of the pool \unit{bytes}
    uint32_t used;                        ///< what is in use of the pool \unit{bytes}
    uint32_t free;                        ///< what is free in the pool \unit{bytes}
    uint32_t largestFree;                 ///< largest free block of the pool \unit{bytes}
    uint32_t heapCount;                   ///< number of heaps, at most 50
    RadioModemHeap heaps[kRadioMaxHeaps]; ///< heaps of the pool \countedby{heapCount}
};

inline constexpr unsigned kRadioMaxAtValues = 8; ///< numbers in one answer

/// Result of radioQueryFastDormancyMode, radioQueryLegacyFastDormancyMode and radioGetSarSnsData: the numbers of the
/// answer, up to the first field that is none.
struct RadioAtValues {
    uint32_t count;                    ///< how many numbers the answer has, at most 8
    int32_t values[kRadioMaxAtValues]; ///< numbers of the answer, as the modem defines them \countedby{count}
};

extern "C" {

/// Sets power saving switches. With type 600 they are AT commands of one group: 1 sets five features from `op`,
/// `dl`, `ul`, `delay` and `cnt`, one after the other; 2 two other features from `op` and `dl`; 3 sets `op` for the
/// receive level adjustment of NR, 4 for the search without a SIM, 5 for the low power control.
///
/// @param info  power saving switches
/// \user
/// @param callback  called once with the modem's verdict and, on success, an empty record. With type 600 called once
///                  with RADIO_APIS_SUCCESS when the modem accepted all commands, else with RADIO_APIS_FAILURE at the
///                  first that it did not, each with an empty record; for groups 3 to 5 also with the modem's failure
///                  and no record
/// @return 0 when handed to the modem, and with type 600 and group 1 or 2 0 once started, also when the modem then
///         can't be reached; 1 when refused, as with type 600 every group but 1 to 5
RADIO_API int radioSetPowerSavingState(const UAIINFO& info, void* userData, RadioRequestCallback callback);

/// Sets when the modem may rest while the device idles.
///
/// @param info  times and counts of idling, as the modem counts them; sent as they are
/// \verdict
/// \sent
RADIO_API int radioSetSmartIdleCfg(const RadioSmartIdleInfoType& info, void* userData,
                                   RadioRequestCallback callback);

/// Switches the power boost. The modem gets the same message as from radioSetSarRegionCode: it can't tell the two
/// apart.
///
/// @param state  state of the power boost, as the modem defines it
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
/// @param index  timer of fast dormancy, as the modem numbers it \values{-1: not sent}
/// @param timer  time of the timer, as the modem counts it \values{-1: not sent}
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
/// @param state  state of the converter, a sum of 1: asleep, 2: the receiver follows the transmitter, 4: the 100k
///               mode, 8: the converter is an RQ4120, which needs 2 or 4 \range{0 to 15}; higher bits are ignored
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem accepted all commands, else with
///                  RADIO_APIS_FAILURE; the record is empty. Without 8 also with the modem's failure and no record
/// @return 0 when handed to the modem, and with 8 0 once started, also when the modem then can't be reached; 1 when
///         refused, as for an RQ4120 with neither 2 nor 4
RADIO_API int radioUpdateDcdcSleepState(int state, void* userData, RadioRequestCallback callback);

/// Has the modem ask the network to release its connection (fast dormancy).
///
/// \command
/// \sent
RADIO_API int radioSendFastDormancy(void* userData, RadioRequestCallback callback);

/// Sets the modem's conformance mode of packet services, which fast dormancy depends on.
///
/// @param value1  first value of the conformance mode, as the modem defines it
/// @param value2  second value of the conformance mode, as the modem defines it
/// \command
/// \sent
RADIO_API int radioSetPSConformanceMode(int value1, int value2, void* userData,
                                        RadioRequestCallback callback);

/// The modem's conformance mode of packet services, which fast dormancy depends on.
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
