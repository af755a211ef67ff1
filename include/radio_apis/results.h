/// @file
/// The result record that every request callback is given.
#pragma once

#include "radio_apis/antenna.h"
#include "radio_apis/atom.h"
#include "radio_apis/bands.h"
#include "radio_apis/camping.h"
#include "radio_apis/carrier_aggregation.h"
#include "radio_apis/cell_info.h"
#include "radio_apis/device_state.h"
#include "radio_apis/ims.h"
#include "radio_apis/metrics.h"
#include "radio_apis/multi_sim.h"
#include "radio_apis/network_action.h"
#include "radio_apis/nv.h"
#include "radio_apis/operation_mode.h"
#include "radio_apis/packet_route.h"
#include "radio_apis/policy.h"
#include "radio_apis/power.h"
#include "radio_apis/qos.h"
#include "radio_apis/rf_icc.h"
#include "radio_apis/rtp_redundancy.h"
#include "radio_apis/sar.h"
#include "radio_apis/scene.h"
#include "radio_apis/service_mode.h"
#include "radio_apis/sim.h"

/// One record for all requests: each request's description tells which member of `rsp` it fills. Reading another
/// one gives bytes of the filled one. What an answer did not carry is zero. The record belongs to the library
/// and is valid only while the callback runs.
struct RadioApisResultType {
    union {
        RadioLteCellInfo lteCellInfo;                     ///< of radioGetLteCellInfo
        RadioRrcStatus rrcStatus;                         ///< of radioGetRRCStatus
        RadioServingCell servingCellInfo;                 ///< of radioGetServingCellularCellInfo
        RadioAllCellInfo allCellInfo;                     ///< of radioGetAllCellularCellInfo
        RadioModemVerdict microMotion;                    ///< of radioSetMicroMotionState
        RadioFeatureState featureState;                   ///< of radioGetFeatureState
        RadioSarDsiState sarDsiState;                     ///< of radioGetSarDsiState
        RadioSimTrayStatus simTrayStatus;                 ///< of radioGetSimTrayStatus
        RadioSimLockData simLockData;                     ///< of the SIM lock requests \confidential
        RadioAtomData atomData;                           ///< of radioGetAtomData
        RadioNecData necData;                             ///< of radioGetNecData
        RadioMetricsData metricsData;                     ///< of radioGetMetricsData
        RadioProtocolInfo protocolInfo;                   ///< of radioGetModemProtocolInfo
        RadioPolicyConfigListType indicationPolicy;       ///< of radioGetModemIndicationPolicy
        RadioIndicationReportList indicationReports;      ///< of radioGetIndicationReportRecords
        RadioModemHeapList modemHeapList;                 ///< of radioGetModemHeapList
        RadioModemVerdict powerStatistics;                ///< of radioGetPowerStatistics
        RadioQosData qosData;                             ///< of radioGetQosData
        RadioSceneModeList sceneModes;                    ///< of radioGetSceneMode
        RfIccInfo rfIccInfo;                              ///< of radioGetRfIccInfo
        RadioNetworkActionState networkActionState;       ///< of radioGetNetworkActionState
        RadioServiceMode serviceModeInfo;                 ///< of radioGetServiceMode
        RadioCentricMode centricModeInfo;                 ///< of radioGetCentricMode
        RadioAtValues atValues;                           ///< of queries that AT commands answer with numbers
        RadioSimCardType simCardType;                     ///< of radioGetSimCardType
        RadioSimlockCategory simlockCategory;             ///< of radioGetSimlockCategoryData
        RadioQrxlvmin qrxlvmin;                           ///< of radioGetQrxlvminCfg
        RadioNrcaConfig nrcaConfig;                       ///< of radioGetNrcaConfig and radioReadNRCAConfig
        RadioBwpConfig bwpConfig;                         ///< of radioGetBwpConfig
        RadioCaStatus caInfo;                             ///< of radioGetCaStatus
        RadioDssConfig dssConfig;                         ///< of radioReadDssConfig
        RadioImsUssd imsUssd;                             ///< of radioGetImsUssdEnabled
        RadioBandPrefer bandPrefer;                       ///< of radioGetBandPrefer
        RadioBandModes bandModes;                         ///< of radioGetAvailableBandModes
        RadioBandInfo bandInfo;                           ///< of radioGetBand
        RadioBandTxNum bandTxNumInfo;                     ///< of radioGetBandsTxNum
        RadioNvItem nvItemData;                           ///< of radioReadNv
        RadioModemVerdict nvWrite;                        ///< of radioWriteNv
        RadioOperationMode operationMode;                 ///< of radioGetOperationMode
        RadioMsimSubModeState msimSubModeState;           ///< of radioGetMsimSubModeState
        RadioDeviceStateExt deviceStateExt;               ///< of radioSendDeviceStateExt
        RadioModemVerdict cellBarring;                    ///< of radioConfigCellBarringParam
        RadioTxCarkit txCarkit;                           ///< of radioGetTxCarkit
        RadioUimAuthentication uimAuthentication;         ///< of radioRequestIccSimAuthentication
        RadioImsRtpRedunCapability imsRtpRedunCapability; ///< of radioGetImsRtpRedunCapability
        RadioImsRtpRedunPublicKey imsRtpRedunPublicKey;   ///< of radioGetImsRtpRedunPublicKey
        RadioImsRtpRedunRemotePublicKey imsRtpRedunRemotePublicKey; ///< of radioSetImsRtpRedunRemotePublicKey
        RadioImsRtpRedunControl imsRtpRedunControl;                 ///< of radioSetImsRtpRedunControlInfo
        RadioImsRtpRedunDataPath imsRtpRedunDataPath;               ///< of radioSyncImsRtpRedunDataPathConfig
        RadioPacketRoute packetRoute;                               ///< of both requests for packet routes
    } rsp;                                                          ///< the member that the request fills
};
