/// Functionality of the modem: on, off.
#include "radio/radio_request.h"

using namespace radio;

int VornRadioClient::setOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. mode=%d, slotId=%d", __func__, mode, mInstance);
    auto request = newRequest(RadioMessage::SetOperationMode);
    request->addVornTlvUint8(256, (static_cast<uint32_t>(mode) & 7U) == RADIO_OPERATION_MODE_ONLINE);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornRadioClient::getOperationMode(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    return query(newRequest(RadioMessage::GetOperationMode), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     auto& mode = out.rsp.operationMode;
                     mode.failure = failureOf(in);
                     mode.mode = in.getVornUint8Val(256, 0);
                     zorLogD(kTag, "%s : rsp.operationMode.mode=%d", kHandler, static_cast<int>(mode.mode));
                 });
}
