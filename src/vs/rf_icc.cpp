/// Coexistence of the modem with the device's other radios.
#include "vs/vs_request.h"

using vs::kTag;

int VornVsClient::getRfIccInfo(void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return query(newRequest(VsMessage::GetRfIccInfo), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     zorLogD(kTag, "getRfIccInfo cb enter");
                     out.rsp.rfIccInfo.mode = in.getVornUint8Val(256, 0);
                     out.rsp.rfIccInfo.band = in.getVornUint16Val(257, 0);
                 });
}

int VornVsClient::sendRfIccClatKpi(const RfIccClatKpi& kpi, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    zorLogD(kTag, "freq:%d, num:%d, subPolicy:%d", static_cast<int>(kpi.freq), kpi.num, kpi.subPolicy);
    auto request = newRequest(VsMessage::SendRfIccClatKpi);
    request->addVornTlv(256, sizeof kpi, &kpi);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::sendRfIccModeState(unsigned char mode1, unsigned char mode2, unsigned char mode3,
                                     unsigned char mode4, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SendRfIccModeState);
    request->addVornTlvUint8(256, mode1);
    request->addVornTlvUint8(257, mode2);
    request->addVornTlvUint8(258, mode3);
    request->addVornTlvUint8(259, mode4);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::sendRfIccDeviceErr(const RfIccDeviceErr& error, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SendRfIccDeviceErr);
    request->addVornTlv(256, sizeof error, &error);
    return send(request, userData, cb, processVoidResponseMsg);
}
