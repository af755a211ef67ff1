/// Quality of service of data connections.
#include "vs/vs_request.h"

using vs::kTag;

int VornVsClient::setQosReportPeriod(long period, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetQosReportPeriod);
    request->addVornTlvInt32(256, static_cast<int32_t>(period));
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setQosConfig(signed char type, unsigned char* data, unsigned int length, void* userData,
                               RadioRequestCallback cb)
{
    logEnter(__func__);
    if (!isSendable(data, length)) {
        return RADIO_APIS_INVALID_PARAMETER;
    }
    auto request = newRequest(VsMessage::SetQosConfig);
    request->addVornTlvUint8(256, static_cast<uint8_t>(type));
    request->addVornTlv(257, static_cast<uint16_t>(length), data);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::getQosData(int type, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::GetQosData);
    request->addVornTlvUint32(256, static_cast<uint32_t>(type));
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        zorLogD(kTag, "getQosData cb enter");
        fillBlob(in.bytes(256), out.rsp.qosData);
    });
}
