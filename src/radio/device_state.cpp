/// What the device tells the modem about itself.
#include "radio/radio_request.h"

using namespace radio;

int VornRadioClient::sendDeviceStateExt(int deviceStateExt, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. sendDeviceStateExt deviceStateExt=%d ", __func__, deviceStateExt);
    auto request = newRequest(RadioMessage::SendDeviceStateExt);
    request->addVornTlvInt32(256, deviceStateExt);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        auto& state = out.rsp.deviceStateExt;
        state = {in.getResult(), in.getVornInt32Val(256, 0)};
        zorLogD(kTag, "%s : rsp.DeviceStateExt.deviceStateExt=%d,getResult=%d", kHandler,
                state.deviceStateExt, static_cast<int>(state.result));
    });
}

int VornRadioClient::setImbState(int state, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    auto request = newRequest(RadioMessage::SetImbState);
    request->addVornTlvUint8(256, static_cast<uint8_t>(state));
    return send(request, userData, cb, processVoidResponseMsg);
}
