/// @file
/// \domain{Camping and barring}
///
/// Where the modem searches for cells and camps: receive levels, locks, barring, order of technologies
/// (3GPP TS 36.304, TS 38.304).
#pragma once

#include "radio_apis/rat.h"
#include "radio_apis/result.h"

#include <cstdint>

/// The technology that radioSetBackgroundSearch is about.
enum RadioBackgroundSearchRat : int32_t {
    RADIO_BACKGROUND_SEARCH_NR = 0, ///< search for \label{NR} while in LTE, 3G or 2G
    RADIO_BACKGROUND_SEARCH_LTE = 1 ///< search for \label{LTE} while in 3G or 2G
};

/// What radioSetQrxlvminCfg sets.
enum RadioQrxlvminOption : int32_t {
    RADIO_QRXLVMIN_OPTION_LTE_LEVELS = 11, ///< \label{LTE levels}: the levels of LTE, `q1` to `q3`
    RADIO_QRXLVMIN_OPTION_NR_LEVELS = 12,  ///< \label{NR levels}: the levels of NR, `q4` to `q9`
    RADIO_QRXLVMIN_OPTION_LTE_SWITCH = 13, ///< \label{LTE switch}: whether those of LTE are used, `enable`
    RADIO_QRXLVMIN_OPTION_NR_SWITCH = 14   ///< \label{NR switch}: whether those of NR are used, `enable`
};

/// The technology whose least receive levels are asked for.
enum RadioQrxlvminRat : int32_t {
    RADIO_QRXLVMIN_LTE = 13, ///< \label{LTE}, which has three levels
    RADIO_QRXLVMIN_NR = 20   ///< \label{NR}, which has six levels
};

/// The least receive levels of a cell to camp on, of one technology, or the switch of their use.
struct RadioQrxlvminCfgInfo {
    int32_t enable; ///< of options 13 and 14: whether the levels are used \values{0: off, 1: on}; not 0 is on
    int32_t option; ///< what is set, and by which members \values{RadioQrxlvminOption}; others are refused
    int32_t q1;     ///< of option 11: first level of LTE, as the modem defines it
    int32_t q2;     ///< of option 11: second level of LTE, as the modem defines it
    int32_t q3;     ///< of option 11: third level of LTE, as the modem defines it
    int32_t q4;     ///< of option 12: first level of NR, as the modem defines it
    int32_t q5;     ///< of option 12: second level of NR, as the modem defines it
    int32_t q6;     ///< of option 12: third level of NR, as the modem defines it
    int32_t q7;     ///< of option 12: fourth level of NR, as the modem defines it
    int32_t q8;     ///< of option 12: fifth level of NR, as the modem defines it
    int32_t q9;     ///< of option 12: sixth level of NR, as the modem defines it
};
static_assert(sizeof(RadioQrxlvminCfgInfo) == 44);

/// Result of radioGetQrxlvminCfg: the least receive levels of one technology.
struct RadioQrxlvmin {
    int32_t rat;       ///< radio access technology \values{RadioQrxlvminRat}
    int32_t values[6]; ///< levels, in the order of RadioQrxlvminCfgInfo: three of LTE, six of NR
};

/// What the modem does for a SIM card in arrears. Options 11, 12, 15 and 16 have no values.
struct RadioArrearageCfgInfo {
    /// what is configured, as the modem numbers it \range{11 to 18} \values{18: switch}; 18 is the switch of all of it
    int32_t option;
    int32_t enable; ///< of option 18: whether it is on \values{0: off, 1: on}; any number but 0 is on
    /// values, as the modem defines them; option 13 sends the first 15, option 14 nine from a[5] on, option 17 six from
    /// a[15] on
    int32_t a[21];
};
static_assert(sizeof(RadioArrearageCfgInfo) == 92);

/// A cell to stay on.
struct RadioLockCellInfoType {
    int32_t lockType;      ///< kind of lock, as the modem numbers it: 0, 3, 4 or 5 \range{0 to 5}
    int32_t bandIndicator; ///< band indicator of the frequency, as the modem numbers it \range{0 to 1}
    int32_t arfcn;         ///< downlink EARFCN or NR-ARFCN of the cell
    int32_t pci;           ///< physical cell identity
    int32_t mode; ///< mode of the lock: 1 and 2 each add a value to the end of the command, others don't
};
static_assert(sizeof(RadioLockCellInfoType) == 20);

/// The technologies in which cells are barred when the modem keeps moving between them.
enum RadioPingpongBarring : int32_t {
    RADIO_PINGPONG_BARRING_NONE = 0, ///< barring of no cells
    RADIO_PINGPONG_BARRING_LTE = 1,  ///< barring of cells of \label{LTE}
    RADIO_PINGPONG_BARRING_NR = 2,   ///< barring of cells of \label{NR}
    RADIO_PINGPONG_BARRING_BOTH = 3  ///< barring of cells of LTE and NR
};

