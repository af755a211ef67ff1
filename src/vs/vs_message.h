/// Ids of the messages that the vendor client sends.
#pragma once

#include <cstdint>

namespace VsMessage {

// Two that are not vendor ids.
inline constexpr uint16_t SetModemSwitch = 99;
inline constexpr uint16_t HplmnBgSearch = 0x11B1;

inline constexpr uint16_t SendScreenState = 0x3801;
inline constexpr uint16_t GetSimTrayStatus = 0x3803;
inline constexpr uint16_t SetMicroMotionState = 0x3805;
inline constexpr uint16_t SetPowerSavingState = 0x3807;
inline constexpr uint16_t DispatchCase = 0x3809;
inline constexpr uint16_t SetDiagnoseConfig = 0x380B;
inline constexpr uint16_t SetSyncWithAp = 0x380D;
inline constexpr uint16_t SetVeyraConfigPolicy = 0x380F;
inline constexpr uint16_t SetSidoIssueConfig = 0x3811;
inline constexpr uint16_t GetLteCellInfo = 0x3813;
inline constexpr uint16_t LoadAtomApplication = 0x3815;
inline constexpr uint16_t UnloadAtomApplication = 0x3817;
inline constexpr uint16_t GetAtomData = 0x3819;
inline constexpr uint16_t SetFeatureState = 0x381B;
inline constexpr uint16_t GetFeatureState = 0x381D;
inline constexpr uint16_t GetServingCellularCellInfo = 0x381F;
inline constexpr uint16_t GetAllCellularCellInfo = 0x3821;
inline constexpr uint16_t GetNecData = 0x3823;
inline constexpr uint16_t GetRRCStatus = 0x3825;
inline constexpr uint16_t StartMetricsCollect = 0x3827;
inline constexpr uint16_t StopMetricsCollect = 0x3829;
inline constexpr uint16_t GetMetricsData = 0x382B;
inline constexpr uint16_t SetHyperUplinkMode = 0x382D;
inline constexpr uint16_t SetSceneMode = 0x382F;
inline constexpr uint16_t SetQoeScore = 0x3831;
inline constexpr uint16_t SetHyperUplinkParas = 0x3833;
inline constexpr uint16_t SetSiteCellInfo = 0x3835;
inline constexpr uint16_t SetModemIndicationPolicy = 0x3837;
inline constexpr uint16_t GetModemIndicationPolicy = 0x3839;
inline constexpr uint16_t GetModemProtocolInfo = 0x383B;
inline constexpr uint16_t GetIndicationReportRecords = 0x383D;
inline constexpr uint16_t SetSarRegionCode = 0x383F;
inline constexpr uint16_t SetPowerBoostState = 0x383F; // the same id as SetSarRegionCode
inline constexpr uint16_t SetAolState = 0x3840;
inline constexpr uint16_t SetMtplLimitState = 0x3841;
inline constexpr uint16_t SetAntFixState = 0x3842;
inline constexpr uint16_t SetAntBlockState = 0x3843;
inline constexpr uint16_t SetAntForceStateByRat = 0x3844;
inline constexpr uint16_t GetModemHeapList = 0x3845;
inline constexpr uint16_t SetSmlBlob = 0x384D;
inline constexpr uint16_t SetSmlStatus = 0x384F;
inline constexpr uint16_t GetSmlStatus = 0x3851;
inline constexpr uint16_t SetRlkBlob = 0x3853;
inline constexpr uint16_t SetRlkStatus = 0x3855;
inline constexpr uint16_t GetRlkStatus = 0x3857;
inline constexpr uint16_t SetAtomStatus = 0x3859;
inline constexpr uint16_t SetImsAudioQualityThreshold = 0x385B;
inline constexpr uint16_t SetAdaptiveHandoverThreshold = 0x385D;
inline constexpr uint16_t SetIndicationConfig = 0x385F;
inline constexpr uint16_t SetQosReportPeriod = 0x3861;
inline constexpr uint16_t SetQosConfig = 0x3863;
inline constexpr uint16_t GetQosData = 0x3865;
inline constexpr uint16_t SetImsRtpInfo = 0x3867;
inline constexpr uint16_t SetImsRtpThreshold = 0x3869;
inline constexpr uint16_t SetSmartIdleCfg = 0x386B;
inline constexpr uint16_t GetPowerStatistics = 0x386D;
inline constexpr uint16_t SendScoreInfo = 0x386F;
inline constexpr uint16_t SendNetworkAction = 0x3871;
inline constexpr uint16_t RollbackNetworkAction = 0x3873;
inline constexpr uint16_t GetNetworkActionState = 0x3875;
inline constexpr uint16_t GetSceneMode = 0x3877;
inline constexpr uint16_t GetRfIccInfo = 0x3879;
inline constexpr uint16_t SendRfIccClatKpi = 0x387B;
inline constexpr uint16_t SendRfIccModeState = 0x387D;
inline constexpr uint16_t SendRfIccDeviceErr = 0x387F;
inline constexpr uint16_t SetTxPathFilter = 0x3881;
inline constexpr uint16_t SetSarState = 0x3895;
inline constexpr uint16_t SetSarDsiState = 0x3897;
inline constexpr uint16_t GetSarDsiState = 0x3899;
inline constexpr uint16_t SetRtSarMode = 0x389B;

} // namespace VsMessage
