/// The context of one request on its way.
#pragma once

#include "radio_apis/results.h"

#include <functional>
#include <utility>

struct RadioApisAsyncData;

using RadioRequestFunction = std::function<void(void*, RADIO_APIS_RESULT, RadioApisResultType*)>;
using RadioEventFunction = std::function<void(void*, RADIO_APIS_RESULT, void*, int)>;
using ResponseHandler = std::function<void(void* response, unsigned int code, RadioApisAsyncData* context)>;

/// Made by the client method that sends the request; freed when the answer was handled or the send was
/// refused, its function objects in the order handler, event callback, result callback.
struct RadioApisAsyncData {
    RadioApisAsyncData(void* user, void* sender, RadioRequestFunction onResult, RadioEventFunction onEvent,
                       ResponseHandler onResponse)
        : userData(user),
          client(sender),
          resultCallback(std::move(onResult)),
          eventCallback(std::move(onEvent)),
          responseHandler(std::move(onResponse))
    {}
    virtual ~RadioApisAsyncData() = default;
    RadioApisAsyncData(const RadioApisAsyncData&) = delete;
    RadioApisAsyncData& operator=(const RadioApisAsyncData&) = delete;

    void* userData;
    void* client; ///< who sent it; may be gone when the answer arrives
    RadioRequestFunction resultCallback;
    RadioEventFunction eventCallback;
    ResponseHandler responseHandler;
};
