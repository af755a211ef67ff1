#include "round_trip.h"

#include "allocations.h"
#include "channel/vorn_client.h"
#include "host/device.h"
#include "radio_apis/radio_apis.h"
#include "vorn/vorn_msg.h"

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <semaphore>
#include <vector>

namespace {

constexpr int kInFlight = 64;

std::counting_semaphore<> answered(0);
std::atomic<size_t> gReplyAllocations = 0; ///< of the thread that called back last, until then

/// A scenario whose modem has as many neighbours as a record holds.
std::string writeScenario()
{
    std::string file = "/tmp/radio_bench_scenario.json";
    std::ofstream out(file);
    out << R"({"slots": [{"neighbours": [)";
    for (int i = 0; i < 64; ++i) {
        out << (i == 0 ? "" : ",")
            << R"({"rat": "LTE", "arfcn": 1300, "band": 3, "rsrp": -90, "rsrq": -10, "sinr": 9)"
            << R"(, "cellIdentity": 1, "pci": )" << i << "}";
    }
    out << "]}]}";
    return file;
}

void onResult(void*, RADIO_APIS_RESULT, RadioApisResultType*)
{
    answerCame();
}

void onAnswer(vorn_msg_t* answer, void*)
{
    benchmark::DoNotOptimize(vorn_msg_get_val_ptr(answer, 0, nullptr));
    answerCame();
}

void addInt32(vorn_msg_t* message, uint16_t tag, int32_t value)
{
    vorn_msg_add_tlv(message, tag, sizeof value, &value);
}

void waitForAnswers(int count)
{
    for (int i = 0; i < count; ++i) {
        waitForAnswer();
    }
}

double replyAllocationsOf(Way roundTrip)
{
    roundTrip();
    const size_t before = gReplyAllocations;
    for (int i = 0; i < kTimesPerTurn; ++i) {
        roundTrip();
    }
    return static_cast<double>(gReplyAllocations - before) / kTimesPerTurn;
}

void sendSarStateStraight()
{
    vorn_msg_t* request = vorn_msg_init(0x3895, 1);
    addInt32(request, 256, 1);
    addInt32(request, 257, 2);
    vorn_msg_async_api(request, onAnswer, 0, nullptr);
    vorn_msg_deinit(request);
}

void voidRequest(benchmark::State& state)
{
    compareRoundTrips(
        state,
        [] {
            radioSetSarState(1, 2, nullptr, onResult);
            waitForAnswer();
        },
        bareRoundTrip);
}
BENCHMARK(voidRequest)->Unit(benchmark::kMillisecond);

/// The record that an answer fills is cleared before: how much of a round trip that is.
void clearRecord(benchmark::State& state)
{
    openLibrary();
    comparePairs(
        state, [] { benchmark::DoNotOptimize(ZeroedResult()); }, bareRoundTrip);
}
BENCHMARK(clearRecord)->Unit(benchmark::kMillisecond);

/// Of many in flight, what is measured is work, not waiting: to be run on one processor.
void voidRequestsInFlight(benchmark::State& state)
{
    compareRoundTrips(
        state,
        [] {
            for (int i = 0; i < kInFlight; ++i) {
                radioSetSarState(1, 2, nullptr, onResult);
            }
            waitForAnswers(kInFlight);
        },
        [] {
            for (int i = 0; i < kInFlight; ++i) {
                sendSarStateStraight();
            }
            waitForAnswers(kInFlight);
        });
}
BENCHMARK(voidRequestsInFlight)->Unit(benchmark::kMillisecond);

/// Threads that each wait for their answer before they ask again, on so many instances.
void callers(benchmark::State& state)
{
    openLibrary(static_cast<RADIO_SUBS_ID_TYPE>(state.thread_index() % state.range(0)));
    std::binary_semaphore mine(0);
    for (auto _ : state) {
        radioSetSarState(1, 2, &mine, [](void* user, RADIO_APIS_RESULT, RadioApisResultType*) {
            static_cast<std::binary_semaphore*>(user)->release();
        });
        mine.acquire();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(callers)->ArgName("instances")->Arg(1)->ThreadRange(1, 8)->UseRealTime();
BENCHMARK(callers)->ArgName("instances")->Arg(3)->Threads(24)->UseRealTime();

void allCells64(benchmark::State& state)
{
    compareRoundTrips(
        state,
        [] {
            radioGetAllCellularCellInfo(nullptr, onResult);
            waitForAnswer();
        },
        [] { sendStraight(vorn_msg_init(0x3821, 1)); });
}
BENCHMARK(allCells64)->Unit(benchmark::kMillisecond);

const RadioActionConfigType& action()
{
    static const auto full = [] {
        auto config = std::make_unique<RadioActionConfigType>();
        config->cellsPresent = 1;
        config->first = {1, 64, {}};
        config->second = {1, 64, {}};
        return config;
    }();
    return *full;
}

void networkAction128(benchmark::State& state)
{
    compareRoundTrips(
        state,
        [] {
            radioSendNetworkAction(action(), nullptr, onResult);
            waitForAnswer();
        },
        [] {
            static const std::vector<uint8_t> block(28046);
            vorn_msg_t* request = vorn_msg_init(0x3871, 1);
            for (uint16_t tag = 256; tag <= 261; ++tag) {
                addInt32(request, tag, 0);
            }
            vorn_msg_add_array(request, 262, 0);
            vorn_msg_add_tlv(request, 263, static_cast<uint16_t>(block.size()), block.data());
            sendStraight(request);
        });
}
BENCHMARK(networkAction128)->Unit(benchmark::kMillisecond);

constexpr int32_t kNvItem = 100;

const std::vector<uint8_t>& largestNvItem()
{
    static const std::vector<uint8_t> data(kRadioMaxNvBytes, 0xA5);
    return data;
}

void writeNvStraight()
{
    const auto& data = largestNvItem();
    vorn_msg_t* request = vorn_msg_init(51, 1);
    addInt32(request, 256, kNvItem);
    addInt32(request, 257, 0);
    vorn_msg_add_tlv(request, 0x8102, static_cast<uint16_t>(data.size()), data.data());
    sendStraight(request);
}

void nvWrite20480(benchmark::State& state)
{
    compareRoundTrips(
        state,
        [] {
            const auto& data = largestNvItem();
            radioWriteNv(kNvItem, 0, data.data(), kRadioMaxNvBytes, nullptr, onResult);
            waitForAnswer();
        },
        writeNvStraight);
}
BENCHMARK(nvWrite20480)->Unit(benchmark::kMillisecond);

void nvRead20480(benchmark::State& state)
{
    openLibrary();
    writeNvStraight();
    compareRoundTrips(
        state,
        [] {
            radioReadNv(kNvItem, 0, nullptr, onResult);
            waitForAnswer();
        },
        [] {
            vorn_msg_t* request = vorn_msg_init(53, 1);
            addInt32(request, 256, kNvItem);
            addInt32(request, 257, 0);
            sendStraight(request);
        });
}
BENCHMARK(nvRead20480)->Unit(benchmark::kMillisecond);

} // namespace

void openLibrary(RADIO_SUBS_ID_TYPE instance)
{
    static const bool chosen = [] {
        host::setProperty("ro.vendor.zor_vorn_support", "1");
        return setenv("RADIO_VORN_DEVICE", ("embedded:" + writeScenario()).c_str(), 0) == 0;
    }();
    if (!chosen || radioApisInit(RADIO_APIS_SERVICE_MODEM, instance) != RADIO_APIS_SUCCESS) {
        std::abort();
    }
}

void answerCame()
{
    gReplyAllocations = allocationsOfThisThread();
    answered.release();
}

void waitForAnswer()
{
    answered.acquire();
}

void sendStraight(vorn_msg_t* request)
{
    vorn_msg_async_api(request, onAnswer, 0, nullptr);
    vorn_msg_deinit(request);
    waitForAnswer();
}

void bareRoundTrip()
{
    sendSarStateStraight();
    waitForAnswer();
}

void compareRoundTrips(benchmark::State& state, Way throughLibrary, Way straight)
{
    openLibrary();
    comparePairs(state, throughLibrary, straight);
    auto& counters = state.counters;
    counters["library_allocs"] = counters["own_allocs"] - counters["beside_allocs"];
    counters["library_reply_allocs"] = replyAllocationsOf(throughLibrary) - replyAllocationsOf(straight);
}
