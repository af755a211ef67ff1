/// What an event costs: the conversion of a full measurement report, and its way to many listeners.
#include "radio_apis/converters.h"
#include "vorn/vorn_msg.h"

#include "channel/rpc_client.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace {

constexpr uint8_t kSubscriptions = 10;
constexpr size_t kSubscriptionSize = 2172;

/// Every count at its highest: 10 subscriptions, 2 groups, 10 entries, 8 cells.
std::vector<uint8_t> fullReport()
{
    std::vector<uint8_t> report(kSubscriptions * kSubscriptionSize);
    for (size_t s = 0; s < kSubscriptions; ++s) {
        uint8_t* subscription = report.data() + s * kSubscriptionSize;
        subscription[8] = 2;
        for (uint8_t* group : {subscription + 12, subscription + 1092}) {
            group[3] = 10;
            for (size_t entry = 0; entry < 10; ++entry) {
                group[20 + entry * 106 + 5] = 8;
            }
        }
    }
    return report;
}

void ignore(RADIO_EVENT_TYPE, void*, void* data, int)
{
    benchmark::DoNotOptimize(data);
}

void measurementReport(benchmark::State& state)
{
    const auto report = fullReport();
    vorn_msg_t* indication = vorn_msg_init(0x7E03, 1);
    vorn_msg_add_tlv(indication, 256, 1, &kSubscriptions);
    vorn_msg_add_tlv(indication, 258, static_cast<uint16_t>(report.size()), report.data());
    for (auto _ : state) {
        vornVsClientNotifyVeyraInfoIndEvent(indication, 0, nullptr, ignore);
    }
    vorn_msg_deinit(indication);
}
BENCHMARK(measurementReport);

/// The same bytes copied: those of the report that become cells, and those of the record.
void copyOfTheSameBytes(benchmark::State& state)
{
    const auto report = fullReport();
    std::vector<uint8_t> from(report.size() + sizeof(RadioVeyraCellInfo));
    std::vector<uint8_t> to(from.size());
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(copyOfTheSameBytes);

void listeners(benchmark::State& state)
{
    static constexpr rpcEventHandlerMap kMap[] = {
        {0x7E02, RADIO_EVENT_TEST_IND, vornVsClientNotifyTestIndEvent}};
    struct Client : RpcClient {
        Client() : RpcClient(true, 0, kMap, 1)
        {
            mLowestEvent = RADIO_EVENT_TEST_IND;
            mHighestEvent = RADIO_EVENT_TEST_IND;
        }
    } client;
    std::vector<int> users(static_cast<size_t>(state.range(0)));
    for (int& user : users) {
        client.registerRadioEvent(RADIO_EVENT_TEST_IND, &user, ignore);
    }
    vorn_msg_t* indication = vorn_msg_init(0x7E02, 1);
    for (auto _ : state) {
        client.notifyEventForAllClient(0x7E02, indication, 0);
    }
    state.SetItemsProcessed(state.iterations());
    vorn_msg_deinit(indication);
}
BENCHMARK(listeners)->Arg(1)->Arg(8)->Arg(64);

} // namespace
