#include "channel/rpc_client.h"

#include "android/log.h"

#include <algorithm>

namespace {

constexpr char kRpcTag[] = "RpcClient";

} // namespace

RpcClient::RpcClient(bool flag, int instance) : RpcClient(flag, instance, nullptr, 0) {}

RpcClient::RpcClient(bool flag, int instance, const rpcEventHandlerMap* map, int count)
    : mFlag(flag), mInstance(instance), mHandlerMap(map), mHandlerMapCount(count)
{}

int RpcClient::init()
{
    mEventListeners.clear();
    mServiceListeners.clear();
    return 0;
}

int RpcClient::registerRadioApisEvent(void* userData, RadioServiceCallback callback)
{
    if (!mServiceListeners.add({callback, userData})) {
        __android_log_print(ANDROID_LOG_DEBUG, kRpcTag, "registerRadioApisEvent already in list");
    }
    return 0;
}

int RpcClient::registerRadioEvent(RADIO_EVENT_TYPE event, void* userData, RadioEventCallback callback)
{
    if (event < mLowestEvent || event > mHighestEvent) {
        __android_log_print(ANDROID_LOG_ERROR, kRpcTag, "registerEvent error, invalid eventId %d", event);
        return RADIO_APIS_FAILURE;
    }
    if (!mEventListeners.add({callback, event, userData})) {
        __android_log_print(ANDROID_LOG_DEBUG, kRpcTag, "registerRadioEvent already in list");
    }
    return 0;
}

void RpcClient::deregisterRadioEvent(RADIO_EVENT_TYPE event, RadioEventCallback callback)
{
    mEventListeners.removeFirst([=](const EventRegistration& registration) {
        return registration.event == event && registration.callback == callback;
    });
}

void RpcClient::radioApiEventCall(RADIO_APIS_SERVICE_TYPE service, RAPIS_CONNECT_STATE state)
{
    if (state != RAPIS_CONNECTED && state != RAPIS_DISCONNECTED) {
        return;
    }
    const auto listeners = mServiceListeners.snapshot();
    for (const ServiceRegistration& listener : *listeners) {
        if (listener.callback != nullptr) {
            listener.callback(service, state, listener.userData);
        }
    }
}

const rpcEventHandlerMap* RpcClient::findRow(int msgId) const
{
    const auto* end = mHandlerMap + mHandlerMapCount;
    const auto* row = std::find_if(mHandlerMap, end, [=](const rpcEventHandlerMap& candidate) {
        return candidate.msgId == static_cast<uint32_t>(msgId);
    });
    return row == end ? nullptr : row;
}

RADIO_EVENT_TYPE RpcClient::rpcEventMap(int msgId) const
{
    const rpcEventHandlerMap* row = findRow(msgId);
    return row == nullptr ? RADIO_EVENT_NONE : row->event;
}

RpcEventHandler RpcClient::getEventHandler(int msgId) const
{
    const rpcEventHandlerMap* row = findRow(msgId);
    return row == nullptr ? nullptr : row->handler;
}

void RpcClient::notifyEventForAllClient(unsigned int msgId, void* indication, unsigned int argument)
{
    const RpcEventHandler handler = getEventHandler(static_cast<int>(msgId));
    if (handler == nullptr) {
        return;
    }
    const RADIO_EVENT_TYPE event = rpcEventMap(static_cast<int>(msgId));
    if (event == RADIO_EVENT_NONE) {
        __android_log_print(ANDROID_LOG_ERROR, kRpcTag,
                            "notifyEventForAllClient : can not find the maped event");
        return;
    }
    radioEventNotifyCallback(event, indication, static_cast<int>(argument), handler);
}

void RpcClient::radioEventNotifyCallback(RADIO_EVENT_TYPE event, void* data, int argument,
                                         RpcEventHandler handler)
{
    const auto listeners = mEventListeners.snapshot();
    for (const EventRegistration& listener : *listeners) {
        if (listener.event == event && listener.callback != nullptr) {
            handler(data, argument, listener.userData, listener.callback);
        }
    }
}
