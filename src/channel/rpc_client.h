/// What every client shares: who listens, and which indication becomes which event.
#pragma once

#include "channel/listener_list.h"
#include "radio_apis/events.h"
#include "radio_apis/result.h"

/// Reads an indication, builds the event's record and calls the event callback with it.
using RpcEventHandler = void (*)(void* indication, int argument, void* userData, RadioEventCallback callback);

/// One row of a client's constant table of indications. When an id stands in two rows the first one counts.
struct rpcEventHandlerMap {
    uint32_t msgId;
    RADIO_EVENT_TYPE event; ///< RADIO_EVENT_NONE: none
    RpcEventHandler handler;
};

class RpcClient {
public:
    RpcClient(bool flag, int instance);
    RpcClient(bool flag, int instance, const rpcEventHandlerMap* map, int count);
    RpcClient(const RpcClient&) = delete;
    RpcClient& operator=(const RpcClient&) = delete;
    virtual ~RpcClient() = default;

    /// Empties both listener lists; 0.
    virtual int init();

    /// Adds a service listener unless it is there already; 0.
    virtual int registerRadioApisEvent(void* userData, RadioServiceCallback callback);

    /// Adds an event listener unless it is there already; 1 for an event outside the client's bounds, else 0.
    int registerRadioEvent(RADIO_EVENT_TYPE event, void* userData, RadioEventCallback callback);

    /// Removes the first listener for this event with this callback, whatever its user data.
    void deregisterRadioEvent(RADIO_EVENT_TYPE event, RadioEventCallback callback);

    /// Calls every service listener, in the order of registration.
    void radioApiEventCall(RADIO_APIS_SERVICE_TYPE service, RAPIS_CONNECT_STATE state);

    /// The event that an indication becomes, and the handler that makes it one; none and null for an unknown
    /// one.
    RADIO_EVENT_TYPE rpcEventMap(int msgId) const;
    RpcEventHandler getEventHandler(int msgId) const;

    /// Turns an indication into calls of the listeners for its event. The client may be destroyed by one of
    /// them.
    void notifyEventForAllClient(unsigned int msgId, void* indication, unsigned int argument);

    /// The same for a caller that knows event and handler.
    void radioEventNotifyCallback(RADIO_EVENT_TYPE event, void* data, int argument, RpcEventHandler handler);

protected:
    bool hasHandlerMap() const { return mHandlerMap != nullptr && mHandlerMapCount > 0; }

    int mTypeCode = 0; ///< RADIO_APIS_SERVICE_MODEM in the clients that raise events
    RADIO_EVENT_TYPE mLowestEvent = RADIO_EVENT_NONE;
    RADIO_EVENT_TYPE mHighestEvent = RADIO_EVENT_NONE;
    bool mFlag;
    int mInstance;

private:
    struct EventRegistration {
        RadioEventCallback callback;
        RADIO_EVENT_TYPE event;
        void* userData;
        bool operator==(const EventRegistration&) const = default;
    };
    struct ServiceRegistration {
        RadioServiceCallback callback;
        void* userData;
        bool operator==(const ServiceRegistration&) const = default;
    };

    const rpcEventHandlerMap* findRow(int msgId) const;

    ListenerList<EventRegistration> mEventListeners;
    const rpcEventHandlerMap* mHandlerMap;
    int mHandlerMapCount;
    ListenerList<ServiceRegistration> mServiceListeners;
};
