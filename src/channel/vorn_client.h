/// Requests to the modem, their answers, and indications.
#pragma once

#include "channel/async_data.h"
#include "channel/rpc_client.h"
#include "channel/vorn_data.h"

#include <memory>
#include <mutex>
#include <span>
#include <type_traits>

/// Base of the clients that speak to the modem.
class VornClient : public RpcClient {
public:
    /// @param tag  of what the client and its handlers log; outlives both
    VornClient(const char* tag, int instance, const rpcEventHandlerMap* map, int mapCount);

    /// An indication arrived; on the delivery thread.
    virtual void onVornEventCallback(vorn_msg_t* indication);

    /// Hands a request to the modem library.
    ///
    /// @param context  belongs to the request from now on: it is freed when the answer was handled - possibly
    ///                 before this returns - or at once when the request is refused
    /// @return 0 when accepted, 1 when refused
    static int sendAsyncRequest(vorn_msg_t* request, std::unique_ptr<RadioApisAsyncData> context);

    /// The same; a message that lacks a field is refused.
    static int sendComplete(const VornData& request, std::unique_ptr<RadioApisAsyncData> context);

    /// The handler of answers that carry no payload: calls the result callback with success and an empty
    /// record.
    static void processVoidResponseMsg(void* response, unsigned int code, RadioApisAsyncData* context);

    static RADIO_APIS_RESULT VornResultToRadioApiResult(vorn_result_const_enum vornResult);

    /// Starts and ends the delivery of an indication to this client; true when the modem library did so.
    bool registerVornIndMsg(int msgId);
    bool deregisterVornIndMsg(int msgId);

protected:
    /// What registerEvent does in each client. A switch that is not valid, or says what `lastInd` remembers, does
    /// nothing and counts as success; otherwise its wish is remembered whatever comes of it.
    bool switchIndication(RadioEventSwitch wanted, uint8_t& lastInd, int msgId);
    bool switchOn(int msgId); ///< for an indication without a switch

    /// What the end of all registrations begins and ends with: the switches are off, and those that another
    /// thread has set meanwhile are registered again.
    void forgetSwitches(std::span<uint8_t> lastInds);
    void registerSwitchedOn(std::span<const int> msgIds, std::span<const uint8_t> lastInds);

    /// Guards what a client remembers of its switches, and their registration. The end of a registration is
    /// waited for without it, since that may wait for a callback that wants to switch, too.
    std::mutex mSwitches;

    mindroid::sp<VornData> newRequest(uint16_t msgId) const
    {
        return VornData::obtainVornData(msgId, mInstance);
    }

    /// Sends a request whose failure the modem's result code tells: then `cb` gets the mapped code and no
    /// record, and `onSuccess` does not run.
    int send(const mindroid::sp<VornData>& request, void* userData, RadioRequestCallback cb,
             ResponseHandler onSuccess)
    {
        return sendComplete(*request, std::make_unique<RadioApisAsyncData>(userData, this, cb, nullptr,
                                                                           std::move(onSuccess)));
    }

    /// Sends a request whose result record tells of the modem's failure: `fill(in, out)` sees every answer,
    /// and `cb` gets success and what it filled. The context's result callback stays empty for that, else a
    /// failure would be answered before the handler sees it.
    ///
    /// @param fill  a function object without state: an answer may arrive after this client is gone. It
    ///              returns nothing, or a result code; with a failing one there is no record
    template <typename Fill>
    int query(const mindroid::sp<VornData>& request, void* userData, RadioRequestCallback cb, Fill fill);

private:
    const char* const mTag;
};

/// Given to the modem library with every request, and with every registration of an indication.
void vornResponseCallback(vorn_msg_t* response, void* context);
void vornIndCallback(vorn_msg_t* indication, void* client);

/// A result record with every byte zero, also the padding.
struct ZeroedResult : RadioApisResultType {
    ZeroedResult();
};

/// Whether a handler got what it needs; logs it otherwise.
bool isValidResponse(const char* tag, const void* response, const RadioApisAsyncData* context);

template <typename Fill>
int VornClient::query(const mindroid::sp<VornData>& request, void* userData, RadioRequestCallback cb, Fill)
{
    static_assert(std::is_empty_v<Fill>);
    auto handler = [tag = mTag, cb](void* response, unsigned int, RadioApisAsyncData* context) {
        if (!isValidResponse(tag, response, context)) {
            return;
        }
        ZeroedResult record;
        const VornView in(static_cast<vorn_msg_t*>(response));
        if constexpr (std::is_void_v<std::invoke_result_t<Fill, const VornView&, RadioApisResultType&>>) {
            Fill{}(in, record);
            RadioRequestFunction{cb}(context->userData, RADIO_APIS_SUCCESS, &record);
        } else {
            const RADIO_APIS_RESULT result = Fill{}(in, record);
            RadioRequestFunction{cb}(context->userData, result,
                                     result == RADIO_APIS_SUCCESS ? &record : nullptr);
        }
    };
    return send(request, userData, nullptr, handler);
}
