/// What the device tells the modem about itself.
#include "vs/vs_request.h"

using vs::kTag;

int VornVsClient::sendScreenState(int screenState, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d screenState=%d", __func__, mInstance, screenState);
    auto request = newRequest(VsMessage::SendScreenState);
    request->addVornTlvInt32(256, screenState);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setMicroMotionState(int microMotionState, int multiplier, void* userData,
                                      RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. setMicroMotionState microMotionState=%d multiplier=%d", __func__,
            microMotionState, multiplier);
    auto request = newRequest(VsMessage::SetMicroMotionState);
    request->addVornTlvInt32(256, microMotionState);
    request->addVornTlvInt32(257, multiplier);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        out.rsp.microMotion.failure = in.getResult() != 0;
    });
}
