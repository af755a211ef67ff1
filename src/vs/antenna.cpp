/// Antennas and transmit power limits.
#include "vs/vs_request.h"

using vs::kTag;

int VornVsClient::setAolState(int state, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return setState("setAolState - cb enter", VsMessage::SetAolState, state, userData, cb);
}

int VornVsClient::setMtplLimitState(int state, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return setState("setMtplLimitState - cb enter", VsMessage::SetMtplLimitState, state, userData, cb);
}

int VornVsClient::setAntFixState(int state, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return setState("setAntFixState - cb enter", VsMessage::SetAntFixState, state, userData, cb);
}

int VornVsClient::setAntBlockState(int state, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return setState("setAntBlockState - cb enter", VsMessage::SetAntBlockState, state, userData, cb);
}

int VornVsClient::setAntForceStateByRat(int rat, int state, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d, rat=%d, tas:%s,", __func__, mInstance, rat,
            state == 1 ? "On" : "Off");
    // On the wire 1 is off and 2 is on.
    auto request = newRequest(VsMessage::SetAntForceStateByRat);
    request->addVornTlvUint8(256, static_cast<uint8_t>(rat));
    request->addVornTlvUint8(257, static_cast<uint8_t>(state + 1));
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setTxPathFilter(signed char rat, int band, int mode, void* userData,
                                  RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter, rat=%d, band=%d, mode=%d", __func__, rat, band, mode);
    auto request = newRequest(VsMessage::SetTxPathFilter);
    request->addVornTlvUint8(256, static_cast<uint8_t>(rat));
    request->addVornTlvUint32(257, static_cast<uint32_t>(band));
    request->addVornTlvUint32(258, static_cast<uint32_t>(mode));
    return send(request, userData, cb, processVoidResponseMsg);
}
