/// Metrics, and data of the modem's network evaluation.
#include "vs/vs_request.h"

using vs::kTag;

int VornVsClient::startMetricsCollect(int type, int* ids, unsigned int count, void* userData,
                                      RadioRequestCallback cb)
{
    logEnter(__func__);
    if (!isSendable(ids, count)) {
        return RADIO_APIS_INVALID_PARAMETER;
    }
    auto request = newRequest(VsMessage::StartMetricsCollect);
    request->addVornTlvInt32(256, type);
    request->addVornTlvArrayInt32(257, static_cast<uint16_t>(count), ids);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::stopMetricsCollect(int type, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::StopMetricsCollect);
    request->addVornTlvInt32(256, type);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::getMetricsData(int type, int option, int state, int* ids, unsigned int count,
                                 void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    if (!isSendable(ids, count)) {
        return RADIO_APIS_INVALID_PARAMETER;
    }
    auto request = newRequest(VsMessage::GetMetricsData);
    request->addVornTlvInt32(256, type);
    request->addVornTlvInt32(257, option);
    request->addVornTlvInt32(259, state); // in front of 258, as the modem has it
    request->addVornTlvArrayInt32(258, static_cast<uint16_t>(count), ids);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        auto& metrics = out.rsp.metricsData;
        const auto data = in.bytes(256);
        metrics.length = static_cast<uint32_t>(std::min(data.size(), sizeof metrics.data));
        copyBytes(data, 0, metrics.data);
        metrics.type = in.getVornInt32Val(257, -1);
        metrics.count = in.getVornInt32Val(258, 0);
        metrics.state = in.getVornInt32Val(259, 0);
    });
}

int VornVsClient::getNecData(int type, const unsigned char* data, unsigned int length, void* userData,
                             RadioRequestCallback cb)
{
    logEnter(__func__);
    if (!isSendable(data, length)) {
        return RADIO_APIS_INVALID_PARAMETER;
    }
    auto request = newRequest(VsMessage::GetNecData);
    request->addVornTlvInt32(256, type);
    request->addVornTlvArrayUint8(257, static_cast<uint16_t>(length), data);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        fillBlob(in.bytes(256), out.rsp.necData);
    });
}

int VornVsClient::getModemProtocolInfo(void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return query(newRequest(VsMessage::GetModemProtocolInfo), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     zorLogD(kTag, "getModemProtocolInfo cb enter");
                     fillBlob(in.bytes(256), out.rsp.protocolInfo);
                 });
}

int VornVsClient::setVeyraConfigPolicy(VeyraConfigPolicy policy, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetVeyraConfigPolicy);
    for (uint16_t i = 0; i < std::size(policy.values); ++i) {
        request->addVornTlvInt32(static_cast<uint16_t>(256 + i), policy.values[i]);
    }
    return send(request, userData, cb, processVoidResponseMsg);
}
