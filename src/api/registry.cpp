#include "api/registry.h"

thread_local uint32_t tlssubid = 0;
constinit ClientRegistry registry;

mindroid::ReentrantLock& radioApiLock()
{
    static auto& lock = *new mindroid::ReentrantLock;
    return lock;
}

VornChannelClient& ClientRegistry::channel()
{
    if (channelClient == nullptr) {
        channelClient = new VornChannelClient(false);
    }
    return *channelClient;
}

int refuseUninitialised(const char* entryPoint)
{
    zorLogE(kApiTag, "%s : error : radio api does not init yet for instance %d", entryPoint,
            static_cast<int>(tlssubid));
    return RADIO_APIS_FAILURE;
}

int refuseAfter(const char* entryPoint, const std::exception& error)
{
    zorLogE(kApiTag, "%s : error : %s", entryPoint, error.what());
    return RADIO_APIS_FAILURE;
}

void logInstance(const char* entryPoint)
{
    zorLogD(kApiTag, "%s : %s tlssubid %d", entryPoint, entryPoint, static_cast<int>(tlssubid));
}
