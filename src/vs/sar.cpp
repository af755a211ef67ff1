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

int VornVsClient::setSarDsiState(int state, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter, state=%d", __func__, state);
    auto request = newRequest(VsMessage::SetSarDsiState);
    request->addVornTlvInt32(256, state);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::getSarDsiState(void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return query(newRequest(VsMessage::GetSarDsiState), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     auto& state = out.rsp.sarDsiState.state;
                     state = in.getVornInt32Val(256, 0);
                     zorLogD(kTag, "%s sar dsi state:%d  ", "operator()", state);
                 });
}

int VornVsClient::setRtSarMode(int mode, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter, mode=%d", __func__, mode);
    auto request = newRequest(VsMessage::SetRtSarMode);
    request->addVornTlvInt32(256, mode);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setSarRegionCode(int regionCode, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return setState("setSarRegionCode - cb enter", VsMessage::SetSarRegionCode, regionCode, userData, cb);
}
