/// @file
/// \domain{Scenes and experience}
///
/// What the device is used for, how good that feels to its user, and how the modem adapts to it.
#pragma once

#include "radio_apis/rat.h"
#include "radio_apis/result.h"

#include <cstdint>

/// A list of at most ten parameters of the uplink enhancement.
struct RadioHyperUplinkList {
    uint32_t count;     ///< number of values; of more than 10 the first 10 are sent
    int32_t values[10]; ///< values, as the modem defines them \countedby{count}
};

/// Parameters of the uplink enhancement: sixteen values as the modem defines them, and two lists.
struct RadioHyperUplinkParasType {
    int32_t values[16];         ///< values, as the modem defines them; sent in this order
    RadioHyperUplinkList list1; ///< first list of values, as the modem defines them
    RadioHyperUplinkList list2; ///< second list of values, as the modem defines them
};

/// One cell of a site. As on the wire.
struct RadioSiteCell {
    uint32_t arfcn; ///< downlink EARFCN or NR-ARFCN
    uint32_t pci;   ///< physical cell identity
};

/// The cells of a site. As on the wire.
struct RadioSiteCellInfoType {
    uint32_t rat;            ///< radio access technology \values{RADIO_RAT_LTE, RADIO_RAT_NR}
    uint32_t siteId;         ///< number of the site
    uint32_t count;          ///< number of cells, at most 64
    RadioSiteCell cells[64]; ///< cells of the site \countedby{count}
};
static_assert(sizeof(RadioSiteCellInfoType) == 524);

/// One score. As on the wire.
struct RadioScoreInfo {
    int32_t id;        ///< what is rated, as the modem numbers it
    int32_t score;     ///< how good it is, as the modem defines it
    int32_t values[6]; ///< details of the score, as the modem defines them
};
static_assert(sizeof(RadioScoreInfo) == 32);

inline constexpr unsigned kRadioMaxScores = 16; ///< scores in one request

/// Several scores.
struct RadioScoreInfoListType {
    uint32_t count;                         ///< number of scores; of more than 16 the first 16 are sent
    RadioScoreInfo scores[kRadioMaxScores]; ///< scores of the modem's services \countedby{count}
};

inline constexpr unsigned kRadioMaxScenes = 64; ///< scenes in one request and in one answer

/// The mode of one scene.
struct RadioSceneMode {
    int32_t scene; ///< scene, as the modem numbers it
    int32_t mode;  ///< mode of the scene, as last set
};

/// Result of radioGetSceneMode.
struct RadioSceneModeList {
    uint32_t count;                         ///< number of scenes, at most 64
    RadioSceneMode scenes[kRadioMaxScenes]; ///< scenes and their modes \countedby{count}
};

extern "C" {

/// Switches the uplink enhancement.
///
/// @param mode  mode of the uplink enhancement, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetHyperUplinkMode(int mode, void* userData, RadioRequestCallback callback);

/// Sets the parameters of the uplink enhancement.
///
/// @param paras  parameters of the uplink enhancement
/// \verdict
/// \sent
RADIO_API int radioSetHyperUplinkParas(const RadioHyperUplinkParasType& paras, void* userData,
                                       RadioRequestCallback callback);

/// Sets the mode of a scene.
///
/// @param scene  scene, as the modem numbers it
/// @param mode   mode of the scene, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetSceneMode(int scene, int mode, void* userData, RadioRequestCallback callback);

/// The modes of scenes.
///
/// @param scenes  scenes, as the modem numbers them \range{0 to 64} \countedby{count}; of more than 64 the first 64
///                are asked for; may be null when `count` is 0
/// @param count   number of scenes
/// \fills{sceneModes}
/// \sentor{11 for null scenes}
RADIO_API int radioGetSceneMode(int* scenes, unsigned int count, void* userData,
                                RadioRequestCallback callback);

/// Tells the modem how good the user's experience is.
///
/// @param type   what is rated, as the modem numbers it
/// @param score  how good it is, as the modem defines it
/// \verdict
/// \sent
RADIO_API int radioSetQoeScore(int type, int score, void* userData, RadioRequestCallback callback);

/// Tells the modem scores of its own services.
///
/// @param scores  scores of the modem's services
/// \verdict
/// \sent
RADIO_API int radioSendScoreInfo(const RadioScoreInfoListType& scores, void* userData,
                                 RadioRequestCallback callback);

/// Tells the modem the cells of a site.
///
/// @param action  reserved \unused
/// @param info    the site and its cells; sent as they are
/// \verdict
/// \sent
RADIO_API int radioSetSiteCellInfo(int action, const RadioSiteCellInfoType& info, void* userData,
                                   RadioRequestCallback callback);

} // extern "C"
