#include "channel/vorn_client.h"

#include "channel/slot_id.h"
#include "zor/log.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr char kClientTag[] = "VornClient";

} // namespace

VornClient::VornClient(const char* tag, int instance, const rpcEventHandlerMap* map, int mapCount)
    : RpcClient(true, instance, map, mapCount), mTag(tag)
{}

ZeroedResult::ZeroedResult()
{
    std::memset(static_cast<RadioApisResultType*>(this), 0, sizeof(RadioApisResultType));
}

bool isValidResponse(const char* tag, const void* response, const RadioApisAsyncData* context)
{
    if (response == nullptr || context == nullptr) {
        zorLogE(tag, "%s : invalid vorn response", "operator()");
        return false;
    }
    return true;
}

int VornClient::sendAsyncRequest(vorn_msg_t* request, std::unique_ptr<RadioApisAsyncData> context)
{
    const int result = vorn_msg_async_api(request, vornResponseCallback, 0, context.get());
    if (result == 0) {
        // The answer may have been handled already: the context is only let go of, not looked at.
        static_cast<void>(context.release());
        return RADIO_APIS_SUCCESS;
    }
    zorLogE(kClientTag, "error - sendAsyncRequest VORN_VS_SEND_SCREEN_STATE_REQ ret %d", result);
    return RADIO_APIS_FAILURE;
}

int VornClient::sendComplete(const VornData& request, std::unique_ptr<RadioApisAsyncData> context)
{
    if (!request.isComplete()) {
        zorLogE(kClientTag, "%s: message 0x%04x lacks a field that could not be added", __func__,
                request.getVornMsgId());
        return RADIO_APIS_FAILURE;
    }
    return sendAsyncRequest(request.getData(), std::move(context));
}

void vornResponseCallback(vorn_msg_t* response, void* user)
{
    zorLogD(kClientTag, "%s - enter", __func__);
    const std::unique_ptr<RadioApisAsyncData> context(static_cast<RadioApisAsyncData*>(user));
    const uint32_t result = VornView(response).getResult();
    if (!context) {
        zorLogE(kClientTag, "%s invalid user data or callback", __func__);
        return;
    }
    if (result != 0 && context->resultCallback) {
        zorLogE(kClientTag, "vornResponseCallback - fail to send async vorn req msg. result=%d",
                static_cast<int>(result));
        const auto mapped =
            VornClient::VornResultToRadioApiResult(static_cast<vorn_result_const_enum>(result));
        context->resultCallback(context->userData, mapped, nullptr);
    } else if (context->responseHandler) {
        // A failed answer to a request without a result callback ends up here too: its handler tells of the
        // failure.
        context->responseHandler(response, 0, context.get());
    }
}

void VornClient::processVoidResponseMsg(void* response, unsigned int, RadioApisAsyncData* context)
{
    if (response == nullptr || context == nullptr) {
        zorLogE(kClientTag, "%s : invalid vorn response", __func__);
        return;
    }
    ZeroedResult record;
    context->resultCallback(context->userData, RADIO_APIS_SUCCESS, &record);
}

RADIO_APIS_RESULT VornClient::VornResultToRadioApiResult(vorn_result_const_enum vornResult)
{
    RADIO_APIS_RESULT result = RADIO_APIS_FAILURE;
    switch (vornResult) {
    case 0:
        result = RADIO_APIS_SUCCESS;
        break;
    case 21:
        result = RADIO_APIS_INVALID_PARAMETER;
        break;
    case 31:
        result = RADIO_APIS_MODEM_RESULT_31;
        break;
    case 105:
    case 106:
        result = RADIO_APIS_NOT_SUPPORTED;
        break;
    default:
        break;
    }
    zorLogD(kClientTag, "VornResultToRadioApiResult vornResult %d, radio result %d", vornResult, result);
    return result;
}

bool VornClient::registerVornIndMsg(int msgId)
{
    const int result = vorn_msg_register_ind_api(changeToVornSlotId(mInstance), static_cast<uint16_t>(msgId),
                                                 vornIndCallback, 0, this);
    if (result < 0) {
        zorLogE(kClientTag, "error - registerVornIndMsg slotId:%d, msgId:0x%04x, ret:%d", mInstance, msgId,
                result);
    }
    return result >= 0;
}

bool VornClient::deregisterVornIndMsg(int msgId)
{
    const int result =
        vorn_msg_unregister_ind_api(changeToVornSlotId(mInstance), static_cast<uint16_t>(msgId));
    if (result < 0) {
        zorLogE(kClientTag, "error - deregisterVornIndMsg slotId:%d, msgId:0x%04x, ret:%d", mInstance, msgId,
                result);
    }
    return result >= 0;
}

bool VornClient::switchIndication(RadioEventSwitch wanted, uint8_t& lastInd, int msgId)
{
    std::unique_lock lock(mSwitches);
    if (wanted.valid == 0 || wanted.ind == lastInd) {
        return true;
    }
    lastInd = wanted.ind;
    if (wanted.ind != 0) {
        const bool done = registerVornIndMsg(msgId);
        zorLogD(mTag, "%s: instance %d event %d register result %d", "registerEvent", mInstance, msgId, done);
        return done;
    }
    lock.unlock();
    const bool done = deregisterVornIndMsg(msgId);
    zorLogD(mTag, "%s: instance %d event %d deregister result %d", "registerEvent", mInstance, msgId, done);
    lock.lock();
    if (lastInd != 0) {
        registerVornIndMsg(msgId); // another thread has switched it on meanwhile
    }
    return done;
}

void VornClient::forgetSwitches(std::span<uint8_t> lastInds)
{
    const std::lock_guard lock(mSwitches);
    std::ranges::fill(lastInds, uint8_t{0});
}

void VornClient::registerSwitchedOn(std::span<const int> msgIds, std::span<const uint8_t> lastInds)
{
    const std::lock_guard lock(mSwitches);
    for (size_t i = 0; i < msgIds.size(); ++i) {
        if (lastInds[i] != 0) {
            registerVornIndMsg(msgIds[i]);
        }
    }
}

bool VornClient::switchOn(int msgId)
{
    const bool done = registerVornIndMsg(msgId);
    zorLogD(mTag, "%s: instance %d event %d register event result %d", "registerEvent", mInstance, msgId,
            done);
    return done;
}

void vornIndCallback(vorn_msg_t* indication, void* client)
{
    zorLogD(kClientTag, "%s - enter", __func__);
    const VornView view(indication);
    zorLogD(kClientTag, "vornIndMsgId:0x%x, slot:%x", view.getVornMsgId(),
            static_cast<unsigned int>(view.getSlotId()));
    if (client != nullptr) {
        static_cast<VornClient*>(client)->onVornEventCallback(indication);
    }
}

void VornClient::onVornEventCallback(vorn_msg_t* indication)
{
    const uint16_t msgId = VornView(indication).getVornMsgId();
    zorLogD(kClientTag, "%s - enter. msgId=%d", __func__, msgId);
    if (hasHandlerMap()) {
        notifyEventForAllClient(msgId, indication, 0);
    }
}
