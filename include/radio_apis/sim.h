/// @file
/// \domain{SIM trays, cards and locks}
///
/// SIM trays, SIM cards and SIM locks.
#pragma once

#include "radio_apis/blob.h"
#include "radio_apis/result.h"

#include <cstdint>

/// Result of radioGetSimTrayStatus.
struct RadioSimTrayStatus {
    uint32_t count;    ///< trays that the modem told of, at most 2
    int32_t status[2]; ///< per tray, as the modem defines it
};

/// Result of the SIM lock requests: what the modem sent back.
using RadioSimLockData = RadioBlob<512>;

inline constexpr unsigned kRadioMaxAuthenticationBytes = 256; ///< bytes of the longest challenge or answer

/// A challenge for the SIM card (3GPP TS 31.102, AUTHENTICATE).
struct RadioUimAuthenticateReqInfo {
    uint8_t authData[kRadioMaxAuthenticationBytes]; ///< the command's data: each value behind its length
    uint16_t authDataLen;                           ///< bytes of it, at most 256
};

/// Result of radioRequestIccSimAuthentication.
struct RadioUimAuthentication {
    uint32_t failure; ///< 1 when the modem reported a failure, otherwise 0
    uint32_t length;  ///< bytes of `content`, as many as the modem counts; more are cut
    uint8_t content[kRadioMaxAuthenticationBytes]; ///< the card's answer
};

/// Result of radioGetSimCardType.
struct RadioSimCardType {
    int32_t type;  ///< 1: a card of the test network 001/01, 0: any other
    char imsi[16]; ///< at most 15 digits (3GPP TS 23.003)
};

/// Result of radioGetSimlockCategoryData.
struct RadioSimlockCategory {
    uint32_t length;     ///< characters
    char category[1024]; ///< as the modem writes it; a longer one is cut
};

extern "C" {

/// Whether the SIM trays are in.
///
/// \fills{simTrayStatus}
/// \sent
RADIO_API int radioGetSimTrayStatus(void* userData, RadioRequestCallback callback);

/// Installs a carrier lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    the bytes; not null
/// @param length  their number, 1 to 2048
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioSetCarrierLockBlob(const unsigned char* data, unsigned int length, void* userData,
                                      RadioRequestCallback callback);

/// Changes the status of the carrier lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    the bytes; not null
/// @param length  their number, 1 to 512
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioSetCarrierLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                        RadioRequestCallback callback);

/// Asks for the status of the carrier lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    the bytes; not null
/// @param length  their number, 1 to 512
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioGetCarrierLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                        RadioRequestCallback callback);

/// Installs a region lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    the bytes; not null
/// @param length  their number, 1 to 1024
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioSetRegionLockBlob(const unsigned char* data, unsigned int length, void* userData,
                                     RadioRequestCallback callback);

/// Changes the status of the region lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    the bytes; not null
/// @param length  their number, 1 to 512
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioSetRegionLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                       RadioRequestCallback callback);

/// Asks for the status of the region lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    the bytes; not null
/// @param length  their number, 1 to 512
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioGetRegionLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                       RadioRequestCallback callback);

/// Has the SIM card answer a challenge of the network.
///
/// @param info  the challenge
/// \fills{uimAuthentication}
/// \sentor{11 for more than 256 bytes}
RADIO_API int radioRequestIccSimAuthentication(const RadioUimAuthenticateReqInfo& info, void* userData,
                                               RadioRequestCallback callback);

/// Powers the SIM card up.
///
/// \verdict
/// \sent
RADIO_API int radioSetUimPowerUp(void* userData, RadioRequestCallback callback);

/// Powers the SIM card down: until it is powered up again the modem works as without one.
///
/// \verdict
/// \sent
RADIO_API int radioSetUimPowerDown(void* userData, RadioRequestCallback callback);

/// What kind of SIM card it is.
///
/// @param option  not sent
/// \asks{simCardType, the answer is no IMSI\, as without a card}
/// \sent
RADIO_API int radioGetSimCardType(int option, void* userData, RadioRequestCallback callback);

/// The categories of the SIM lock.
///
/// \asks{simlockCategory, the modem refused or answered nothing}
/// \sent
RADIO_API int radioGetSimlockCategoryData(void* userData, RadioRequestCallback callback);

/// Not supported.
///
/// \unsupported
RADIO_API int radioGetSimlockLockStatus(void* userData, RadioRequestCallback callback);

} // extern "C"
