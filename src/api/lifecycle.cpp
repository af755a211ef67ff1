#include "radio_apis/lifecycle.h"

#include "api/registry.h"

#include <mutex>

namespace {

/// The instance's client, created when there is none. A client that is counted has its reference before anyone
/// can find it: the first command that ends would delete it otherwise.
template <typename Client>
Client& obtain(std::atomic<Client*>& slot, uint32_t instance)
{
    if (slot == nullptr) {
        auto* client = new Client(false, static_cast<int>(instance));
        if constexpr (std::is_base_of_v<mindroid::Object, Client>) {
            client->acquireReference();
        }
        slot = client;
    }
    return *slot;
}

int initialise(uint32_t instance)
{
    const std::lock_guard lock(radioApiLock());
    const int result = registry.channel().init();
    // The clients exist also on a device that does not support the channel.
    obtain(registry.vsClients[instance], instance).init();
    obtain(registry.atClients[instance], instance);
    obtain(registry.radioClients[instance], instance).init();
    tlssubid = instance;
    return result;
}

/// The channel client, created when there is none. One that is there is had without the lock: who holds that may
/// be waiting for the callback that asks.
VornChannelClient& obtainChannel()
{
    if (VornChannelClient* channel = registry.channelClient) {
        return *channel;
    }
    const std::lock_guard lock(radioApiLock());
    return registry.channel();
}

} // namespace

int radioApisInit(RADIO_APIS_SERVICE_TYPE, RADIO_SUBS_ID_TYPE instance)
{
    if (instance >= kInstances) {
        zorLogE(kApiTag, "%s : error : no instance %u", __func__, instance);
        return RADIO_APIS_FAILURE;
    }
    const int result = guarded(__func__, [=] { return initialise(instance); });
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
    if (const VornAtClient* client = registry.atClients[tlssubid].exchange(nullptr)) {
        client->releaseReference();
    }
    return RADIO_APIS_SUCCESS;
}

int radioApisDeinit(void)
{
    VornChannelClient* channel = registry.channelClient;
    return channel == nullptr ? static_cast<int>(RADIO_APIS_SUCCESS) : channel->deInit();
}

int registerRadioApisEvent(RADIO_APIS_SERVICE_TYPE, void* userData, RadioServiceCallback callback)
{
    return guarded(__func__, [=] { return obtainChannel().registerRadioApisEvent(userData, callback); });
}
