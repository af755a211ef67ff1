#include "radio/indications.h"
#include "radio/radio_request.h"

using radio::kTag;

VornRadioClient::VornRadioClient(bool, int instance)
    : VornClient(instance, kRadioIndications.data(), static_cast<int>(kRadioIndications.size()))
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
    bool done = switchIndication(kTag, request.nwEtxPower, mIndicationStates[0], RadioIndication::NwEtxPower);
    done = switchIndication(kTag, request.msimSubMode, mIndicationStates[1], RadioIndication::MsimSubMode) &&
           done;
    for (const int msgId : {RadioIndication::DataIfupPacketRoute, RadioIndication::CallRtpSessionMlc}) {
        done = switchOn(kTag, msgId) && done;
    }
    return done ? RADIO_APIS_SUCCESS : RADIO_APIS_FAILURE;
}

int VornRadioClient::unregisterEvent()
{
    bool done = false;
    for (const int msgId : {RadioIndication::NwEtxPower, RadioIndication::MsimSubMode,
                            RadioIndication::DataIfupPacketRoute, RadioIndication::CallRtpSessionMlc}) {
        done = deregisterVornIndMsg(msgId);
    }
    mIndicationStates.fill(0);
    return done ? RADIO_APIS_SUCCESS : RADIO_APIS_FAILURE;
}
