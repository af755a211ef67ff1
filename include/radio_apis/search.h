/// @file
/// \domain{Search}
///
/// How the modem searches for networks, and which it leaves alone (3GPP TS 23.122).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// How often the modem searches in the background for the home PLMN.
struct RadioHplmnBgSearchInfoType {
    int32_t enable; ///< reserved \unused
    int32_t option; ///< reserved \unused
    /// time between two searches, as the modem counts it \range{0 to 65535}; the low 16 bits are sent
    int32_t repeatInterval;
};

/// A PLMN that the modem avoids.
struct RadioPlmnBlockInfo {
    int32_t type; ///< kind of block, as the modem defines it \range{0 to 255}; the low 8 bits are sent
    /// radio access technology \range{0 to 255} \values{0: LTE, 1: NR}; 0 and 1 are sent as the modem's 4 and 128, of
    /// others the low 8 bits
    int32_t rat;
    int32_t reserved; ///< reserved \unused
    int32_t mcc;      ///< mobile country code \range{0 to 999}; sent without leading zeros
    int32_t mnc;      ///< mobile network code \range{0 to 999}
    /// whether the MNC has three digits, otherwise two \values{0: no, 1: yes}; as 1 any number but 0
    uint8_t mncThreeDigits;
};

/// What radioSetOosCfg configures.
enum RadioOosOption : int32_t {
    RADIO_OOS_RECOVERY_TIMERS = 1,           ///< timers of the recovery of service, by `p7` to `p11`
    RADIO_OOS_SERVICE_RECOVERY = 2,          ///< recovery of service, by `p1`, `p2`, `p3`, `p5` and `p6`
    RADIO_OOS_INACTIVE_RECOVERY_CONTROL = 3, ///< control of the recovery in inactive mode, by `enable`
    RADIO_OOS_INACTIVE_RECOVERY = 4,         ///< recovery of service in inactive mode, by `enable`
    RADIO_OOS_SERVICE_RECOVERY_VALUE4 = 5,   ///< fourth value of the recovery of service, by `p4`
    RADIO_OOS_SNIFFER = 100 ///< sniffer that watches for a network's return, by `p7` to `p11`
};

/// What the modem does while it is out of service.
struct RadioOosCfgInfo {
    int32_t enable; ///< of options 3 and 4: whether it is on \values{0: off, 1: on}; any number but 0 is on
    /// what is configured, and by which values \values{RadioOosOption}. The values of other options are ignored.
    ///
    /// The command of option 1 has room for 223 characters of numbers, with p7 in it 2 times, p8 4, p9 6, p10 7 and
    /// p11 4 times, and is cut there: numbers of up to 9 characters, the sign among them, always survive.
    int32_t option;
    int32_t p1;  ///< of option 2: first value, as the modem defines it
    int32_t p2;  ///< of option 2: second value, as the modem defines it
    int32_t p3;  ///< of option 2: third value, as the modem defines it
    int32_t p4;  ///< of option 5: fourth value, as the modem defines it
    int32_t p5;  ///< of option 2: fifth value, as the modem defines it
    int32_t p6;  ///< of option 2: sixth value, as the modem defines it
    int32_t p7;  ///< of options 1 and 100: first value, as the modem defines it; 100 sends the low 8 bits
    int32_t p8;  ///< of options 1 and 100: second value, as the modem defines it; 100 sends the low 8 bits
    int32_t p9;  ///< of options 1 and 100: third value, as the modem defines it; 100 sends the low 8 bits
    int32_t p10; ///< of options 1 and 100: fourth value, as the modem defines it; 100 sends the low 8 bits
    int32_t p11; ///< of options 1 and 100: fifth value, as the modem defines it; 100 sends the low 8 bits
};
static_assert(sizeof(RadioOosCfgInfo) == 52);

extern "C" {

/// Sets how often the modem searches for the home PLMN.
///
/// @param info  how often the modem searches
/// \verdict
/// \sent
RADIO_API int radioHplmnBgSearch(const RadioHplmnBgSearchInfoType& info, void* userData,
                                 RadioRequestCallback callback);

/// Lets the modem use a PLMN again that it avoids.
///
/// @param info  the PLMN and the kind of its block; of the digits of MCC and MNC together at most six are sent
/// \verdict
/// \sent
RADIO_API int radioPerformPlmnUnblock(RadioPlmnBlockInfo info, void* userData, RadioRequestCallback callback);

/// Takes a tracking area from the list of forbidden ones (3GPP TS 24.301, TS 24.501).
///
/// @param option          reserved \unused
/// @param mcc             mobile country code \range{0 to 999}; sent without leading zeros
/// @param mnc             mobile network code \range{0 to 999}
/// @param mncThreeDigits  whether the MNC has three digits, otherwise two
/// @param code            tracking area code \range{0 to 65535}; the low 16 bits are sent
/// @param type            kind of list, as the modem defines it \range{0 to 255}; the low 8 bits are sent
/// \verdict
/// \sent
RADIO_API int radioClearForbiddenTai(int option, int mcc, int mnc, bool mncThreeDigits, int code, int type,
                                     void* userData, RadioRequestCallback callback);

/// Sets when the modem bars a cell that fails it (3GPP TS 36.304, TS 38.304).
///
/// @param threshold    number of failures until the cell is barred \range{0 to 255}; the low 8 bits are sent
/// @param watchPeriod  time in which failures are counted, as the modem counts it \range{0 to 65535}; the low 16 bits
///                     are sent
/// @param barringTime  how long the cell is barred, as the modem counts time
/// \fills{cellBarring}
/// \sent
RADIO_API int radioConfigCellBarringParam(unsigned int threshold, unsigned int watchPeriod,
                                          unsigned int barringTime, void* userData,
                                          RadioRequestCallback callback);

/// Sets what the modem does while it is out of service.
///
/// @param info  what is configured, and its values
/// \user
/// @param callback  for options 1 to 5 called once with RADIO_APIS_SUCCESS when the modem accepted the command, else
///                  with RADIO_APIS_FAILURE, each with an empty record; or with the modem's failure and no record.
///                  For option 100 called once with the modem's verdict and, on success, an empty record
/// \sent{as for another option}
RADIO_API int radioSetOosCfg(const RadioOosCfgInfo& info, void* userData, RadioRequestCallback callback);

} // extern "C"
