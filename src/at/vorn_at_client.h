/// The client for AT commands, which travel to the modem as text inside messages.
#pragma once

#include "at/at_callbacks.h"
#include "channel/vorn_client.h"
#include "mindroid/handler.h"
#include "radio_apis/camping.h"
#include "radio_apis/operation_mode.h"
#include "radio_apis/power.h"
#include "radio_apis/rf.h"
#include "radio_apis/search.h"

#include <string>
#include <vector>

/// One per instance, held by strong pointers: a command on its way keeps its client.
class VornAtClient : public VornClient, public mindroid::Handler {
public:
    VornAtClient(bool flag, int slotId);

    /// Sends a command text as it stands; its answer is parsed into fields for `rsp`. `cb` gets the
    /// interpreter's code and the record; RADIO_APIS_FAILURE and a zeroed record when the answer had no text;
    /// the modem's failure and no record when it refused the message.
    int sendAtCommand(const char* cmd, void* userData, RadioRequestCallback cb,
                      const mindroid::sp<AtResponseCallback>& rsp);

    /// The same for a callback that is shared, and may hold no function. A refused message counts as no text.
    int sendAtCommand(const char* cmd, void* userData, const mindroid::sp<RadioApiCallback>& cb,
                      const mindroid::sp<AtResponseCallback>& rsp);

    /// Nobody waits for a result: only `rsp` is called, without a record, and without a parcel when there was
    /// no text. It deals with its own want of memory: nobody else could tell the caller.
    int sendAtCommand(const char* cmd, void* userData, const mindroid::sp<AtResponseCallback>& rsp);

    /// As the first, with the answer's data as one string.
    int sendAtCommandRspRawStr(const char* cmd, void* userData, RadioRequestCallback cb,
                               const mindroid::sp<AtResponseCallback>& rsp);

    /// Interpreters for commands whose answer carries no data: whether it was accepted, or success whatever
    /// it says.
    static RADIO_APIS_RESULT completeWithResultVoid(const mindroid::sp<mindroid::Parcel>& answer,
                                                    RadioApisResultType* record);
    static RADIO_APIS_RESULT completeWithoutResultCheck(const mindroid::sp<mindroid::Parcel>& answer,
                                                        RadioApisResultType* record);

    // antenna.cpp
    /// For NR only: other radio access technologies have a vendor message. `rat` is not sent.
    int setAntForceStateByRat(int rat, int state, void* userData, RadioRequestCallback cb);

    int setAolScenario(int scenario, void* userData, RadioRequestCallback cb);

    // bands.cpp. Lists of bands are bytes, most significant first.
    int setBandPrefer(int rat, const unsigned char* bands, unsigned int length, void* userData,
                      RadioRequestCallback cb);
    int getBandPrefer(int rat, void* userData, RadioRequestCallback cb);
    int getAvailableBandModes(void* userData, RadioRequestCallback cb);
    int getBand(int nwType, void* userData, RadioRequestCallback cb);
    int getBandsTxNum(int radioTech, int uiBand, int subband, void* userData, RadioRequestCallback cb);

    // camping.cpp. Unknown technologies, options and types are refused with 1 and a line in the log.
    int setBackgroundSearch(int rat, bool ignoreNeighbourList, bool enable, void* userData,
                            RadioRequestCallback cb);
    int setQrxlvminCfg(const RadioQrxlvminCfgInfo& info, void* userData, RadioRequestCallback cb);
    int getQrxlvminCfg(int rat, void* userData, RadioRequestCallback cb);
    int setArrearageCfg(const RadioArrearageCfgInfo& info, void* userData, RadioRequestCallback cb);
    int clearStoredFrequency(int option, void* userData, RadioRequestCallback cb);

    /// The first technology decides the order. LTE: the list may lack NR and have three; NR: it must have four.
    int setRatScan(int* rats, int count, void* userData, RadioRequestCallback cb);

    int lockCellAndBand(RadioLockCellInfoType info, void* userData, RadioRequestCallback cb);
    int unlockCellAndBand(int option, void* userData, RadioRequestCallback cb);
    int enableCellBarring(unsigned char value, void* userData, RadioRequestCallback cb);

    /// `type` has a bit for LTE and one for NR; the limits are sent before the two switches, and only when one of
    /// these is on.
    int setPingpongBarSetting(int type, int barTime, int period, int hitCnt, int reserve, void* userData,
                              RadioRequestCallback cb);

    int performRetHighRat(int rat, int reserve, void* userData, RadioRequestCallback cb);
    int setRedirectOptSetting(int value, int value2, int value3, int value4, int value5, int value6,
                              void* userData, RadioRequestCallback cb);
    int setAttachPriority(int value, int value2, int value3, int value4, int value5, void* userData,
                          RadioRequestCallback cb);

