/// Modes and states of the modem and the device.
#include "radio/radio_request.h"

using namespace radio;

int VornRadioClient::setFastDormancyTimer(int index, int timer, void* userData, RadioRequestCallback cb)
{
    constexpr uint8_t kSetTimer = 2;
    constexpr int kNotGiven = -1;
    zorLogD(kTag, "%s - enter", __func__);
    auto request = newRequest(RadioMessage::SetFastDormancyTimer);
    request->addVornTlvUint8(256, kSetTimer);
    if (index != kNotGiven) {
        request->addVornTlvUint32(257, static_cast<uint32_t>(index));
    }
    if (timer != kNotGiven) {
        request->addVornTlvUint32(258, static_cast<uint32_t>(timer));
    }
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

int VornRadioClient::setOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. mode=%d, slotId=%d", __func__, mode, mInstance);
    auto request = newRequest(RadioMessage::SetOperationMode);
    request->addVornTlvUint8(256, (static_cast<uint32_t>(mode) & 7U) == RADIO_OPERATION_MODE_ONLINE);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornRadioClient::getMsimSubModeState(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    return query(newRequest(RadioMessage::GetMsimSubModeState), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     out.rsp.msimSubModeState = {failureOf(in), in.getVornUint8Val(257, 0),
                                                 in.getVornUint8Val(258, 0)};
                 });
}

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
