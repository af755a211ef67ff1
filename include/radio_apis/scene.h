/// @file
/// \domain{Scenes and experience}
///
/// What the device is used for, and how the modem adapts to it.
#pragma once

#include "radio_apis/result.h"

#include <cstdint>

/// A list of at most ten values.
struct RadioHyperUplinkList {
    uint32_t count;     ///< at most 10; more are not sent
    int32_t values[10]; ///< the first `count` count
};

/// Parameters of the uplink enhancement: sixteen values as the modem defines them, and two lists.
struct RadioHyperUplinkParasType {
    int32_t values[16];         ///< sent in this order
    RadioHyperUplinkList list1; ///< sent behind the values
    RadioHyperUplinkList list2; ///< sent behind `list1`
};

/// One cell of a site. As on the wire.
struct RadioSiteCell {
    uint32_t arfcn; ///< downlink EARFCN or NR-ARFCN
    uint32_t pci;   ///< physical cell identity
};

/// The cells of a site. As on the wire.
struct RadioSiteCellInfoType {
    uint32_t rat;            ///< 4: LTE, 5: NR
    uint32_t siteId;         ///< number of the site
    uint32_t count;          ///< cells in the list
    RadioSiteCell cells[64]; ///< the first `count` count
};
static_assert(sizeof(RadioSiteCellInfoType) == 524);

/// One score. As on the wire.
struct RadioScoreInfo {
    int32_t id;        ///< what is rated
    int32_t score;     ///< how good it is
    int32_t values[6]; ///< passed through
};
static_assert(sizeof(RadioScoreInfo) == 32);

inline constexpr unsigned kRadioMaxScores = 16; ///< of one request

/// Several scores.
struct RadioScoreInfoListType {
    uint32_t count;                         ///< at most 16; more are not sent
    RadioScoreInfo scores[kRadioMaxScores]; ///< the first `count` count
};

inline constexpr unsigned kRadioMaxScenes = 64; ///< that an answer holds

/// The mode of one scene.
struct RadioSceneMode {
    int32_t scene; ///< the scene's number
    int32_t mode;  ///< as last set
};

/// Result of radioGetSceneMode.
struct RadioSceneModeList {
    uint32_t count;                         ///< at most 64
    RadioSceneMode scenes[kRadioMaxScenes]; ///< the first `count` count
};

extern "C" {

/// Switches the uplink enhancement.
///
/// @param mode  passed through
/// \verdict
/// \sent
RADIO_API int radioSetHyperUplinkMode(int mode, void* userData, RadioRequestCallback callback);

/// Sets the parameters of the uplink enhancement.
///
/// @param paras  see the record
/// \verdict
/// \sent
RADIO_API int radioSetHyperUplinkParas(const RadioHyperUplinkParasType& paras, void* userData,
                                       RadioRequestCallback callback);

/// Sets the mode of a scene.
///
/// @param scene  which scene
/// @param mode   its mode, passed through
/// \verdict
/// \sent
RADIO_API int radioSetSceneMode(int scene, int mode, void* userData, RadioRequestCallback callback);

/// The modes of scenes.
///
/// @param scenes  which scenes; may be null when `count` is 0
/// @param count   their number; of more than 64 the first 64 are asked for
/// \fills{sceneModes}
/// \sentor{11 for null scenes}
RADIO_API int radioGetSceneMode(int* scenes, unsigned int count, void* userData,
                                RadioRequestCallback callback);

/// Tells the modem how good the user's experience is.
///
/// @param type   what is rated
/// @param score  how good it is
/// \verdict
/// \sent
RADIO_API int radioSetQoeScore(int type, int score, void* userData, RadioRequestCallback callback);

/// Tells the modem scores of its own services.
///
/// @param scores  see the record
/// \verdict
/// \sent
RADIO_API int radioSendScoreInfo(const RadioScoreInfoListType& scores, void* userData,
                                 RadioRequestCallback callback);

/// Tells the modem the cells of a site.
///
/// @param action  not sent
/// @param info    sent as it is
/// \verdict
/// \sent
RADIO_API int radioSetSiteCellInfo(int action, const RadioSiteCellInfoType& info, void* userData,
                                   RadioRequestCallback callback);

} // extern "C"
