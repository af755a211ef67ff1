/// What the device is used for, and how the modem adapts to it.
#include "vs/vs_request.h"

#include <iterator>

using vs::kTag;

namespace {

constexpr size_t kSceneRecordSize = 516;

/// The block that asks for scenes.
struct SceneRequest {
    uint32_t count;
    int32_t scenes[kRadioMaxScenes];
};
static_assert(sizeof(SceneRequest) == 260);

int addList(VornData& request, uint16_t tag, const RadioHyperUplinkList& list)
{
    const auto count = cutTo(list.values, list.count);
    return request.addVornTlvArrayInt32(tag, static_cast<uint16_t>(count), list.values);
}

} // namespace

int VornVsClient::setHyperUplinkMode(int mode, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return setState("setHyperUplinkMode - cb enter", VsMessage::SetHyperUplinkMode, mode, userData, cb);
}

int VornVsClient::setHyperUplinkParas(const RadioHyperUplinkParasType& paras, void* userData,
                                      RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetHyperUplinkParas);
    // The first ten values and the other six have field ids of their own.
    constexpr uint16_t kFirstIds[] = {256, 272};
    constexpr size_t kFirstPart = 10;
    for (size_t i = 0; i < std::size(paras.values); ++i) {
        const size_t id = i < kFirstPart ? kFirstIds[0] + i : kFirstIds[1] + i - kFirstPart;
        request->addVornTlvInt32(static_cast<uint16_t>(id), paras.values[i]);
    }
    addList(*request, 278, paras.list1);
    addList(*request, 279, paras.list2);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setSceneMode(int scene, int mode, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetSceneMode);
    request->addVornTlvUint32(256, static_cast<uint32_t>(scene));
    request->addVornTlvUint32(257, static_cast<uint32_t>(mode));
    return send(request, userData, cb, onVoidResponse("setSceneMode - cb enter"));
}

int VornVsClient::getSceneMode(int* scenes, unsigned int count, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    if (!isSendable(scenes, std::min(count, kRadioMaxScenes))) {
        return RADIO_APIS_INVALID_PARAMETER;
    }
    SceneRequest wanted{};
    wanted.count = std::min(count, kRadioMaxScenes);
    std::copy_n(scenes, wanted.count, wanted.scenes);
    auto request = newRequest(VsMessage::GetSceneMode);
    request->addVornTlv(256, sizeof wanted, &wanted);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        zorLogD(kTag, "getSceneMode cb enter");
        const auto block = in.bytes(256);
        auto& modes = out.rsp.sceneModes;
        modes.count =
            static_cast<uint32_t>(std::min<size_t>(block.size() / kSceneRecordSize, kRadioMaxScenes));
        for (uint32_t i = 0; i < modes.count; ++i) {
            const auto record = block.subspan(i * kSceneRecordSize, kSceneRecordSize);
            modes.scenes[i] = {numberAt<int32_t>(record, 4), numberAt<int32_t>(record, 8)};
        }
    });
}

int VornVsClient::setQoeScore(int type, int score, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetQoeScore);
    request->addVornTlvUint32(256, static_cast<uint32_t>(type));
    request->addVornTlvUint32(257, static_cast<uint32_t>(score));
    return send(request, userData, cb, onVoidResponse("setQoeScore - cb enter"));
}

int VornVsClient::sendScoreInfo(const RadioScoreInfoListType& scores, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SendScoreInfo);
    addRecords(*request, 256, scores.scores, scores.count);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setSiteCellInfo(int, const RadioSiteCellInfoType& info, void* userData,
                                  RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetSiteCellInfo);
    request->addVornTlv(256, sizeof info, &info);
    return send(request, userData, cb, processVoidResponseMsg);
}
