/// How several SIM cards are served.
#include "radio/radio_request.h"

using namespace radio;

int VornRadioClient::getMsimSubModeState(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    return query(newRequest(RadioMessage::GetMsimSubModeState), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     out.rsp.msimSubModeState = {failureOf(in), in.getVornUint8Val(257, 0),
                                                 in.getVornUint8Val(258, 0)};
                 });
}

int VornRadioClient::setDsdaPreferCustThresh(int rat, int thresh1, int thresh2, void* userData,
                                             RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    if (!hasThresholds(rat)) {
        return RADIO_APIS_NOT_SUPPORTED;
    }
    const int64_t steps = rat == kQuarterStepRat ? 4 : 1;
    auto request = newRequest(RadioMessage::SetRatThresholds);
    request->addVornTlvUint8(258, static_cast<uint8_t>(rat));
    request->addVornTlvInt16(256, static_cast<int16_t>(steps * thresh1));
    request->addVornTlvInt16(257, static_cast<int16_t>(steps * thresh2));
    return send(request, userData, cb, processVoidResponseMsg);
}
