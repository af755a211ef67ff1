#include "vs/indications.h"
#include "vs/vs_request.h"

#include <limits>
#include <utility>

using vs::kTag;

VornVsClient::VornVsClient(bool, int instance)
    : VornClient(kTag, instance, kVendorIndications.data(), static_cast<int>(kVendorIndications.size()))
{
    mTypeCode = RADIO_APIS_SERVICE_MODEM;
    mLowestEvent = static_cast<RADIO_EVENT_TYPE>(401);
    mHighestEvent = static_cast<RADIO_EVENT_TYPE>(500);
}

int VornVsClient::init()
{
    {
        const std::lock_guard lock(mSwitches);
        mAlwaysOnRegistered = 0;
    }
    unregisterEvent();
    const std::lock_guard lock(mSwitches);
    if (mAlwaysOnRegistered != 0) {
        registerAlwaysOn(); // another thread did so meanwhile, and may have lost them again
    }
    return 0;
}

bool VornVsClient::registerAlwaysOn()
{
    bool done = true;
    for (const int msgId : kAlwaysOnIndications) {
        done = switchOn(msgId) && done;
    }
    return done;
}

int VornVsClient::registerEvent(RegVsEvtType request, void*, RadioRequestCallback)
{
    zorLogD(kTag, "%s slotId:%d, valid %d, ind %d", __func__, mInstance, request.nec.valid, request.nec.ind);
    const RadioEventSwitch switches[] = {request.nec, request.test, request.servingCellInfo,
                                         request.hyperUplinkState, request.mccChanged};
    bool done = true;
    for (size_t i = 0; i < std::size(switches); ++i) {
        done = switchIndication(switches[i], mLastInd[i], kOptionalIndications[i]) && done;
    }
    const std::lock_guard lock(mSwitches);
    if (mAlwaysOnRegistered == 0) {
        // One that failed leaves the flag clear: the next call tries all of them again.
        mAlwaysOnRegistered = registerAlwaysOn();
        done = mAlwaysOnRegistered != 0 && done;
    }
    return done ? RADIO_APIS_SUCCESS : RADIO_APIS_FAILURE;
}

void VornVsClient::unregisterEvent()
{
    zorLogD(kTag, "%s : enter", __func__);
    forgetSwitches(mLastInd);
    for (const int msgId : kIndicationsToEnd) {
        deregisterVornIndMsg(msgId);
    }
    registerSwitchedOn(kOptionalIndications, mLastInd);
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
