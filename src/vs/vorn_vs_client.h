/// The client for the modem's vendor-specific messages.
#pragma once

#include "channel/vorn_client.h"

#include <array>

/// One per instance. Requests may come from any thread; each builds its message, sends it and keeps nothing.
class VornVsClient : public VornClient {
public:
    VornVsClient(bool flag, int instance);

    /// Ends all subscriptions of indications, so that the next registerEvent makes them anew; 0.
    int init() override;

    /// Switches indications on and off, and on its first success all those that have no switch; 0 when all
    /// that was tried succeeded, else 1.
    int registerEvent(RegVsEvtType request, void* userData, RadioRequestCallback cb);
    void unregisterEvent();

    int sendScreenState(int screenState, void* userData, RadioRequestCallback cb);
    int setMicroMotionState(int microMotionState, int multiplier, void* userData, RadioRequestCallback cb);
    int setSarState(int source, int state, void* userData, RadioRequestCallback cb);

    int getLteCellInfo(void* userData, RadioRequestCallback cb);
    int getRRCStatus(void* userData, RadioRequestCallback cb);
    int getServingCellularCellInfo(void* userData, RadioRequestCallback cb);
    int getAllCellularCellInfo(void* userData, RadioRequestCallback cb);

private:
    template <typename Fill>
    int query(const mindroid::sp<VornData>& request, void* userData, RadioRequestCallback cb, Fill fill);

    std::array<uint8_t, 14> mLastInd{}; ///< per optional indication, what was last asked for
    uint8_t mAlwaysOnRegistered = 0;
};
