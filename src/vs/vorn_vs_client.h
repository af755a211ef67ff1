/// The client for the modem's vendor-specific messages.
#pragma once

#include "channel/vorn_client.h"
#include "radio_apis/antenna.h"
#include "radio_apis/atom.h"
#include "radio_apis/cell_info.h"
#include "radio_apis/device_state.h"
#include "radio_apis/ims.h"
#include "radio_apis/metrics.h"
#include "radio_apis/network_action.h"
#include "radio_apis/policy.h"
#include "radio_apis/power.h"
#include "radio_apis/qos.h"
#include "radio_apis/rf_icc.h"
#include "radio_apis/sar.h"
#include "radio_apis/scene.h"
#include "radio_apis/search.h"
#include "radio_apis/sim.h"

#include <array>

/// One per instance. Requests may come from any thread; each builds its message, sends it and keeps nothing.
class VornVsClient : public VornClient {
public:
    VornVsClient(bool flag, int instance);

    /// Ends all subscriptions of indications, so that the next registerEvent makes them anew; 0.
    int init() override;

    /// Switches indications on and off, and on its first success all those that have no switch; 0 when all
    /// that was tried succeeded, else 1.
    int registerEvent(RegVsEvtType request, void* userData, RadioRequestCallback cb);
    void unregisterEvent();

    // antenna.cpp
    int setAolState(int state, void* userData, RadioRequestCallback cb);
    int setMtplLimitState(int state, void* userData, RadioRequestCallback cb);
    int setAntFixState(int state, void* userData, RadioRequestCallback cb);
    int setAntBlockState(int state, void* userData, RadioRequestCallback cb);
    int setAntForceStateByRat(int rat, int state, void* userData, RadioRequestCallback cb);
    int setTxPathFilter(signed char rat, int band, int mode, void* userData, RadioRequestCallback cb);

    // atom.cpp
    int loadAtomApplication(const RadioLoadAtomApplicationType& application, void* userData,
                            RadioRequestCallback cb);
    int unloadAtomApplication(int id, void* userData, RadioRequestCallback cb);
    int setAtomStatus(int id, int status, int subPolicy, const RadioAtomInfoType& info, void* userData,
                      RadioRequestCallback cb);
    int getAtomData(int type, int option, int* ids, unsigned int count, void* userData,
                    RadioRequestCallback cb);

    // camping.cpp: two switches that are set by their name. Arguments other than the fixed ones are refused with 2.
    int setRedirectOptSetting(int a1, int a2, int a3, int a4, int a5, int a6, void* userData,
                              RadioRequestCallback cb);
    int setAttachPriority(int a1, int a2, int a3, int a4, int a5, void* userData, RadioRequestCallback cb);

    // cell_info.cpp
    int getLteCellInfo(void* userData, RadioRequestCallback cb);
    int getRRCStatus(void* userData, RadioRequestCallback cb);
    int getServingCellularCellInfo(void* userData, RadioRequestCallback cb);
    int getAllCellularCellInfo(void* userData, RadioRequestCallback cb);

    // device_state.cpp
    int sendScreenState(int screenState, void* userData, RadioRequestCallback cb);
    int setMicroMotionState(int microMotionState, int multiplier, void* userData, RadioRequestCallback cb);
    int setSyncWithAp(int sync, void* userData, RadioRequestCallback cb);
    int setFeatureState(int feature, int state, void* userData, RadioRequestCallback cb);
    int getFeatureState(int feature, void* userData, RadioRequestCallback cb);
    int dispatchCase(unsigned int caseId, int param1, int param2, int param3, void* userData,
                     RadioRequestCallback cb);
    int setDiagnoseConfig(unsigned int type, int* values, unsigned int count, void* userData,
                          RadioRequestCallback cb);
    int setSidoIssueConfig(int* values, unsigned int count, void* userData, RadioRequestCallback cb);

    // ims.cpp
    int setImsAudioQualityThreshold(const RadioImsAudioQualityThreshold& threshold, void* userData,
                                    RadioRequestCallback cb);
    int setAdaptiveHandoverThreshold(const RadioAdaptiveHandoverThreshold& threshold, void* userData,
                                     RadioRequestCallback cb);
    int setImsRtpInfo(const RadioImsRtpInfo& info, void* userData, RadioRequestCallback cb);
    int setImsRtpThreshold(const RadioImsRtpThresholdInfo& info, void* userData, RadioRequestCallback cb);

    // metrics.cpp
    int startMetricsCollect(int type, int* ids, unsigned int count, void* userData, RadioRequestCallback cb);
    int stopMetricsCollect(int type, void* userData, RadioRequestCallback cb);
    int getMetricsData(int type, int option, int state, int* ids, unsigned int count, void* userData,
                       RadioRequestCallback cb);
    int getNecData(int type, const unsigned char* data, unsigned int length, void* userData,
                   RadioRequestCallback cb);
    int getModemProtocolInfo(void* userData, RadioRequestCallback cb);
    int setVeyraConfigPolicy(VeyraConfigPolicy policy, void* userData, RadioRequestCallback cb);

