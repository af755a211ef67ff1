/// The one object that opens the way to the modem.
#pragma once

#include "channel/rpc_client.h"
#include "kst/libkst.h"

#include <array>
#include <atomic>

/// Decides whether the device supports the channel, finds the modem's device, opens the message library, and
/// tells service listeners when the modem comes and goes.
class VornChannelClient : public RpcClient {
public:
    /// Opens the status library, when this process has not done so yet, and reads the device file. The status
    /// library stays open for the rest of the process.
    explicit VornChannelClient(bool flag);
    ~VornChannelClient() override;

    /// Opens the message library once: 0 when it is open, 1 when it could not be opened, 2 when the device
    /// does not support the channel.
    int init() override;

    /// Adds a service listener; the first one subscribes to the status library. When that is missing, or
    /// refuses, the listener stays and the next registration tries again. 0.
    int registerRadioApisEvent(void* userData, RadioServiceCallback callback) override;

    /// Ends all registrations of indications with the message library; 0.
    virtual int deInit();

    static bool isVornSupport();

    /// The modem's device on a hardware platform, from the device file. At most 63 characters and a NUL are
    /// written.
    ///
    /// @return whether there is one
    static bool parseVornDeviceName(const char* hardware, char* deviceName);

    static constexpr size_t kDeviceNameSize = 64;

private:
    std::array<char, kDeviceNameSize> mVornDeviceName{};
    std::atomic<bool> mStatusSubscribed = false; ///< listeners may come from several threads at once
    bool mInitialised = false;
};

/// Given to the status library; `client` is a VornChannelClient.
void mdStatusEventCb(void* client, md_status_event* event);
