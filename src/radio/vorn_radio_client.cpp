#include "radio/indications.h"
#include "radio/radio_request.h"

using radio::kTag;

namespace {

/// In the order in which the client remembers them.
constexpr int kSwitchedIndications[] = {RadioIndication::NwEtxPower, RadioIndication::MsimSubMode};

} // namespace

VornRadioClient::VornRadioClient(bool, int instance)
    : VornClient(kTag, instance, kRadioIndications.data(), static_cast<int>(kRadioIndications.size()))
{
    mTypeCode = RADIO_APIS_SERVICE_MODEM;
    mLowestEvent = static_cast<RADIO_EVENT_TYPE>(10000);
    mHighestEvent = static_cast<RADIO_EVENT_TYPE>(11000);
}

int VornRadioClient::init()
{
    unregisterEvent();
    return 0;
}

int VornRadioClient::registerEvent(RegRadioEvtType request, void*, RadioRequestCallback)
{
    zorLogD(kTag, "%s slotId:%d, valid %d, ind %d", __func__, mInstance, request.nwEtxPower.valid,
            request.nwEtxPower.ind);
    const RadioEventSwitch switches[] = {request.nwEtxPower, request.msimSubMode};
    bool done = true;
    for (size_t i = 0; i < std::size(switches); ++i) {
        done = switchIndication(switches[i], mIndicationStates[i], kSwitchedIndications[i]) && done;
    }
    const std::lock_guard lock(mSwitches);
    for (const int msgId : {RadioIndication::DataIfupPacketRoute, RadioIndication::CallRtpSessionMlc}) {
        done = switchOn(msgId) && done;
    }
    return done ? RADIO_APIS_SUCCESS : RADIO_APIS_FAILURE;
}

int VornRadioClient::unregisterEvent()
{
    forgetSwitches(mIndicationStates);
    bool done = false;
    for (const int msgId : {RadioIndication::NwEtxPower, RadioIndication::MsimSubMode,
                            RadioIndication::DataIfupPacketRoute, RadioIndication::CallRtpSessionMlc}) {
        done = deregisterVornIndMsg(msgId);
    }
    registerSwitchedOn(kSwitchedIndications, mIndicationStates);
    return done ? RADIO_APIS_SUCCESS : RADIO_APIS_FAILURE;
}
