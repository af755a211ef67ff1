/// @file
/// \domain{Search}
///
/// How the modem searches for networks, and which it leaves alone (3GPP TS 23.122).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// A background search for the home PLMN.
struct RadioHplmnBgSearchInfoType {
    int32_t enable;         ///< not sent
    int32_t option;         ///< not sent
    int32_t repeatInterval; ///< time between two searches as the modem counts it; the low 16 bits are sent
};

/// A PLMN that the modem avoids.
struct RadioPlmnBlockInfo {
    int32_t type;           ///< kind of block; its low 8 bits are sent
    int32_t rat;            ///< 0 is sent as 4 and 1 as 128, of others the low 8 bits
    int32_t reserved;       ///< not sent
    int32_t mcc;            ///< mobile country code, 0 to 999; sent without leading zeros
    int32_t mnc;            ///< mobile network code, 0 to 999
    uint8_t mncThreeDigits; ///< not 0: the MNC has three digits, otherwise two
};

/// What the modem does while it is out of service: values as it defines them.
struct RadioOosCfgInfo {
    /// Of options 3 and 4: 0 off, anything else on.
    int32_t enable;
    /// What is configured, and by which values: 1 by p7 to p11, 2 by p1, p2, p3, p5 and p6, 3 and 4 by `enable`,
    /// 5 by p4; 100 the sniffer that watches for a network's return, by p7 to p11. The command of option 1 has room
    /// for 223 characters of numbers, with p7 in it 2 times, p8 4, p9 6, p10 7 and p11 4 times, and is cut there:
    /// numbers of up to 9 characters, the sign among them, always survive.
    int32_t option;
    int32_t p1;  ///< of option 2
    int32_t p2;  ///< of option 2
    int32_t p3;  ///< of option 2
    int32_t p4;  ///< of option 5
    int32_t p5;  ///< of option 2
    int32_t p6;  ///< of option 2
    int32_t p7;  ///< of options 1 and 100; of p7 to p11 option 100 sends the low 8 bits
    int32_t p8;  ///< of options 1 and 100
    int32_t p9;  ///< of options 1 and 100
    int32_t p10; ///< of options 1 and 100
    int32_t p11; ///< of options 1 and 100
};
static_assert(sizeof(RadioOosCfgInfo) == 52);

extern "C" {

/// Sets how often the modem searches for the home PLMN.
///
/// @param info  see the record
/// \verdict
/// \sent
RADIO_API int radioHplmnBgSearch(const RadioHplmnBgSearchInfoType& info, void* userData,
                                 RadioRequestCallback callback);

/// Lets the modem use a PLMN again that it avoids.
///
/// @param info  the PLMN and the kind of its block. Of its text, MCC and MNC, at most six characters are sent
/// \verdict
/// \sent
RADIO_API int radioPerformPlmnUnblock(RadioPlmnBlockInfo info, void* userData, RadioRequestCallback callback);

/// Takes a tracking area from the list of forbidden ones (3GPP TS 24.301, TS 24.501).
///
/// @param option          not sent
/// @param mcc             mobile country code, 0 to 999; sent without leading zeros
/// @param mnc             mobile network code, 0 to 999
/// @param mncThreeDigits  whether the MNC has three digits, otherwise two
/// @param code            the tracking area code; its low 16 bits are sent
/// @param type            kind of list as the modem defines it; its low 8 bits are sent
/// \verdict
/// \sent
RADIO_API int radioClearForbiddenTai(int option, int mcc, int mnc, bool mncThreeDigits, int code, int type,
                                     void* userData, RadioRequestCallback callback);

/// Sets when the modem bars a cell that fails it (3GPP TS 36.304, TS 38.304).
///
/// @param threshold    failures until then; the low 8 bits are sent
/// @param watchPeriod  in which they are counted, as the modem counts time; the low 16 bits are sent
/// @param barringTime  how long the cell is barred, as the modem counts time
/// \fills{cellBarring}
/// \sent
RADIO_API int radioConfigCellBarringParam(unsigned int threshold, unsigned int watchPeriod,
                                          unsigned int barringTime, void* userData,
                                          RadioRequestCallback callback);

/// Sets what the modem does while it is out of service.
///
/// @param info  see the record
/// \user
/// @param callback  for options 1 to 5 called once with RADIO_APIS_SUCCESS when the modem accepted the command, else
///                  with RADIO_APIS_FAILURE, each with an empty record; or with the modem's failure and no record.
///                  For option 100 called once with the modem's verdict and, on success, an empty record
/// \sent{as for another option}
RADIO_API int radioSetOosCfg(const RadioOosCfgInfo& info, void* userData, RadioRequestCallback callback);

} // extern "C"
