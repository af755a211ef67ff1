/// @file
/// \domain{Device state}
///
/// What the device tells the modem about itself.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// For requests whose answer is no more than the modem's verdict.
struct RadioModemVerdict {
    uint32_t failure; ///< 1 when the modem reported a failure, otherwise 0
};

/// Result of radioGetFeatureState.
struct RadioFeatureState {
    uint32_t state; ///< as last set; 0 when the modem does not say
};

/// Result of radioSendDeviceStateExt.
struct RadioDeviceStateExt {
    uint32_t result;        ///< the modem's result code; 0: success
    int32_t deviceStateExt; ///< the state that the modem now assumes
};

inline constexpr unsigned kRadioMaxSidoIssueValues = 20; ///< of one configuration

extern "C" {

/// Tells the modem whether the screen is on.
///
/// @param screenState  as the modem defines it, passed through
/// \verdict
/// \sent
RADIO_API int radioSendScreenState(int screenState, void* userData, RadioRequestCallback callback);

/// Tells the modem how the device is moving.
///
/// @param microMotionState  the motion detector's state, passed through
/// @param multiplier        its multiplier, passed through
/// \fills{microMotion}
/// \sent
RADIO_API int radioSetMicroMotionState(int microMotionState, int multiplier, void* userData,
                                       RadioRequestCallback callback);

/// Tells the modem whether it should keep in step with the application processor.
///
/// @param sync  passed through
/// \verdict
/// \sent
RADIO_API int radioSetSyncWithAp(int sync, void* userData, RadioRequestCallback callback);

/// Switches a modem feature.
///
/// @param feature  which feature, passed through
/// @param state    its state, passed through
/// \verdict
/// \sent
RADIO_API int radioSetFeatureState(int feature, int state, void* userData, RadioRequestCallback callback);

/// The state of a modem feature.
///
/// @param feature  which feature
/// \fills{featureState}
/// \sent
RADIO_API int radioGetFeatureState(int feature, void* userData, RadioRequestCallback callback);

/// Runs one of the modem's prepared cases.
///
/// @param caseId  which case
/// @param param1  its parameters, passed through
/// @param param2  see `param1`
/// @param param3  see `param1`
/// \verdict
/// \sent
RADIO_API int radioDispatchCase(unsigned int caseId, int param1, int param2, int param3, void* userData,
                                RadioRequestCallback callback);

/// Sets the values of one kind of diagnosis.
///
/// @param type    which kind
/// @param values  the values; may be null when `count` is 0
/// @param count   their number, at most 65535
/// \verdict
/// \sentor{11 for null values or too many of them}
RADIO_API int radioSetDiagnoseConfig(unsigned int type, int* values, unsigned int count, void* userData,
                                     RadioRequestCallback callback);

/// Configures the detection of issues of the supply's single-inductor dual-output converter.
///
/// @param values  the values; not null
/// @param count   their number, at most 20
/// \verdict
/// \sentor{11 for null values or too many of them}
RADIO_API int radioSetSidoIssueConfig(int* values, unsigned int count, void* userData,
                                      RadioRequestCallback callback);

/// Tells the modem an extended state of the device.
///
/// @param deviceStateExt  as the modem defines it, passed through
/// \fills{deviceStateExt}
/// \sent
RADIO_API int radioSendDeviceStateExt(int deviceStateExt, void* userData, RadioRequestCallback callback);

/// Sets the IMB state.
///
/// @param state  as the modem defines it; its low 8 bits are sent
/// \verdict
/// \sent
RADIO_API int radioSetImbState(int state, void* userData, RadioRequestCallback callback);

/// Tells the modem how the device's screen is folded.
///
/// @param state  as the modem numbers it
/// \command
/// \sent
RADIO_API int radioUpdateFoldScreenStatus(int state, void* userData, RadioRequestCallback callback);

/// Sets the software version number of the device's identity (IMEISV, 3GPP TS 23.003).
///
/// @param svn  sent in hexadecimal, with two digits or more: 10 is sent as "0a". An identity has two decimal digits
///             there, so that 42 is to be given as 0x42
/// \command
/// \sent
RADIO_API int radioSetImeiSvn(int svn, void* userData, RadioRequestCallback callback);

} // extern "C"
