/// Specific absorption rate.
#include "vs/vs_request.h"

using vs::kTag;

int VornVsClient::setSarState(int source, int state, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter, source=%d, state=%d", __func__, source, state);
    auto request = newRequest(VsMessage::SetSarState);
    request->addVornTlvInt32(256, source);
    request->addVornTlvInt32(257, state);
    return send(request, userData, cb, processVoidResponseMsg);
}
