/// Non-volatile items.
#include "radio/radio_request.h"

using namespace radio;

int VornRadioClient::readNv(int id, signed char index, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d id=%d index=%d", __func__, mInstance, id, index);
    auto request = newRequest(RadioMessage::ReadNv);
    request->addVornTlvInt32(256, id);
    request->addVornTlvInt32(257, index);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        auto& item = out.rsp.nvItemData;
        item.failure = failureOf(in);
        item.dataLen = static_cast<uint16_t>(fill(item.data, in.bytes(0x8100)));
        zorLogD(kTag, "nvItemData.dataLen=%d", item.dataLen);
    });
}

int VornRadioClient::writeNv(int id, signed char index, const unsigned char* data, unsigned int dataLen,
                             void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    if (data == nullptr || dataLen > kRadioMaxNvBytes) {
        zorLogE(kTag, "invalid paramter found");
        return RADIO_APIS_INVALID_PARAMETER;
    }
    auto request = newRequest(RadioMessage::WriteNv);
    request->addVornTlvUint32(256, static_cast<uint32_t>(id));
    request->addVornTlvUint32(257, static_cast<uint32_t>(int32_t{index}));
    request->addVornTlv(0x8102, static_cast<uint16_t>(dataLen), data);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        out.rsp.nvWrite.failure = failureOf(in);
    });
}
