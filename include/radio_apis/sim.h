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

inline constexpr unsigned kRadioMaxAuthenticationBytes = 256;

/// A challenge for the SIM card (3GPP TS 31.102, AUTHENTICATE).
struct RadioUimAuthenticateReqInfo {
    uint8_t authData[kRadioMaxAuthenticationBytes]; ///< the command's data: each value behind its length
    uint16_t authDataLen;                           ///< bytes of it, at most 256
};

/// Result of radioRequestIccSimAuthentication.
struct RadioUimAuthentication {
    uint32_t failure;                              ///< 1 when the modem reported a failure, otherwise 0
    uint32_t length;                               ///< bytes of `content`; more are cut
    uint8_t content[kRadioMaxAuthenticationBytes]; ///< the card's answer
};

extern "C" {

/// Whether the SIM trays are in.
///
/// @param callback  called once with RADIO_APIS_SUCCESS, whatever the modem said, and `rsp.simTrayStatus`
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioGetSimTrayStatus(void* userData, RadioRequestCallback callback);

/// Installs a carrier lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data      the bytes; not null
/// @param length    their number, 1 to 2048
/// @param callback  called once with the modem's verdict and, on success, `rsp.simLockData`
/// @return 0 when handed to the modem; 11 for null data or another length; 1 when refused otherwise
RADIO_API int radioSetCarrierLockBlob(const unsigned char* data, unsigned int length, void* userData,
                                      RadioRequestCallback callback);

/// Changes the status of the carrier lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data      the bytes; not null
/// @param length    their number, 1 to 512
/// @param callback  called once with the modem's verdict and, on success, `rsp.simLockData`
/// @return 0 when handed to the modem; 11 for null data or another length; 1 when refused otherwise
RADIO_API int radioSetCarrierLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                        RadioRequestCallback callback);

/// Asks for the status of the carrier lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data      the bytes; not null
/// @param length    their number, 1 to 512
/// @param callback  called once with the modem's verdict and, on success, `rsp.simLockData`
/// @return 0 when handed to the modem; 11 for null data or another length; 1 when refused otherwise
RADIO_API int radioGetCarrierLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                        RadioRequestCallback callback);

/// Installs a region lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data      the bytes; not null
/// @param length    their number, 1 to 1024
/// @param callback  called once with the modem's verdict and, on success, `rsp.simLockData`
/// @return 0 when handed to the modem; 11 for null data or another length; 1 when refused otherwise
RADIO_API int radioSetRegionLockBlob(const unsigned char* data, unsigned int length, void* userData,
                                     RadioRequestCallback callback);

/// Changes the status of the region lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data      the bytes; not null
/// @param length    their number, 1 to 512
/// @param callback  called once with the modem's verdict and, on success, `rsp.simLockData`
/// @return 0 when handed to the modem; 11 for null data or another length; 1 when refused otherwise
RADIO_API int radioSetRegionLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                       RadioRequestCallback callback);

/// Asks for the status of the region lock.
///
/// The bytes are the lock server's; the library only carries them.
///
/// @param data      the bytes; not null
/// @param length    their number, 1 to 512
/// @param callback  called once with the modem's verdict and, on success, `rsp.simLockData`
/// @return 0 when handed to the modem; 11 for null data or another length; 1 when refused otherwise
RADIO_API int radioGetRegionLockStatus(const unsigned char* data, unsigned int length, void* userData,
                                       RadioRequestCallback callback);

/// Has the SIM card answer a challenge of the network.
///
/// @param info      the challenge
/// @param callback  called once with RADIO_APIS_SUCCESS, whatever the modem said, and
///                  `rsp.uimAuthentication`; on the modem library's delivery thread
/// @return 0 when handed to the modem; 11 for more than 256 bytes; 1 when refused otherwise
RADIO_API int radioRequestIccSimAuthentication(const RadioUimAuthenticateReqInfo& info, void* userData,
                                               RadioRequestCallback callback);

/// Powers the SIM card up.
///
/// @param callback  called once with the modem's verdict and, on success, an empty record; on the modem
///                  library's delivery thread
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetUimPowerUp(void* userData, RadioRequestCallback callback);

/// Powers the SIM card down: until it is powered up again the modem works as without one.
///
/// @param callback  called once with the modem's verdict and, on success, an empty record; on the modem
///                  library's delivery thread
/// @return 0 when handed to the modem, 1 when refused
RADIO_API int radioSetUimPowerDown(void* userData, RadioRequestCallback callback);

} // extern "C"
