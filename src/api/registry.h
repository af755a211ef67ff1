/// Which client objects exist, and which instance a thread addresses.
#pragma once

#include "at/vorn_at_client.h"
#include "channel/vorn_channel_client.h"
#include "mindroid/reentrant_lock.h"
#include "radio/vorn_radio_client.h"
#include "vs/vorn_vs_client.h"
#include "zor/log.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <exception>
#include <type_traits>
#include <utility>

inline constexpr char kApiTag[] = "VornApis";
inline constexpr unsigned kInstances = 3;

/// The instance that the calling thread chose with radioApisInit.
extern thread_local uint32_t tlssubid;

/// The clients of one kind, by instance. Reading takes no lock.
template <typename Client>
using ClientSlots = std::array<std::atomic<Client*>, kInstances>;

/// Nothing of it ends with the process: other threads may go on sending while that exits.
struct ClientRegistry {
    std::atomic<VornChannelClient*> channelClient{nullptr};
    ClientSlots<VornVsClient> vsClients{};
    ClientSlots<VornAtClient> atClients{}; ///< each pointer stands for one reference of its client's
    ClientSlots<VornRadioClient> radioClients{};

    /// Creates the channel client when there is none.
    VornChannelClient& channel();

    template <typename Client>
    ClientSlots<Client>& slots()
    {
        if constexpr (std::is_same_v<Client, VornVsClient>) {
            return vsClients;
        } else if constexpr (std::is_same_v<Client, VornAtClient>) {
            return atClients;
        } else {
            return radioClients;
        }
    }
};

extern ClientRegistry registry;
static_assert(std::is_trivially_destructible_v<ClientRegistry>);

/// Guards the creation of clients.
mindroid::ReentrantLock& radioApiLock();

/// The calling thread's client of one kind; null when there is none.
template <typename Client>
Client* currentClient()
{
    return tlssubid < kInstances ? registry.slots<Client>()[tlssubid].load(std::memory_order_acquire)
                                 : nullptr;
}

int refuseUninitialised(const char* entryPoint);
int refuseAfter(const char* entryPoint, const std::exception& error);

/// Runs what an exported function does; an exception, as for want of memory, is a refusal. None leaves a function
/// that C code may have called.
template <typename Operation>
int guarded(const char* entryPoint, Operation operation)
{
    try {
        return operation();
    } catch (const std::exception& error) {
        return refuseAfter(entryPoint, error);
    }
}

/// What every entry point is: the call of one method of the calling thread's client.
template <typename Client, typename... Parameters, typename... Arguments>
int forward(const char* entryPoint, int (Client::*method)(Parameters...), Arguments&&... arguments)
{
    Client* client = currentClient<Client>();
    if (client == nullptr) {
        return refuseUninitialised(entryPoint);
    }
    return guarded(entryPoint, [&] { return (client->*method)(std::forward<Arguments>(arguments)...); });
}

/// The line that some entry points log first.
void logInstance(const char* entryPoint);
