/// What an event costs: the conversion of a full measurement report, and its way to many listeners.
#include "inputs.h"
#include "pairs.h"
#include "radio_apis/converters.h"
#include "vorn/vorn_msg.h"

#include "channel/rpc_client.h"

#include <cstring>
#include <vector>

namespace {

void ignore(RADIO_EVENT_TYPE, void*, void* data, int)
{
    benchmark::DoNotOptimize(data);
}

/// Beside the copying of the same bytes: those of the report that become cells, and those of the record.
void measurementReport(benchmark::State& state)
{
    comparePairs(
        state,
        [] {
            static vorn_msg_t* const indication = bench::reportIndication();
            vornVsClientNotifyVeyraInfoIndEvent(indication, 0, nullptr, ignore);
        },
        [] {
            static std::vector<uint8_t> from(bench::fullReport().size() + sizeof(RadioVeyraCellInfo));
            static std::vector<uint8_t> to(from.size());
            std::memcpy(to.data(), from.data(), from.size());
            benchmark::ClobberMemory();
        });
}
BENCHMARK(measurementReport)->Unit(benchmark::kMillisecond);

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
