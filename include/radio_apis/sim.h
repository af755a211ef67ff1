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
    uint32_t count;    ///< number of trays that the modem told of, at most 2
    int32_t status[2]; ///< status of each tray, as the modem defines it \countedby{count}
};

/// Result of the SIM lock requests: what the modem sent back, the lock server's. \confidential
using RadioSimLockData = RadioBlob<512>;

inline constexpr unsigned kRadioMaxAuthenticationBytes = 256; ///< bytes of the longest challenge or answer

/// A challenge for the SIM card (3GPP TS 31.102, AUTHENTICATE).
struct RadioUimAuthenticateReqInfo {
    /// data of the AUTHENTICATE command, each value behind its length \called{data} \countedby{authDataLen}
    /// \confidential
    uint8_t authData[kRadioMaxAuthenticationBytes];
    /// number of bytes of the data \called{length} \range{0 to 256}
    uint16_t authDataLen;
};

/// Result of radioRequestIccSimAuthentication.
struct RadioUimAuthentication {
    uint32_t failure; ///< whether the modem reported a failure: 1, otherwise 0 \failure
    uint32_t length;  ///< number of bytes in `content`; a longer answer is cut
    uint8_t content[kRadioMaxAuthenticationBytes]; ///< the card's answer \countedby{length} \confidential
};

/// Kinds of SIM cards.
enum RadioSimCardKind : int32_t {
    RADIO_SIM_CARD_ORDINARY = 0, ///< a card of any other network
    RADIO_SIM_CARD_TEST = 1      ///< a card of the test network 001/01
};

/// Result of radioGetSimCardType.
struct RadioSimCardType {
    int32_t type;  ///< kind of the SIM card \values{RadioSimCardKind}
    char imsi[16]; ///< IMSI of the card, at most 15 digits (3GPP TS 23.003) \confidential
};

/// Result of radioGetSimlockCategoryData.
struct RadioSimlockCategory {
    uint32_t length; ///< number of characters in `category`
    /// categories of the SIM lock, as the modem writes them \countedby{length}; a longer text is cut
    char category[1024];
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
/// @param data    carrier lock, as the lock server made it \range{1 to 2048} \countedby{length} \confidential
/// @param length  number of bytes in `data`
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioSetCarrierLockBlob(const unsigned char* data, unsigned int length, void* userData,
                                      RadioRequestCallback callback);

/// Changes the status of the carrier lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    new status, as the lock server made it \range{1 to 512} \countedby{length} \confidential
/// @param length  number of bytes in `data`
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioSetCarrierLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                        RadioRequestCallback callback);

/// Asks for the status of the carrier lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    question, as the lock server made it \range{1 to 512} \countedby{length} \confidential
/// @param length  number of bytes in `data`
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioGetCarrierLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                        RadioRequestCallback callback);

/// Installs a region lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    region lock, as the lock server made it \range{1 to 1024} \countedby{length} \confidential
/// @param length  number of bytes in `data`
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioSetRegionLockBlob(const unsigned char* data, unsigned int length, void* userData,
                                     RadioRequestCallback callback);

/// Changes the status of the region lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    new status, as the lock server made it \range{1 to 512} \countedby{length} \confidential
/// @param length  number of bytes in `data`
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioSetRegionLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                       RadioRequestCallback callback);

/// Asks for the status of the region lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data    question, as the lock server made it \range{1 to 512} \countedby{length} \confidential
/// @param length  number of bytes in `data`
/// \verdictwith{simLockData}
/// \sentor{11 for null data or another length}
RADIO_API int radioGetRegionLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                       RadioRequestCallback callback);

/// Has the SIM card answer a challenge of the network.
///
/// @param info  challenge for the SIM card
/// \fills{uimAuthentication}
/// \sentor{11 for more than 256 bytes}
RADIO_API int radioRequestIccSimAuthentication(const RadioUimAuthenticateReqInfo& info, void* userData,
                                               RadioRequestCallback callback);

/// Powers the SIM card up.
///
/// \verdict
/// \sent
RADIO_API int radioSetUimPowerUp(void* userData, RadioRequestCallback callback);

/// Powers the SIM card down. Until it is powered up again the modem works as without one.
///
/// \verdict
/// \sent
RADIO_API int radioSetUimPowerDown(void* userData, RadioRequestCallback callback);

/// The kind of the SIM card, and its IMSI.
///
/// @param option  reserved \unused
/// \asks{simCardType, the answer is no IMSI\, as without a card}
/// \sent
RADIO_API int radioGetSimCardType(int option, void* userData, RadioRequestCallback callback);

/// The categories of the SIM lock.
///
/// \asks{simlockCategory, the modem refused or answered nothing}
/// \sent
RADIO_API int radioGetSimlockCategoryData(void* userData, RadioRequestCallback callback);

/// The status of the SIM lock (not supported by the library).
///
/// \unsupported
RADIO_API int radioGetSimlockLockStatus(void* userData, RadioRequestCallback callback);

} // extern "C"
