/// What the device tells the modem about itself.
#include "vs/vs_request.h"

using vs::kTag;

int VornVsClient::sendScreenState(int screenState, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d screenState=%d", __func__, mInstance, screenState);
    auto request = newRequest(VsMessage::SendScreenState);
    request->addVornTlvInt32(256, screenState);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setMicroMotionState(int microMotionState, int multiplier, void* userData,
                                      RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. setMicroMotionState microMotionState=%d multiplier=%d", __func__,
            microMotionState, multiplier);
    auto request = newRequest(VsMessage::SetMicroMotionState);
    request->addVornTlvInt32(256, microMotionState);
    request->addVornTlvInt32(257, multiplier);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        out.rsp.microMotion.failure = in.getResult() != 0;
    });
}

int VornVsClient::setSyncWithAp(int sync, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter  ", __func__);
    auto request = newRequest(VsMessage::SetSyncWithAp);
    request->addVornTlvUint32(256, static_cast<uint32_t>(sync));
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setFeatureState(int feature, int state, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "setFeatureState enter");
    auto request = newRequest(VsMessage::SetFeatureState);
    request->addVornTlvInt32(256, feature);
    request->addVornTlvInt32(257, state);
    return send(request, userData, cb, onVoidResponse("setFeatureState cb enter"));
}

int VornVsClient::getFeatureState(int feature, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "getFeatureState enter");
    auto request = newRequest(VsMessage::GetFeatureState);
    request->addVornTlvInt32(256, feature);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        zorLogD(kTag, "getFeatureState cb enter");
        out.rsp.featureState.state = in.getVornUint32Val(256, 0);
    });
}

int VornVsClient::dispatchCase(unsigned int caseId, int param1, int param2, int param3, void* userData,
                               RadioRequestCallback cb)
{
    logEnter(__func__);
    zorLogD(kTag, "dispatchCase: case=%d param1=%d param2=%d param3=%d", static_cast<int>(caseId), param1,
            param2, param3);
    auto request = newRequest(VsMessage::DispatchCase);
    request->addVornTlvInt32(256, static_cast<int32_t>(caseId));
    request->addVornTlvInt32(257, param1);
    request->addVornTlvInt32(258, param2);
    request->addVornTlvInt32(259, param3);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setDiagnoseConfig(unsigned int type, int* values, unsigned int count, void* userData,
                                    RadioRequestCallback cb)
{
    logEnter(__func__);
    if (!isSendable(values, count)) {
        return RADIO_APIS_INVALID_PARAMETER;
    }
    auto request = newRequest(VsMessage::SetDiagnoseConfig);
    request->addVornTlvUint32(256, type);
    request->addVornTlvArrayInt32(257, static_cast<uint16_t>(count), values);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setSidoIssueConfig(int* values, unsigned int count, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    if (values == nullptr || count > kRadioMaxSidoIssueValues) {
        zorLogE(kTag, "invalid paramter found");
        return RADIO_APIS_INVALID_PARAMETER;
    }
    auto request = newRequest(VsMessage::SetSidoIssueConfig);
    request->addVornTlvArrayInt32(256, static_cast<uint16_t>(count), values);
    return send(request, userData, cb, onVoidResponse("operator() - setSidoIssueConfig response  "));
}
