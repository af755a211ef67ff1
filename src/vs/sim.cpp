/// SIM trays and SIM locks.
#include "vs/vs_request.h"

using vs::kTag;

/// What tells the SIM lock requests apart.
struct VornVsClient::LockRequest {
    const char* method;
    const char* cbLine;
    uint16_t msgId;
    uint16_t field;
    unsigned int limit; ///< bytes that may be sent
};

int VornVsClient::sendLockData(const LockRequest& lock, const unsigned char* data, unsigned int length,
                               void* userData, RadioRequestCallback cb)
{
    logEnter(lock.method);
    if (data == nullptr || length < 1 || length > lock.limit) {
        zorLogE(kTag, "invalid paramter found");
        return RADIO_APIS_INVALID_PARAMETER;
    }
    auto request = newRequest(lock.msgId);
    request->addVornTlv(lock.field, static_cast<uint16_t>(length), data);
    const auto handler = [line = lock.cbLine](void* response, unsigned int, RadioApisAsyncData* context) {
        zorLogD(kTag, "%s", line);
        if (!isValidResponse(kTag, response, context)) {
            return;
        }
        ZeroedResult record;
        fillBlob(VornView(static_cast<vorn_msg_t*>(response)).bytes(257), record.rsp.simLockData);
        context->resultCallback(context->userData, RADIO_APIS_SUCCESS, &record);
    };
    return send(request, userData, cb, handler);
}

int VornVsClient::getSimTrayStatus(void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return query(newRequest(VsMessage::GetSimTrayStatus), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     auto& trays = out.rsp.simTrayStatus;
                     trays.count = cutTo(trays.status, in.getVornArrayTlvNum(256));
                     for (uint16_t i = 0; i < trays.count; ++i) {
                         trays.status[i] = in.getVornInt32IdxVal(256, i, 0);
                         zorLogD(kTag, "simTrayStatus[%d]=%d", i, trays.status[i]);
                     }
                 });
}

int VornVsClient::setSmlBlob(const unsigned char* data, unsigned int length, void* userData,
                             RadioRequestCallback cb)
{
    return sendLockData({__func__, "setSmlBlob cb enter", VsMessage::SetSmlBlob, 256, 2048}, data, length,
                        userData, cb);
}

int VornVsClient::setSmlStatus(const unsigned char* data, unsigned int length, void* userData,
                               RadioRequestCallback cb)
{
    return sendLockData({__func__, "setSmlStatus cb enter", VsMessage::SetSmlStatus, 257, 512}, data, length,
                        userData, cb);
}

int VornVsClient::getSmlStatus(const unsigned char* data, unsigned int length, void* userData,
                               RadioRequestCallback cb)
{
    return sendLockData({__func__, "getSmlStatus cb enter", VsMessage::GetSmlStatus, 257, 512}, data, length,
                        userData, cb);
}

int VornVsClient::setRlkBlob(const unsigned char* data, unsigned int length, void* userData,
                             RadioRequestCallback cb)
{
    return sendLockData({__func__, "setRlkBlob cb enter", VsMessage::SetRlkBlob, 256, 1024}, data, length,
                        userData, cb);
}

int VornVsClient::setRlkStatus(const unsigned char* data, unsigned int length, void* userData,
                               RadioRequestCallback cb)
{
    return sendLockData({__func__, "setRlkStatus cb enter", VsMessage::SetRlkStatus, 257, 512}, data, length,
                        userData, cb);
}

int VornVsClient::getRlkStatus(const unsigned char* data, unsigned int length, void* userData,
                               RadioRequestCallback cb)
{
    return sendLockData({__func__, "getRlkStatus cb enter", VsMessage::GetRlkStatus, 257, 512}, data, length,
                        userData, cb);
}
