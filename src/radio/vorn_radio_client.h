/// The client for the modem's standard messages.
#pragma once

#include "channel/vorn_client.h"
#include "radio_apis/idc.h"
#include "radio_apis/search.h"

#include <array>
#include <vector>

/// One per instance. Requests may come from any thread; each builds its message, sends it and keeps nothing.
class VornRadioClient : public VornClient {
public:
    VornRadioClient(bool flag, int instance);

    /// Ends all subscriptions of indications; 0.
    int init() override;

    /// Switches indications on and off, and those without a switch on; 0 when all of it succeeded, else 1.
    int registerEvent(RegRadioEvtType request, void* userData, RadioRequestCallback cb);

    /// Ends all subscriptions; 0 when the last one was ended, else 1.
    int unregisterEvent();

    // antenna.cpp
    int getTxCarkit(int radioTech, int uiBand, int subband, int option, void* userData,
                    RadioRequestCallback cb);

    // device_state.cpp
    int sendDeviceStateExt(int deviceStateExt, void* userData, RadioRequestCallback cb);
    int setImbState(int state, void* userData, RadioRequestCallback cb);

    // idc.cpp
    int setIdcOffset(int rat, int offset, const std::vector<RadioIdcOffsetConfig>& configs, void* userData,
                     RadioRequestCallback cb);

    // multi_sim.cpp
    int getMsimSubModeState(void* userData, RadioRequestCallback cb);
    int setDsdaPreferCustThresh(int rat, int thresh1, int thresh2, void* userData, RadioRequestCallback cb);

    // nv.cpp
    int readNv(int id, signed char index, void* userData, RadioRequestCallback cb);
    int writeNv(int id, signed char index, const unsigned char* data, unsigned int dataLen, void* userData,
                RadioRequestCallback cb);

    // operation_mode.cpp
    int setOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData, RadioRequestCallback cb);
    int getOperationMode(void* userData, RadioRequestCallback cb);

    // packet_route.cpp
    int getDataActPacketRoute(void* userData, RadioRequestCallback cb);
    int getDataIfupPacketRoute(void* userData, RadioRequestCallback cb);

    // power.cpp
    int setFastDormancyTimer(int index, int timer, void* userData, RadioRequestCallback cb);

    // rtp_redundancy.cpp
    int getImsRtpRedunCapability(void* userData, RadioRequestCallback cb);
    int getImsRtpRedunPublicKey(const RadioImsRtpRedunKeyInfoType& info, void* userData,
                                RadioRequestCallback cb);
    int setImsRtpRedunRemotePublicKey(const RadioImsRtpRedunPublicKeyInfoType& info, void* userData,
                                      RadioRequestCallback cb);
    int setImsRtpRedunControlInfo(const RadioImsRtpRedunControlInfoType& info, void* userData,
                                  RadioRequestCallback cb);
    int syncImsRtpRedunDataPathConfig(const RadioImsRtpRedunDataPathConfigType& info, void* userData,
                                      RadioRequestCallback cb);

    // search.cpp
    int performPlmnUnblock(RadioPlmnBlockInfo info, void* userData, RadioRequestCallback cb);
    int clearForbiddenTai(int option, int mcc, int mnc, bool mncThreeDigits, int code, int type,
                          void* userData, RadioRequestCallback cb);
    int configCellBarringParam(unsigned int threshold, unsigned int watchPeriod, unsigned int barringTime,
                               void* userData, RadioRequestCallback cb);
    int setOosSnifferCfg(const RadioOosCfgInfo& info, void* userData, RadioRequestCallback cb);

    // sim.cpp
    int requestIccSimAuthentication(const RadioUimAuthenticateReqInfo& info, void* userData,
                                    RadioRequestCallback cb);
    int setUimPowerUp(void* userData, RadioRequestCallback cb);
    int setUimPowerDown(void* userData, RadioRequestCallback cb);

private:
    int setUimPower(const char* method, uint8_t on, void* userData, RadioRequestCallback cb);

    std::array<uint8_t, 6> mIndicationStates{}; ///< the first two: what the switches were last set to
};
