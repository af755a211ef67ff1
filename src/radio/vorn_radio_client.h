/// The client for the modem's standard messages.
#pragma once

#include "channel/vorn_client.h"

#include <array>

/// One per instance. Requests may come from any thread; each builds its message, sends it and keeps nothing.
class VornRadioClient : public VornClient {
public:
    VornRadioClient(bool flag, int instance);

    /// Ends all subscriptions of indications; 0.
    int init() override;

    /// Switches indications on and off, and those without a switch on; 0 when all of it succeeded, else 1.
    int registerEvent(RegRadioEvtType request, void* userData, RadioRequestCallback cb);

    /// Ends all subscriptions; 0 when the last one was ended, else 1.
    int unregisterEvent();

    int readNv(int id, signed char index, void* userData, RadioRequestCallback cb);
    int writeNv(int id, signed char index, const unsigned char* data, unsigned int dataLen, void* userData,
                RadioRequestCallback cb);

private:
    template <typename Fill>
    int query(const mindroid::sp<VornData>& request, void* userData, RadioRequestCallback cb, Fill fill);

    std::array<uint8_t, 6> mIndicationStates{}; ///< the first two: what the switches were last set to
};
