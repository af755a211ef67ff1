/// @file
/// \domain{RTP redundancy}
///
/// Redundant transport of an IMS call's media (RTP, RFC 3550) over a second path: its keys, its control and
/// its addresses.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxRtpRedunKeyBytes = 256;       ///< of a key that the modem gives
inline constexpr unsigned kRadioMaxRtpRedunRemoteKeyBytes = 130; ///< in the record; 129 of them can be sent
inline constexpr unsigned kRadioMaxRtpRedunAddressBytes = 64;    ///< bytes of the longest address

/// Which public key is asked for.
struct RadioImsRtpRedunKeyInfoType {
    int32_t id;      ///< the call's identifier
    int32_t keyType; ///< sent when it is 2, otherwise the modem chooses
};

/// The other side's public key.
struct RadioImsRtpRedunPublicKeyInfoType {
    int32_t id;                                   ///< the call's identifier
    uint16_t keyLength;                           ///< bytes of `key`; of more than 129, 129 are sent
    uint8_t key[kRadioMaxRtpRedunRemoteKeyBytes]; ///< the first `keyLength` bytes count
};

/// What is to become of a call's redundancy.
struct RadioImsRtpRedunControlInfoType {
    int32_t id;     ///< the call's identifier
    int32_t action; ///< its low byte is sent when it is 1 or 2, as the modem defines them
};

/// Which data path is asked for.
struct RadioImsRtpRedunDataPathConfigType {
    int32_t type; ///< as the modem defines it; its low byte is sent
};

/// Result of radioGetImsRtpRedunCapability.
struct RadioImsRtpRedunCapability {
    uint32_t failure;    ///< 1 when the modem reported a failure, otherwise 0
    uint32_t capability; ///< as the modem defines it, 0 to 255
};

/// Result of radioGetImsRtpRedunPublicKey.
struct RadioImsRtpRedunPublicKey {
    uint32_t result;                        ///< the modem's result code; 0: success
    uint32_t status;                        ///< as the modem defines it
    int32_t id;                             ///< the call's identifier
    int32_t keyType;                        ///< as the modem defines it
    uint32_t keyLength;                     ///< bytes of `key`; a longer one is cut
    uint8_t key[kRadioMaxRtpRedunKeyBytes]; ///< the first `keyLength` bytes count
};

/// Result of radioSetImsRtpRedunRemotePublicKey.
struct RadioImsRtpRedunRemotePublicKey {
    uint32_t result;  ///< the modem's result code; 0: success
    uint32_t status;  ///< as the modem defines it
    int32_t id;       ///< the call's identifier
    uint32_t keyType; ///< as the modem defines it, 0 to 255
};

/// Result of radioSetImsRtpRedunControlInfo.
struct RadioImsRtpRedunControl {
    uint32_t result; ///< the modem's result code; 0: success
    uint32_t status; ///< as the modem defines it
    int32_t id;      ///< the call's identifier
};

/// An end of the data path.
struct RadioImsRtpRedunEndpoint {
    uint32_t port;                                  ///< UDP port, 0 to 65535
    uint32_t addressLength;                         ///< bytes of `address`; a longer one is cut
    uint8_t address[kRadioMaxRtpRedunAddressBytes]; ///< the first `addressLength` bytes count
};

/// Result of radioSyncImsRtpRedunDataPathConfig.
struct RadioImsRtpRedunDataPath {
    uint32_t result;                  ///< the modem's result code; 0: success
    uint32_t type;                    ///< as the modem defines it, 0 to 255
    RadioImsRtpRedunEndpoint ends[2]; ///< in the modem's order
    uint32_t value1;                  ///< as the modem defines it, 0 to 255
    uint32_t value2;                  ///< as the modem defines it, 0 to 255
};

extern "C" {

/// Whether the modem can do it.
///
/// \fills{imsRtpRedunCapability}
/// \sent
RADIO_API int radioGetImsRtpRedunCapability(void* userData, RadioRequestCallback callback);

/// The modem's own public key for a call.
///
/// @param info  the call and the kind of key
/// \fills{imsRtpRedunPublicKey}
/// \sent
RADIO_API int radioGetImsRtpRedunPublicKey(const RadioImsRtpRedunKeyInfoType& info, void* userData,
                                           RadioRequestCallback callback);

/// Tells the modem the other side's public key.
///
/// @param info  the call and the key
/// \fills{imsRtpRedunRemotePublicKey}
/// \sent
RADIO_API int radioSetImsRtpRedunRemotePublicKey(const RadioImsRtpRedunPublicKeyInfoType& info,
                                                 void* userData, RadioRequestCallback callback);

/// Controls a call's redundancy.
///
/// @param info  the call and what is to become of it
/// \fills{imsRtpRedunControl}
/// \sent
RADIO_API int radioSetImsRtpRedunControlInfo(const RadioImsRtpRedunControlInfoType& info, void* userData,
                                             RadioRequestCallback callback);

/// Brings the caller's view of the data path in step with the modem's.
///
/// @param info  which data path
/// \fills{imsRtpRedunDataPath}
/// \sent
RADIO_API int radioSyncImsRtpRedunDataPathConfig(const RadioImsRtpRedunDataPathConfigType& info,
                                                 void* userData, RadioRequestCallback callback);

} // extern "C"
