/// @file
/// \domain{Camping and barring}
///
/// Where the modem searches for cells and camps: receive levels, locks, barring, order of technologies
/// (3GPP TS 36.304, TS 38.304).
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// The least receive levels of a cell to camp on, as the modem defines them.
struct RadioQrxlvminCfgInfo {
    int32_t enable; ///< of options 13 and 14: 0 off, anything else on
    int32_t option; ///< 11: the values for LTE; 12: those for NR; 13: the switch for LTE; 14: the one for NR
    int32_t q1;     ///< q1 to q3: LTE
    int32_t q2;     ///< LTE
    int32_t q3;     ///< LTE
    int32_t q4;     ///< q4 to q9: NR
    int32_t q5;     ///< NR
    int32_t q6;     ///< NR
    int32_t q7;     ///< NR
    int32_t q8;     ///< NR
    int32_t q9;     ///< NR
};
static_assert(sizeof(RadioQrxlvminCfgInfo) == 44);

/// Result of radioGetQrxlvminCfg.
struct RadioQrxlvmin {
    int32_t rat;       ///< 13: LTE, three values; 20: NR, six values
    int32_t values[6]; ///< in the order of RadioQrxlvminCfgInfo
};

/// What the modem does for a SIM card in arrears. Options 11, 12, 15 and 16 have no value.
struct RadioArrearageCfgInfo {
    int32_t option; ///< 11 to 17: what is configured; 18: the switch of all of it
    int32_t enable; ///< of option 18: 0 off, anything else on
    int32_t a[21]; ///< option 13 sends the first 15, option 14 nine from a[5] on, option 17 six from a[15] on
};
static_assert(sizeof(RadioArrearageCfgInfo) == 92);

/// A cell to stay on.
struct RadioLockCellInfoType {
    int32_t lockType;      ///< 0, 3, 4 or 5
    int32_t bandIndicator; ///< 0 or 1
    int32_t arfcn;         ///< downlink EARFCN or NR-ARFCN
    int32_t pci;           ///< physical cell identity
    int32_t mode;          ///< 1 and 2 each add a last value to the command, others don't
};
static_assert(sizeof(RadioLockCellInfoType) == 20);

extern "C" {

/// Sets whether the modem searches in the background for better technologies. Ignoring the neighbour list
/// without searching changes nothing and succeeds, on the timer thread.
///
/// @param rat                  1: for LTE while in 3G or 2G; 0: for NR while in LTE, 3G or 2G
/// @param ignoreNeighbourList  whether frequencies outside of the neighbour list count
/// @param enable               whether to search
/// \commands
/// \started{1 for another rat}
RADIO_API int radioSetBackgroundSearch(int rat, bool ignoreNeighbourList, bool enable, void* userData,
                                       RadioRequestCallback callback);

/// Sets the least receive levels.
///
/// @param info  see the record
/// \command
/// \sent{as for another option}
RADIO_API int radioSetQrxlvminCfg(const RadioQrxlvminCfgInfo& info, void* userData,
                                  RadioRequestCallback callback);

/// The least receive levels.
///
/// @param rat  13: LTE, 20: NR
/// \asks{qrxlvmin, the modem refused or the answer has another number of values\, or other values than numbers}
/// \sent{as for another rat}
RADIO_API int radioGetQrxlvminCfg(int rat, void* userData, RadioRequestCallback callback);

/// Sets what happens for a SIM card in arrears.
///
/// @param info  see the record
/// \command
/// \sent{as for another option}
RADIO_API int radioSetArrearageCfg(const RadioArrearageCfgInfo& info, void* userData,
                                   RadioRequestCallback callback);

/// Has the modem forget the frequencies that it remembers.
///
/// @param option  logged only
/// \commands
/// \started
RADIO_API int radioClearStoredFrequency(int option, void* userData, RadioRequestCallback callback);

/// Sets in which order the modem scans the technologies.
///
/// @param rats   in order of preference, numbered as in RadioBandRat: 4 LTE, 5 NR, 1 UMTS, 0 GSM. The first one
///               decides: LTE before NR, or NR before LTE
/// @param count  LTE first: 3 or 4, since NR may be left out; NR first: 4
/// \command
/// \sent{as for null, another count or another first technology}
RADIO_API int radioSetRatScan(int* rats, int count, void* userData, RadioRequestCallback callback);

/// Keeps the modem on one cell.
///
/// @param info  see the record
/// \command
/// \sent{as for a lock type or band indicator that there is not}
RADIO_API int radioLockCellAndBand(RadioLockCellInfoType info, void* userData, RadioRequestCallback callback);

/// Ends the lock of a cell.
///
/// @param option  not sent
/// \command
/// \sent
RADIO_API int radioUnlockCellAndBand(int option, void* userData, RadioRequestCallback callback);

/// Sets whether a cell is barred after every radio link failure.
///
/// @param value  0 off, 1 on
/// \command
/// \sent
RADIO_API int radioEnableCellBarring(unsigned char value, void* userData, RadioRequestCallback callback);

/// Sets whether cells are barred between which the modem goes to and fro.
///
/// @param type     0: neither, 1: those of LTE, 2: those of NR, 3: both
/// @param barTime  how long a cell is barred, as the modem counts it; barTime, period and hitCnt are not sent with
///                 type 0
/// @param period   in which time changes are counted
/// @param hitCnt   how many changes are too many
/// @param reserve  logged only
/// \commands
/// \started{1 for another type}
RADIO_API int radioSetPingpongBarSetting(int type, int barTime, int period, int hitCnt, int reserve,
                                         void* userData, RadioRequestCallback callback);

/// Has the modem return to a higher technology.
///
/// @param rat      4: LTE, 5: NR
/// @param reserve  not sent
/// \command
/// \sent{as for another rat}
RADIO_API int radioPerformRetHighRat(int rat, int reserve, void* userData, RadioRequestCallback callback);

/// Sets what the modem does when redirections from LTE to NR keep failing.
///
/// @param value   as the modem defines it
/// @param value2  not sent
/// @param value3  not sent
/// @param value4  not sent
/// @param value5  not sent
/// @param value6  not sent
/// \command
/// \sent
RADIO_API int radioSetRedirectOptSetting(int value, int value2, int value3, int value4, int value5,
                                         int value6, void* userData, RadioRequestCallback callback);

/// Sets whether the attach of the SIM card without data service comes last.
///
/// @param value   as the modem defines it
/// @param value2  not sent
/// @param value3  not sent
/// @param value4  not sent
/// @param value5  not sent
/// \command
/// \sent
RADIO_API int radioSetAttachPriority(int value, int value2, int value3, int value4, int value5,
                                     void* userData, RadioRequestCallback callback);

} // extern "C"
