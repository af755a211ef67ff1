/// @file
/// \domain{Bands}
///
/// Frequency bands: those that the modem may use, and those it could (3GPP TS 36.101, 38.101, 25.101, 45.005).
///
/// Bands cross this interface as bytes, most significant first; which bit stands for which band depends on the
/// radio access technology:
///
///   GSM    4 bytes, one number: bit 1 GSM 900, bit 3 DCS 1800, bit 4 PCS 1900, bit 7 GSM 850.
///          GSM 900 and DCS 1800: 00 00 00 0a.
///   UMTS   4 bytes, one number: bit n-1 stands for band n.
///   CDMA   4 bytes, one number: bit n stands for band class n.
///   LTE    a number of 4 bytes for each 32 bands, the lowest bands first; in it bit n-1 stands for the n-th of
///          its bands. Bands 1, 3 and 38: 00 00 00 05 00 00 00 20.
///   NR     one number of a multiple of 4 bytes: bit n-1 stands for band n.
///          n78 alone: 00 00 20 00 00 00 00 00 00 00 00 00 (bit 77).
#pragma once

#include "radio_apis/rat.h"
#include "radio_apis/result.h"

#include <cstdint>

/// Whose bands a request is about.
enum RadioBandRat : int32_t {
    RADIO_BAND_GSM = 0,      ///< bands of \label{GSM}
    RADIO_BAND_UMTS = 1,     ///< bands of \label{UMTS}
    RADIO_BAND_CDMA = 3,     ///< band classes of \label{CDMA}
    RADIO_BAND_LTE = 4,      ///< bands of \label{LTE}
    RADIO_BAND_NR = 5,       ///< \label{NR}, the first of the modem's two lists of its bands
    RADIO_BAND_NR_SECOND = 6 ///< \label{NR second}, the second of the modem's two lists of the bands of NR
};

/// Added to a RadioBandRat: the bands in use instead of those that could be.
inline constexpr int32_t kRadioCurrentBands = 0x10000;

inline constexpr unsigned kRadioMaxBandBytes = 256; ///< bytes of bands in one answer

/// Result of radioGetBandPrefer: the bands of one radio access technology.
struct RadioBandPrefer {
    int32_t rat; ///< radio access technology \values{RadioBandRat}
    /// which bands were asked for \values{0: possible, 1: in use}; of CDMA `bands` is those in use with both
    int32_t current;
    uint32_t length; ///< number of bytes in `bands`
    /// a bit for each band, the most significant byte first \countedby{length}; the head of bands.h tells which bit is
    /// which band
    uint8_t bands[kRadioMaxBandBytes];
};

inline constexpr unsigned kRadioMaxLteBandWords = 16; ///< words of 32 LTE bands in one answer

/// Result of radioGetAvailableBandModes: masks of bands, whose bits the head of bands.h tells.
struct RadioBandModes {
    uint32_t gsm;                        ///< mask of GSM: bits 1, 3, 4, 7 are bands 900, 1800, 1900, 850
    uint32_t umts;                       ///< mask of UMTS: bit n-1 stands for band n
    uint32_t lteWords;                   ///< number of words in `lte`
    uint32_t lte[kRadioMaxLteBandWords]; ///< masks of LTE, 32 bands each, lowest first \countedby{lteWords}
};

/// Result of radioGetBand: a mask of bands. For LTE and NR bit n-1 stands for band n; for the others bits are those of
/// user interfaces: GSM 850, 900, 1800 and 1900 are bits 19, 8, 7 and 21; UMTS bands 1, 2, 4, 5, 8, 9 and 19 are
/// bits 22, 23, 25, 26, 49, 50 and 60; CDMA band class 0 is bit 1. Bands without a bit are not told.
struct RadioBandInfo {
    int32_t nwType; ///< radio access technology, as requested \values{RadioRat}
    uint64_t low;   ///< bits 0 to 63 of the mask of bands
    uint64_t high;  ///< bits 64 to 127 of the mask of bands
};

/// Result of radioGetBandsTxNum: the transmit paths of a band.
struct RadioBandTxNum {
    int32_t bandTxNum; ///< number of transmit paths
};

extern "C" {

/// Sets the bands that the modem may use with one radio access technology. The command has room for `length` + 127
/// characters and is cut there without a word: RADIO_BAND_NR survives up to 112 bytes, RADIO_BAND_NR_SECOND up to 108,
/// LTE up to 64 and, when its numbers are small, beyond.
///
/// @param rat     radio access technology \values{RadioBandRat}; only its low 16 bits count
/// @param bands   a bit for each band, the most significant byte first \range{4 to 65404, multiple of 4}
///                \countedby{length}; the head of bands.h tells which bit is which band. Of GSM, UMTS and CDMA the
///                first four bytes count
/// @param length  number of bytes
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS when the modem accepted the bands, else with
///                  RADIO_APIS_FAILURE, each with an empty record; or with the modem's failure and no record
/// @return 0 when handed to the modem; 1 when refused, as for null bands, another rat or another length: 0, no
///         multiple of 4, or more than 65407
RADIO_API int radioSetBandPrefer(int rat, const unsigned char* bands, unsigned int length, void* userData,
                                 RadioRequestCallback callback);

/// The bands of one radio access technology: those in use, or those that could be.
///
/// @param rat  radio access technology \values{RadioBandRat}; kRadioCurrentBands added asks for the bands in use. Of
///             CDMA the modem tells only those: they come without the flag, too, and then with a `current` of 0
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS and \answer{bandPrefer}; with RADIO_APIS_FAILURE and a record
///                  without bands when the answer has none that can be read; or with the modem's failure and no
///                  record
/// \sent{as for another rat}
RADIO_API int radioGetBandPrefer(int rat, void* userData, RadioRequestCallback callback);

/// The masks of the bands in use with GSM, UMTS and LTE.
///
/// \asks{bandModes, the answer lacks the masks of GSM and UMTS or has something else than numbers}
/// \sent
RADIO_API int radioGetAvailableBandModes(void* userData, RadioRequestCallback callback);

/// The bands that the modem could use, in the bits of user interfaces; of CDMA those in use. CDMA's side of the modem
/// may be off, and is first switched on: world mode policy 0, then CDMA as the active technology. It stays on.
///
/// @param nwType  radio access technology \range{0 to 5} \values{RadioRat}
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS and \answer{bandInfo}; with RADIO_APIS_FAILURE and a zeroed
///                  record when the answer can't be read or, for CDMA, a step failed; or, but for CDMA, with the
///                  modem's failure and no record
/// @return 0 when handed to the modem, and for CDMA 0 once started, also when the modem then can't be reached; 1 when
///         refused, as for another nwType
RADIO_API int radioGetBand(int nwType, void* userData, RadioRequestCallback callback);

/// How many transmit paths a band has. Takes two commands, of which the second one asks.
///
/// @param radioTech  radio access technology, as the modem numbers it
/// @param uiBand     number of the band
/// @param subband    part of the band; only logged, since the modem's answer is for the whole band \unused
/// \user
/// @param callback  called once with RADIO_APIS_SUCCESS and \answer{bandTxNumInfo}, or with RADIO_APIS_FAILURE and a
///                  zeroed record when the modem refused or the answer does not end in a number
/// \started
RADIO_API int radioGetBandsTxNum(int radioTech, int uiBand, int subband, void* userData,
                                 RadioRequestCallback callback);

} // extern "C"
