/// @file
/// \domain{Device state}
///
/// What the device tells the modem about itself.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// Result of requests whose answer is no more than the modem's verdict.
struct RadioModemVerdict {
    uint32_t failure; ///< whether the modem reported a failure: 1, otherwise 0 \failure
};

/// Result of radioGetFeatureState: the state of a modem feature.
struct RadioFeatureState {
    uint32_t state; ///< state of the feature, as last set; 0 when the modem does not say
};

/// Result of radioSendDeviceStateExt: what the modem made of the state.
struct RadioDeviceStateExt {
    uint32_t result;        ///< the modem's result code; 0 means success \failure
    int32_t deviceStateExt; ///< extended state of the device that the modem now assumes
};

inline constexpr unsigned kRadioMaxSidoIssueValues = 20; ///< values in one configuration

extern "C" {

/// Tells the modem whether the screen is on.
///
/// @param screenState  state of the screen, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSendScreenState(int screenState, void* userData, RadioRequestCallback callback);

/// Tells the modem how the device is moving.
///
/// @param microMotionState  state of the motion detector, as the modem defines it
/// @param multiplier        multiplier of the motion detector, as the modem defines it
/// \fills{microMotion}
/// \sent
RADIO_API int radioSetMicroMotionState(int microMotionState, int multiplier, void* userData,
                                       RadioRequestCallback callback);

/// Tells the modem whether it should keep in step with the application processor.
///
/// @param sync  whether the modem should keep in step, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetSyncWithAp(int sync, void* userData, RadioRequestCallback callback);

/// Switches a modem feature.
///
/// @param feature  modem feature, as the modem numbers it
/// @param state    state of the feature, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetFeatureState(int feature, int state, void* userData, RadioRequestCallback callback);

/// The state of a modem feature.
///
/// @param feature  modem feature, as the modem numbers it
/// \fills{featureState}
/// \sent
RADIO_API int radioGetFeatureState(int feature, void* userData, RadioRequestCallback callback);

/// Runs one of the modem's prepared cases.
///
/// @param caseId  prepared case, as the modem numbers it
/// @param param1  first parameter of the case, as the modem defines it
/// @param param2  second parameter of the case, as the modem defines it
/// @param param3  third parameter of the case, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioDispatchCase(unsigned int caseId, int param1, int param2, int param3, void* userData,
                                RadioRequestCallback callback);

/// Sets the values of one kind of diagnosis.
///
/// @param type    kind of diagnosis, as the modem numbers it
/// @param values  values of the diagnosis, as the modem defines them \range{0 to 65535} \countedby{count}; may be
///                null when `count` is 0
/// @param count   number of values
/// \verdict
/// \sentor{11 for null values or too many of them}
RADIO_API int radioSetDiagnoseConfig(unsigned int type, int* values, unsigned int count, void* userData,
                                     RadioRequestCallback callback);

/// Configures the detection of issues of the power supply's converter (SIDO). It has a single inductor and dual
/// outputs.
///
/// @param values  values of the detection, as the modem defines them \range{0 to 20} \countedby{count}; never null
/// @param count   number of values
/// \verdict
/// \sentor{11 for null values or too many of them}
RADIO_API int radioSetSidoIssueConfig(int* values, unsigned int count, void* userData,
                                      RadioRequestCallback callback);

/// Tells the modem the extended state of the device.
///
/// @param deviceStateExt  extended state of the device, as the modem defines it
/// \fills{deviceStateExt}
/// \sent
RADIO_API int radioSendDeviceStateExt(int deviceStateExt, void* userData, RadioRequestCallback callback);

/// Sets the IMB state.
///
/// @param state  IMB state, as the modem defines it \range{0 to 255}; the low 8 bits are sent
/// \verdict
/// \sent
RADIO_API int radioSetImbState(int state, void* userData, RadioRequestCallback callback);

/// Tells the modem how the device's screen is folded.
///
/// @param state  state of the folding screen, as the modem numbers it
/// \command
/// \sent
RADIO_API int radioUpdateFoldScreenStatus(int state, void* userData, RadioRequestCallback callback);

/// Sets the software version number of the device's identity (IMEISV, 3GPP TS 23.003).
///
/// @param svn  software version number, sent as two hexadecimal digits or more: 10 as 0a, 0x10 as 10. An identity
///             has two decimal digits there, so give 42 as 0x42
/// \command
/// \sent
RADIO_API int radioSetImeiSvn(int svn, void* userData, RadioRequestCallback callback);

} // extern "C"
