/// What AT commands cost: the parsing of an answer, and a chain of three beside three bare messages.
#include "at/at_chain_promise.h"
#include "at/at_cmd_parser.h"
#include "inputs.h"
#include "round_trip.h"
#include "vorn/vorn_msg.h"

namespace {

void parseAnswer(benchmark::State& state)
{
    const std::string text = bench::answerWithFields(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(AtCmdParser::instance().parserAtCmdResponse(text.c_str()));
    }
}
BENCHMARK(parseAnswer)->Arg(1)->Arg(5)->Arg(24);

void chainOfThree(benchmark::State& state)
{
    comparePairs(
        state,
        [] {
            static const auto client = mindroid::make<VornAtClient>(false, 0);
            const auto chain = mindroid::make<AtChain>();
            for (int i = 0; i < 3; ++i) {
                chain->add("AT", VornAtClient::completeWithResultVoid);
            }
            chain->start(client, nullptr,
                         [](void*, RADIO_APIS_RESULT, RadioApisResultType*) { answerCame(); });
            waitForAnswer();
        },
        [] {
            for (int i = 0; i < 3; ++i) {
                constexpr char kCommand[] = "AT\r\n";
                vorn_msg_t* request = vorn_msg_init(3, 1);
                vorn_msg_add_tlv(request, 0x8100, sizeof kCommand, kCommand);
                sendStraight(request);
            }
        });
}
BENCHMARK(chainOfThree)->Unit(benchmark::kMillisecond);

} // namespace