    // network_action.cpp
    int sendNetworkAction(const RadioActionConfigType& action, void* userData, RadioRequestCallback cb);
    int rollbackNetworkAction(int id, int option, void* userData, RadioRequestCallback cb);
    int getNetworkActionState(int id, void* userData, RadioRequestCallback cb);

    // policy.cpp
    int setModemIndicationPolicy(const RadioPolicyConfigListType& policies, void* userData,
                                 RadioRequestCallback cb);
    int getModemIndicationPolicy(void* userData, RadioRequestCallback cb);
    int getIndicationReportRecords(void* userData, RadioRequestCallback cb);
    int setIndicationConfig(int type, const RadioIndicationConfigListType& configs, void* userData,
                            RadioRequestCallback cb);

    // power.cpp
    int setPowerSavingState(const UAIINFO& info, void* userData, RadioRequestCallback cb);
    int setSmartIdleCfg(const RadioSmartIdleInfoType& info, void* userData, RadioRequestCallback cb);
    int setPowerBoostState(int state, void* userData, RadioRequestCallback cb);
    int getPowerStatistics(void* userData, RadioRequestCallback cb);
    int getModemHeapList(void* userData, RadioRequestCallback cb);

    // qos.cpp
    int setQosReportPeriod(long period, void* userData, RadioRequestCallback cb);
    int setQosConfig(signed char type, unsigned char* data, unsigned int length, void* userData,
                     RadioRequestCallback cb);
    int getQosData(int type, void* userData, RadioRequestCallback cb);

    // rf_icc.cpp
    int getRfIccInfo(void* userData, RadioRequestCallback cb);
    int sendRfIccClatKpi(const RfIccClatKpi& kpi, void* userData, RadioRequestCallback cb);
    int sendRfIccModeState(unsigned char mode1, unsigned char mode2, unsigned char mode3, unsigned char mode4,
                           void* userData, RadioRequestCallback cb);
    int sendRfIccDeviceErr(const RfIccDeviceErr& error, void* userData, RadioRequestCallback cb);

    // sar.cpp
    int setSarState(int source, int state, void* userData, RadioRequestCallback cb);
    int setSarDsiState(int state, void* userData, RadioRequestCallback cb);
    int getSarDsiState(void* userData, RadioRequestCallback cb);
    int setRtSarMode(int mode, void* userData, RadioRequestCallback cb);
    int setSarRegionCode(int regionCode, void* userData, RadioRequestCallback cb);

    // scene.cpp
    int setHyperUplinkMode(int mode, void* userData, RadioRequestCallback cb);
    int setHyperUplinkParas(const RadioHyperUplinkParasType& paras, void* userData, RadioRequestCallback cb);
    int setSceneMode(int scene, int mode, void* userData, RadioRequestCallback cb);
    int getSceneMode(int* scenes, unsigned int count, void* userData, RadioRequestCallback cb);
    int setQoeScore(int type, int score, void* userData, RadioRequestCallback cb);
    int sendScoreInfo(const RadioScoreInfoListType& scores, void* userData, RadioRequestCallback cb);
    int setSiteCellInfo(int action, const RadioSiteCellInfoType& info, void* userData,
                        RadioRequestCallback cb);

    // search.cpp
    int hplmnBgSearch(const RadioHplmnBgSearchInfoType& info, void* userData, RadioRequestCallback cb);

    // sim.cpp
    int getSimTrayStatus(void* userData, RadioRequestCallback cb);
    int setSmlBlob(const unsigned char* data, unsigned int length, void* userData, RadioRequestCallback cb);
    int setSmlStatus(const unsigned char* data, unsigned int length, void* userData, RadioRequestCallback cb);
    int getSmlStatus(const unsigned char* data, unsigned int length, void* userData, RadioRequestCallback cb);
    int setRlkBlob(const unsigned char* data, unsigned int length, void* userData, RadioRequestCallback cb);
    int setRlkStatus(const unsigned char* data, unsigned int length, void* userData, RadioRequestCallback cb);
    int getRlkStatus(const unsigned char* data, unsigned int length, void* userData, RadioRequestCallback cb);

private:
    bool registerAlwaysOn();
    void logEnter(const char* method) const;
    int setState(const char* cbLine, uint16_t msgId, int state, void* userData, RadioRequestCallback cb);
    int setModemSwitch(const char* name, int on, void* userData, RadioRequestCallback cb);
    struct LockRequest;
    int sendLockData(const LockRequest& lock, const unsigned char* data, unsigned int length, void* userData,
                     RadioRequestCallback cb);

    std::array<uint8_t, 14> mLastInd{}; ///< of kOptionalIndications: what was last asked for
    uint8_t mAlwaysOnRegistered = 0;
};
