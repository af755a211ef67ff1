#include "vs/indications.h"
#include "vs/vs_request.h"

#include <limits>
#include <utility>

using vs::kTag;

VornVsClient::VornVsClient(bool, int instance)
    : VornClient(instance, kVendorIndications.data(), static_cast<int>(kVendorIndications.size()))
{
    mTypeCode = RADIO_APIS_SERVICE_MODEM;
    mLowestEvent = static_cast<RADIO_EVENT_TYPE>(401);
    mHighestEvent = static_cast<RADIO_EVENT_TYPE>(500);
}

int VornVsClient::init()
{
    unregisterEvent();
    mAlwaysOnRegistered = 0;
    return 0;
}

int VornVsClient::registerEvent(RegVsEvtType request, void*, RadioRequestCallback)
{
    zorLogD(kTag, "%s slotId:%d, valid %d, ind %d", __func__, mInstance, request.nec.valid, request.nec.ind);
    const std::pair<RadioEventSwitch, int> switches[] = {
        {request.nec, VsIndication::Nec},
        {request.test, VsIndication::Test},
        {request.servingCellInfo, VsIndication::ServingCellInfo},
        {request.hyperUplinkState, VsIndication::HyperUplinkState},
        {request.mccChanged, VsIndication::MccChanged},
    };
    bool done = true;
    for (size_t i = 0; i < std::size(switches); ++i) {
        done = switchIndication(kTag, switches[i].first, mLastInd[i], switches[i].second) && done;
    }
    if (mAlwaysOnRegistered == 0) {
        bool allOn = true;
        for (const int msgId : kAlwaysOnIndications) {
            allOn = switchOn(kTag, msgId) && allOn;
        }
        // One that failed leaves the flag clear: the next call tries all of them again.
        mAlwaysOnRegistered = allOn;
        done = allOn && done;
    }
    return done ? RADIO_APIS_SUCCESS : RADIO_APIS_FAILURE;
}

void VornVsClient::unregisterEvent()
{
    zorLogD(kTag, "%s : enter", __func__);
    for (const int msgId : kIndicationsToEnd) {
        deregisterVornIndMsg(msgId);
    }
    mLastInd.fill(0);
    zorLogD(kTag, "%s : exit", __func__);
}

void VornVsClient::logEnter(const char* method) const
{
    zorLogD(kTag, "%s - enter", method);
}

int VornVsClient::setState(const char* cbLine, uint16_t msgId, int state, void* userData,
                           RadioRequestCallback cb)
{
    auto request = newRequest(msgId);
    request->addVornTlvUint32(256, static_cast<uint32_t>(state));
    return send(request, userData, cb, onVoidResponse(cbLine));
}

bool isSendable(const void* values, unsigned int count)
{
    if ((values == nullptr && count != 0) || count > std::numeric_limits<uint16_t>::max()) {
        zorLogE(kTag, "invalid paramter found");
        return false;
    }
    return true;
}
