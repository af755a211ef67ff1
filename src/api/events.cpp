#include "radio_apis/events.h"

#include "api/registry.h"

namespace {

constexpr char kClientSearch[] = "getVronClient";

RpcClient* clientForEvent(RADIO_EVENT_TYPE event)
{
    RpcClient* client = nullptr;
    if (event >= 401 && event <= 499) {
        client = currentClient<VornVsClient>();
    } else if (event >= 10000 && event <= 10999) {
        client = currentClient<VornRadioClient>();
    } else {
        zorLogE(kApiTag, "%s : error :do not define event range for %d", kClientSearch, event);
        return nullptr;
    }
    if (client == nullptr) {
        zorLogE(kApiTag, "%s : error in VornClient for instance %d", kClientSearch,
                static_cast<int>(tlssubid));
    }
    return client;
}

} // namespace

int registerRadioEvent(RADIO_EVENT_TYPE event, void* userData, RadioEventCallback callback)
{
    zorLogD(kApiTag, "%s : registerRadioEvent tlssubid %d eventId ", __func__, static_cast<int>(tlssubid));
    RpcClient* client = clientForEvent(event);
    if (client == nullptr) {
        return RADIO_APIS_FAILURE;
    }
    return guarded(__func__, [=] { return client->registerRadioEvent(event, userData, callback); });
}

int radioRegisterVsEvent(RegVsEvtType switches, void* userData, RadioRequestCallback callback)
{
    if (currentClient<VornVsClient>() != nullptr) {
        logInstance(__func__);
    }
    return forward(__func__, &VornVsClient::registerEvent, switches, userData, callback);
}

int radioRegisterRadioEvent(RegRadioEvtType switches, void* userData, RadioRequestCallback callback)
{
    if (currentClient<VornRadioClient>() != nullptr) {
        logInstance(__func__);
    }
    return forward(__func__, &VornRadioClient::registerEvent, switches, userData, callback);
}
