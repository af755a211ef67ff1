#include "radio_apis/lifecycle.h"

#include "api/registry.h"

#include <mutex>

namespace {

/// The instance's client, created when there is none.
template <typename Client>
Client& obtain(std::atomic<Client*>& slot, uint32_t instance)
{
    if (slot == nullptr) {
        slot = new Client(false, static_cast<int>(instance));
    }
    return *slot;
}

} // namespace

int radioApisInit(RADIO_APIS_SERVICE_TYPE, RADIO_SUBS_ID_TYPE instance)
{
    if (instance >= kInstances) {
        zorLogE(kApiTag, "%s : error : no instance %u", __func__, instance);
        return RADIO_APIS_FAILURE;
    }
    int result = RADIO_APIS_SUCCESS;
    {
        const std::lock_guard lock(registry.radioApiLock);
        result = registry.channel().init();
        // The clients exist also on a device that does not support the channel.
        obtain(registry.vsClients[instance], instance).init();
        registry.atReferences[instance] = mindroid::sp(&obtain(registry.atClients[instance], instance));
        obtain(registry.radioClients[instance], instance).init();
        tlssubid = instance;
    }
    zorLogD(kApiTag, "%s : radioApisInit tlssubid %d", __func__, static_cast<int>(tlssubid));
    return result;
}

int radioApisReleaseService(RADIO_APIS_SERVICE_TYPE)
{
    VornChannelClient* channel = registry.channelClient;
    if (channel == nullptr || tlssubid >= kInstances) {
        return RADIO_APIS_SUCCESS;
    }
    // The registrations end before the clients do: an indication that is on its way still finds its client.
    channel->deInit();
    delete registry.vsClients[tlssubid].exchange(nullptr);
    delete registry.radioClients[tlssubid].exchange(nullptr);
    registry.atClients[tlssubid] = nullptr;
    registry.atReferences[tlssubid] = nullptr;
    return RADIO_APIS_SUCCESS;
}

int radioApisDeinit(void)
{
    VornChannelClient* channel = registry.channelClient;
    return channel == nullptr ? static_cast<int>(RADIO_APIS_SUCCESS) : channel->deInit();
}

int registerRadioApisEvent(RADIO_APIS_SERVICE_TYPE, void* userData, RadioServiceCallback callback)
{
    registry.radioApiLock.lock();
    VornChannelClient& channel = registry.channel();
    registry.radioApiLock.unlock();
    return channel.registerRadioApisEvent(userData, callback);
}