    // carrier_aggregation.cpp: also bandwidth parts and dynamic spectrum sharing.
    int setCaStatus(int rat, bool enable, void* userData, RadioRequestCallback cb);
    int getCaStatus(int rat, void* userData, RadioRequestCallback cb);
    int setNrcaConfig(unsigned char value, unsigned char reserve, void* userData, RadioRequestCallback cb);
    int getNrcaConfig(void* userData, RadioRequestCallback cb);
    int readNRCAConfig(void* userData, RadioRequestCallback cb);
    int setBwpConfig(unsigned char value, unsigned char reserve, void* userData, RadioRequestCallback cb);
    int getBwpConfig(void* userData, RadioRequestCallback cb);
    int setWhiteSANRCAConfig(const char* list, void* userData, RadioRequestCallback cb);
    int setBlackSANRCAConfig(const char* list, void* userData, RadioRequestCallback cb);
    int setWhiteNSANRCAConfig(const char* list, void* userData, RadioRequestCallback cb);
    int resetSANSAWhiteList(int list, void* userData, RadioRequestCallback cb);
    int setDssConfig(int value, void* userData, RadioRequestCallback cb);
    int setDssAdditionalConfig(int value, void* userData, RadioRequestCallback cb);
    int readDssConfig(void* userData, RadioRequestCallback cb);
    int setUst5gUCBandConfig(const char* lteBands, const char* nrBands, void* userData,
                             RadioRequestCallback cb);

    /// Refused: logs so and returns 1.
    int setUst5gUCConfig(unsigned char value1, unsigned char value2, unsigned char value3, void* userData,
                         RadioRequestCallback cb);

    // device_state.cpp
    int updateFoldScreenStatus(int state, void* userData, RadioRequestCallback cb);
    int setImeiSvn(int svn, void* userData, RadioRequestCallback cb);

    // ims.cpp
    int getImsUssdEnabled(void* userData, RadioRequestCallback cb);
    int setCiwlanUiSwitch(bool enable, void* userData, RadioRequestCallback cb);
    int setCarrierOmacpFqdn(const char* fqdn, void* userData, RadioRequestCallback cb);

    // multi_sim.cpp
    int setMsimSubModePref(int mode, void* userData, RadioRequestCallback cb);

    // operation_mode.cpp
    /// Sets the mode and looks 500 ms later, and after as long again, whether the modem has it. Calls back once,
    /// whatever fails.
    int setOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData, RadioRequestCallback cb);

    int getOperationMode(void* userData, RadioRequestCallback cb);
    int requireModemReboot(void* userData, RadioRequestCallback cb);

    // power.cpp. Groups of switches that there are not, and impossible states, are refused with 1 and a line in
    // the log.
    int setPowerSavingState(const UAIINFO& info, void* userData, RadioRequestCallback cb);
    int updateDcdcSleepState(int state, void* userData, RadioRequestCallback cb);
    int sendFastDormancy(void* userData, RadioRequestCallback cb);
    int setPSConformanceMode(int value1, int value2, void* userData, RadioRequestCallback cb);
    int queryFastDormancyMode(void* userData, RadioRequestCallback cb);
    int queryLegacyFastDormancyMode(void* userData, RadioRequestCallback cb);

    // rf.cpp
    /// Runs the commands that the RF feature file lists for a feature and index.
    int setAsdivFixPosition(int featureId, int index, void* userData, RadioRequestCallback cb);

    int setAtcTableInit(void* userData, RadioRequestCallback cb);
    int setAtcTableDeInit(void* userData, RadioRequestCallback cb);

    // Transmitter control is not supported: each logs so and returns 1.
    int setTasForceIdxByRat(int rat, int index, int state, int mode, void* userData, RadioRequestCallback cb);
    int setMaxTxPower(int rat, int band, int power, void* userData, RadioRequestCallback cb);
    int setRfTxInfo(const RFTXINFO& info, void* userData, RadioRequestCallback cb);
    int getTxAdc(const TXADCINFO& info, void* userData, RadioRequestCallback cb);
    int setRfTxPower(const RFTXINFO& info, void* userData, RadioRequestCallback cb);
    int setComboRfTxInfo(const std::vector<RFTXINFO>& infos, void* userData, RadioRequestCallback cb);

    // sar.cpp
    int connectSarSensor(void* userData, RadioRequestCallback cb);
    int disconnectSarSensor(void* userData, RadioRequestCallback cb);
    int setSarSensorChannel(int channel, void* userData, RadioRequestCallback cb);
    int getSarSnsData(void* userData, RadioRequestCallback cb);

    // search.cpp. Unknown options are refused with 1 and a line in the log.
    int setOosCfg(const RadioOosCfgInfo& info, void* userData, RadioRequestCallback cb);

    // service_mode.cpp. Both modes are set between switching the radio off and on again.
    int setServiceMode(int mode, void* userData, RadioRequestCallback cb);
    int getServiceMode(void* userData, RadioRequestCallback cb);
    int setCentricMode(int mode, void* userData, RadioRequestCallback cb);
    int getCentricMode(void* userData, RadioRequestCallback cb);

    // sim.cpp
    int getSimCardType(int option, void* userData, RadioRequestCallback cb);
    int getSimlockCategoryData(void* userData, RadioRequestCallback cb);

    /// Refused: logs so and returns 1.
    int getSimlockLockStatus(void* userData, RadioRequestCallback cb);

private:
    /// Sends a command whose answer carries no data.
    int sendSetter(const char* cmd, void* userData, RadioRequestCallback cb);

    /// Runs such commands one after the other, up to the first that fails; returns 0. None at all succeed.
    int sendSetters(const std::vector<std::string>& commands, void* userData, RadioRequestCallback cb);

    int sendQuery(const char* cmd, void* userData, RadioRequestCallback cb,
                  AtResponseCallback::Function interpreter);

    /// Whether a caller's text may stand between the quotes of a command: it can't end them, nor the command.
    /// Logs for `method` when it may not.
    static bool isPlainText(const char* method, const char* text);

    struct Command;
    int sendCommand(const char* cmd, std::unique_ptr<Command> command);
};