extern "C" {

/// Sets whether the modem searches in the background for better technologies. Ignoring the neighbour list
/// without searching changes nothing and succeeds, on the timer thread.
///
/// @param rat                  technology that is searched for \values{RadioBackgroundSearchRat}
/// @param ignoreNeighbourList  whether frequencies outside of the neighbour list count
/// @param enable               whether to search
/// \commands
/// \started{1 for another rat}
RADIO_API int radioSetBackgroundSearch(int rat, bool ignoreNeighbourList, bool enable, void* userData,
                                       RadioRequestCallback callback);

/// Sets the least receive levels of a cell to camp on, or switches their use.
///
/// @param info  levels of one technology, or a switch
/// \command
/// \sent{as for another option}
RADIO_API int radioSetQrxlvminCfg(const RadioQrxlvminCfgInfo& info, void* userData,
                                  RadioRequestCallback callback);

/// The least receive levels of a cell to camp on.
///
/// @param rat  radio access technology \values{RadioQrxlvminRat}
/// \asks{qrxlvmin, the modem refused or the answer has another number of values\, or other values than numbers}
/// \sent{as for another rat}
RADIO_API int radioGetQrxlvminCfg(int rat, void* userData, RadioRequestCallback callback);

/// Sets what the modem does for a SIM card in arrears.
///
/// @param info  what is configured, and its values
/// \command
/// \sent{as for another option}
RADIO_API int radioSetArrearageCfg(const RadioArrearageCfgInfo& info, void* userData,
                                   RadioRequestCallback callback);

/// Has the modem forget the frequencies that it remembers.
///
/// @param option  reserved; only logged \unused
/// \commands
/// \started
RADIO_API int radioClearStoredFrequency(int option, void* userData, RadioRequestCallback callback);

/// Sets in which order the modem scans the technologies. The first one decides: LTE before NR, or NR before LTE; UMTS
/// and GSM always follow.
///
/// @param rats   technologies, preferred first \values{RADIO_RAT_LTE, RADIO_RAT_NR, RADIO_RAT_UMTS, RADIO_RAT_GSM}
///               \range{3 to 4} \countedby{count}; NR may be left out behind LTE
/// @param count  number of technologies: with LTE first 3 or 4, with NR first 4
/// \command
/// \sent{as for null, another count or another first technology}
RADIO_API int radioSetRatScan(int* rats, int count, void* userData, RadioRequestCallback callback);

/// Keeps the modem on one cell.
///
/// @param info  cell to stay on, and the kind of lock
/// \command
/// \sent{as for a lock type or band indicator that there is not}
RADIO_API int radioLockCellAndBand(RadioLockCellInfoType info, void* userData, RadioRequestCallback callback);

/// Ends the lock to a cell.
///
/// @param option  reserved \unused
/// \command
/// \sent
RADIO_API int radioUnlockCellAndBand(int option, void* userData, RadioRequestCallback callback);

/// Sets whether a cell is barred after every radio link failure.
///
/// @param value  whether cells are barred \values{0: off, 1: on}
/// \command
/// \sent
RADIO_API int radioEnableCellBarring(unsigned char value, void* userData, RadioRequestCallback callback);

/// Sets whether cells are barred when the modem keeps moving between them.
///
/// @param type     technologies whose cells are barred \values{RadioPingpongBarring}
/// @param barTime  how long a cell is barred, as the modem counts it; not sent when no cells are barred
/// @param period   time in which changes are counted, as the modem counts it; not sent when no cells are barred
/// @param hitCnt   how many changes are too many; not sent when no cells are barred
/// @param reserve  reserved; only logged \unused
/// \commands
/// \started{1 for another type}
RADIO_API int radioSetPingpongBarSetting(int type, int barTime, int period, int hitCnt, int reserve,
                                         void* userData, RadioRequestCallback callback);

/// Has the modem return to a higher technology.
///
/// @param rat      technology to return to \values{RADIO_RAT_LTE, RADIO_RAT_NR}
/// @param reserve  reserved \unused
/// \command
/// \sent{as for another rat}
RADIO_API int radioPerformRetHighRat(int rat, int reserve, void* userData, RadioRequestCallback callback);

/// Sets what the modem does when redirections from LTE to NR keep failing.
///
/// @param value   what the modem does, as it defines it
/// @param value2  reserved \unused
/// @param value3  reserved \unused
/// @param value4  reserved \unused
/// @param value5  reserved \unused
/// @param value6  reserved \unused
/// \command
/// \sent
RADIO_API int radioSetRedirectOptSetting(int value, int value2, int value3, int value4, int value5,
                                         int value6, void* userData, RadioRequestCallback callback);

/// Sets whether the attach of the SIM card without data service comes last.
///
/// @param value   whether that attach comes last, as the modem defines it
/// @param value2  reserved \unused
/// @param value3  reserved \unused
/// @param value4  reserved \unused
/// @param value5  reserved \unused
/// \command
/// \sent
RADIO_API int radioSetAttachPriority(int value, int value2, int value3, int value4, int value5,
                                     void* userData, RadioRequestCallback callback);

} // extern "C"
