/// Power saving, and what the modem tells of its own resources.
#include "vs/vs_request.h"

#include <cstring>

using vs::kTag;

namespace {

constexpr size_t kHeapWords = 7;
constexpr size_t kFirstHeapWord = 6;
constexpr char kPoolName[] = "modem_pool";

/// Where the modem's block of 32-bit words differs from the record: it has no pool name, and no pool count
/// worth telling.
RADIO_APIS_RESULT fillHeapList(std::span<const uint8_t> block, RadioModemHeapList& out)
{
    const auto word = [&](size_t index) { return numberAt<uint32_t>(block, 4 * index); };
    const uint32_t count = word(5);
    if (count > kRadioMaxHeaps) {
        zorLogE(kTag, "error : invalid param");
        return RADIO_APIS_INVALID_PARAMETER;
    }
    out.poolCount = 1;
    std::memcpy(out.poolName, kPoolName, sizeof kPoolName);
    out.size = word(1);
    out.used = word(2);
    out.free = word(3);
    out.largestFree = word(4);
    out.heapCount = count;
    for (uint32_t i = 0; i < count; ++i) {
        const size_t first = kFirstHeapWord + kHeapWords * i;
        RadioModemHeap& heap = out.heaps[i];
        copyBytes(block, 4 * first, {reinterpret_cast<uint8_t*>(heap.name), sizeof heap.name - 1});
        heap.size = word(first + 5);
        heap.used = word(first + 6);
    }
    return RADIO_APIS_SUCCESS;
}

} // namespace

int VornVsClient::setPowerSavingState(const UAIINFO& info, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. setPowerSavingState type=%d op=%d dl=%d ul=%d delay=%d cnt=%d", __func__,
            info.type, info.op, info.dl, info.ul, info.delay, info.cnt);
    auto request = newRequest(VsMessage::SetPowerSavingState);
    request->addVornTlvInt32(256, info.cgType);
    request->addVornTlvInt32(257, info.type);
    request->addVornTlvInt32(258, info.op);
    request->addVornTlvInt32(259, info.dl);
    request->addVornTlvInt32(260, info.ul);
    request->addVornTlvInt32(261, info.delay);
    request->addVornTlvInt32(262, info.cnt);
    request->addVornTlvInt32(263, info.value8);
    request->addVornTlvInt32(264, info.value9);
    request->addVornTlvInt32(265, info.value10);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setSmartIdleCfg(const RadioSmartIdleInfoType& info, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    zorLogD(kTag, "smart_idle_config , type:%d, nr_t:%d, nr_c:%d", info.type, info.nr_t, info.nr_c);
    auto request = newRequest(VsMessage::SetSmartIdleCfg);
    request->addVornTlv(256, sizeof info, &info);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setPowerBoostState(int state, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return setState("setPowerBoostState - cb enter", VsMessage::SetPowerBoostState, state, userData, cb);
}

int VornVsClient::getPowerStatistics(void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return query(newRequest(VsMessage::GetPowerStatistics), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     zorLogD(kTag, "getPowerStatistics cb enter");
                     out.rsp.powerStatistics.failure = in.getResult() != 0;
                 });
}

int VornVsClient::getModemHeapList(void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return query(newRequest(VsMessage::GetModemHeapList), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     const auto block = in.bytes(256);
                     if (block.data() == nullptr) {
                         zorLogE(kTag,
                                 "getModemHeapList cb error, invalid VORN_VS_GET_MODEM_HEAP_LIST_CNF_T_INFO");
                         return RADIO_APIS_SUCCESS;
                     }
                     return fillHeapList(block, out.rsp.modemHeapList);
                 });
}
