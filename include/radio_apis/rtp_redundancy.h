/// @file
/// \domain{RTP redundancy}
///
/// Redundant transport of an IMS call's media (RTP, RFC 3550) over a second path: its keys, its control and
/// its addresses.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

inline constexpr unsigned kRadioMaxRtpRedunKeyBytes = 256;       ///< bytes of the modem's longest key
inline constexpr unsigned kRadioMaxRtpRedunRemoteKeyBytes = 130; ///< of which 129 can be sent
inline constexpr unsigned kRadioMaxRtpRedunAddressBytes = 64;    ///< bytes of the longest address

/// Which public key is asked for.
struct RadioImsRtpRedunKeyInfoType {
    int32_t id; ///< identifier of the call
    /// kind of the key, as the modem defines it \values{0: chosen by the modem}; 2 is sent, with any other number the
    /// modem chooses
    int32_t keyType;
};

/// The other side's public key.
struct RadioImsRtpRedunPublicKeyInfoType {
    int32_t id;         ///< identifier of the call
    uint16_t keyLength; ///< number of bytes in `key`
    /// public key of the other side \range{0 to 129} \countedby{keyLength}; of more bytes the first 129 are sent
    uint8_t key[kRadioMaxRtpRedunRemoteKeyBytes];
};

/// What is to become of a call's redundancy.
struct RadioImsRtpRedunControlInfoType {
    int32_t id; ///< identifier of the call
    /// what is to become of the redundancy, as the modem defines it \range{0 to 2} \values{0: not sent}; the low 8 bits
    /// are sent when they are 1 or 2
    int32_t action;
};

/// Which data path is asked for.
struct RadioImsRtpRedunDataPathConfigType {
    /// kind of the data path, as the modem defines it \range{0 to 255}; the low 8 bits are sent
    int32_t type;
};

/// Result of radioGetImsRtpRedunCapability.
struct RadioImsRtpRedunCapability {
    uint32_t failure;    ///< whether the modem reported a failure: 1, otherwise 0 \failure
    uint32_t capability; ///< what the modem can do, as it defines it \range{0 to 255}
};

/// Result of radioGetImsRtpRedunPublicKey.
struct RadioImsRtpRedunPublicKey {
    uint32_t result;                        ///< the modem's result code; 0: success \failure
    uint32_t status;                        ///< status of the redundancy, as the modem defines it
    int32_t id;                             ///< identifier of the call
    int32_t keyType;                        ///< kind of the key, as the modem defines it
    uint32_t keyLength;                     ///< number of bytes in `key`; a longer key is cut
    uint8_t key[kRadioMaxRtpRedunKeyBytes]; ///< public key of the modem \countedby{keyLength}
};

/// Result of radioSetImsRtpRedunRemotePublicKey.
struct RadioImsRtpRedunRemotePublicKey {
    uint32_t result;  ///< the modem's result code; 0: success \failure
    uint32_t status;  ///< status of the redundancy, as the modem defines it
    int32_t id;       ///< identifier of the call
    uint32_t keyType; ///< kind of the key, as the modem defines it \range{0 to 255}
};

/// Result of radioSetImsRtpRedunControlInfo.
struct RadioImsRtpRedunControl {
    uint32_t result; ///< the modem's result code; 0: success \failure
    uint32_t status; ///< status of the redundancy, as the modem defines it
    int32_t id;      ///< identifier of the call
};

/// An end of the data path.
struct RadioImsRtpRedunEndpoint {
    uint32_t port;                                  ///< UDP port \range{0 to 65535}
    uint32_t addressLength;                         ///< number of bytes in `address`; a longer one is cut
    uint8_t address[kRadioMaxRtpRedunAddressBytes]; ///< IP address \countedby{addressLength}
};

/// Result of radioSyncImsRtpRedunDataPathConfig.
struct RadioImsRtpRedunDataPath {
    uint32_t result;                  ///< the modem's result code; 0: success \failure
    uint32_t type;                    ///< kind of the data path, as the modem defines it \range{0 to 255}
    RadioImsRtpRedunEndpoint ends[2]; ///< both ends of the data path, in the modem's order
    uint32_t value1;                  ///< first value, as the modem defines it \range{0 to 255}
    uint32_t value2;                  ///< second value, as the modem defines it \range{0 to 255}
};

extern "C" {

/// Whether the modem can send a call's media redundantly.
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

/// Tells the modem the other side's public key for a call.
///
/// @param info  the call and the key
/// \fills{imsRtpRedunRemotePublicKey}
/// \sent
RADIO_API int radioSetImsRtpRedunRemotePublicKey(const RadioImsRtpRedunPublicKeyInfoType& info,
                                                 void* userData, RadioRequestCallback callback);

/// Controls a call's redundancy.
///
/// @param info  the call and what is to become of its redundancy
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
