/// Redundancy of an IMS call's media.
#include "radio/radio_request.h"

#include <array>

using namespace radio;

namespace {

constexpr uint8_t kSecondKeyType = 2;
constexpr unsigned kMostKeyBytes = 129; ///< that the modem takes, though the block has room for one more

/// As on the wire.
struct KeyBlock {
    uint16_t length;
    std::array<uint8_t, kRadioMaxRtpRedunRemoteKeyBytes> key;
};
static_assert(sizeof(KeyBlock) == 132);

RadioImsRtpRedunEndpoint endpoint(const VornView& in, uint16_t addressTag, uint16_t portTag)
{
    RadioImsRtpRedunEndpoint end{.port = in.getVornUint16Val(portTag, 0)};
    end.addressLength = fill(end.address, in.bytes(addressTag));
    return end;
}

} // namespace

int VornRadioClient::getImsRtpRedunCapability(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    auto request = newRequest(RadioMessage::GetImsRtpRedun);
    request->addVornTlvUint8(256, 0);
    request->addVornTlvUint8(258, kSecondKeyType);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        zorLogD(kTag, "%s - cb enter", kHandler);
        out.rsp.imsRtpRedunCapability = {failureOf(in), in.getVornUint8Val(257, 0)};
    });
}

int VornRadioClient::getImsRtpRedunPublicKey(const RadioImsRtpRedunKeyInfoType& info, void* userData,
                                             RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    auto request = newRequest(RadioMessage::GetImsRtpRedun);
    request->addVornTlvUint8(256, 1);
    request->addVornTlvInt32(257, info.id);
    if (info.keyType == kSecondKeyType) {
        request->addVornTlvUint8(258, kSecondKeyType);
    }
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        auto& key = out.rsp.imsRtpRedunPublicKey;
        key.result = in.getResult();
        key.status = in.getVornUint32Val(256, 0);
        key.id = in.getVornInt32Val(258, 0);
        key.keyType = in.getVornInt32Val(259, 0);
        key.keyLength = fill(key.key, in.bytes(262));
    });
}

int VornRadioClient::setImsRtpRedunRemotePublicKey(const RadioImsRtpRedunPublicKeyInfoType& info,
                                                   void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    KeyBlock block{};
    block.length = static_cast<uint16_t>(std::min<unsigned>(info.keyLength, kMostKeyBytes));
    copyBytes(std::span(info.key).first(block.length), 0, block.key);
    auto request = newRequest(RadioMessage::SetImsRtpRedun);
    request->addVornTlvUint8(256, 0);
    request->addVornTlvInt32(257, info.id);
    request->addVornTlvUint8(259, kSecondKeyType);
    request->addVornTlv(260, sizeof block, &block);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        out.rsp.imsRtpRedunRemotePublicKey = {in.getResult(), in.getVornUint32Val(256, 0),
                                              in.getVornInt32Val(257, 0), in.getVornUint8Val(258, 0)};
    });
}

int VornRadioClient::setImsRtpRedunControlInfo(const RadioImsRtpRedunControlInfoType& info, void* userData,
                                               RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter id:%d, action:%d", __func__, info.id, info.action);
    auto request = newRequest(RadioMessage::SetImsRtpRedun);
    request->addVornTlvInt32(257, info.id);
    if (const auto action = static_cast<uint8_t>(info.action); action == 1 || action == 2) {
        request->addVornTlvUint8(256, action);
    }
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        out.rsp.imsRtpRedunControl = {in.getResult(), in.getVornUint32Val(256, 0),
                                      in.getVornInt32Val(257, 0)};
    });
}

int VornRadioClient::syncImsRtpRedunDataPathConfig(const RadioImsRtpRedunDataPathConfigType& info,
                                                   void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter, type:%d", __func__, info.type);
    auto request = newRequest(RadioMessage::SyncImsRtpRedunDataPathConfig);
    request->addVornTlvUint8(256, static_cast<uint8_t>(info.type));
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        auto& path = out.rsp.imsRtpRedunDataPath;
        path.result = in.getResult();
        path.type = in.getVornUint8Val(256, 0);
        path.ends[0] = endpoint(in, 257, 258);
        path.ends[1] = endpoint(in, 259, 260);
        path.value1 = in.getVornUint8Val(261, 0);
        path.value2 = in.getVornUint8Val(262, 0);
    });
}
