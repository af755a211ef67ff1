/// Fast dormancy.
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
