/// Which way packets take.
#include "radio/radio_request.h"

using namespace radio;

namespace {

constexpr uint8_t kAsk = 2;

void fillRoute(const VornView& in, RadioApisResultType& out)
{
    out.rsp.packetRoute = {failureOf(in), in.getVornUint8Val(256, 0)};
}

} // namespace

int VornRadioClient::getDataActPacketRoute(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    auto request = newRequest(RadioMessage::GetDataActPacketRoute);
    request->addVornTlvUint8(256, kAsk);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        zorLogD(kTag, "%s - cb enter", kHandler);
        fillRoute(in, out);
    });
}

int VornRadioClient::getDataIfupPacketRoute(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    auto request = newRequest(RadioMessage::GetDataIfupPacketRoute);
    request->addVornTlvUint8(256, kAsk);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        zorLogD(kTag, "%s -  cb enter", kHandler);
        fillRoute(in, out);
    });
}
