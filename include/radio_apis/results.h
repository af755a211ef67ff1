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

/// One record for all requests: each request's header tells which member of `rsp` it fills. Reading another
/// one gives bytes of the filled one. What an answer did not carry is zero. The record belongs to the library
/// and is valid only while the callback runs.
struct RadioApisResultType {
    union {
        RadioLteCellInfo lteCellInfo;
        RadioRrcStatus rrcStatus;
        RadioServingCell servingCellInfo;
        RadioAllCellInfo allCellInfo;
        RadioModemVerdict microMotion;
        RadioFeatureState featureState;
        RadioSarDsiState sarDsiState;
        RadioSimTrayStatus simTrayStatus;
        RadioSimLockData simLockData;
        RadioAtomData atomData;
        RadioNecData necData;
        RadioMetricsData metricsData;
        RadioProtocolInfo protocolInfo;
        RadioPolicyConfigListType indicationPolicy;
        RadioIndicationReportList indicationReports;
        RadioModemHeapList modemHeapList;
        RadioModemVerdict powerStatistics;
        RadioQosData qosData;
        RadioSceneModeList sceneModes;
        RfIccInfo rfIccInfo;
        RadioNetworkActionState networkActionState;
        RadioServiceMode serviceModeInfo;
        RadioCentricMode centricModeInfo;
        RadioAtValues atValues;
        RadioSimCardType simCardType;
        RadioSimlockCategory simlockCategory;
        RadioQrxlvmin qrxlvmin;
        RadioNrcaConfig nrcaConfig;
        RadioBwpConfig bwpConfig;
        RadioCaStatus caInfo;
        RadioDssConfig dssConfig;
        RadioImsUssd imsUssd;
        RadioBandPrefer bandPrefer;
        RadioBandModes bandModes;
        RadioBandInfo bandInfo;
        RadioBandTxNum bandTxNumInfo;
        RadioNvItem nvItemData;
        RadioModemVerdict nvWrite;
        RadioOperationMode operationMode;
        RadioMsimSubModeState msimSubModeState;
        RadioDeviceStateExt deviceStateExt;
        RadioModemVerdict cellBarring;
        RadioTxCarkit txCarkit;
        RadioUimAuthentication uimAuthentication;
        RadioImsRtpRedunCapability imsRtpRedunCapability;
        RadioImsRtpRedunPublicKey imsRtpRedunPublicKey;
        RadioImsRtpRedunRemotePublicKey imsRtpRedunRemotePublicKey;
        RadioImsRtpRedunControl imsRtpRedunControl;
        RadioImsRtpRedunDataPath imsRtpRedunDataPath;
        RadioPacketRoute packetRoute;
    } rsp; ///< the member that the request fills
};
