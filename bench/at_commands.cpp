/// What AT commands cost: the parsing of an answer beside its round trip, and a chain of three beside three bare
/// messages.
#include "at/at_chain_promise.h"
#include "at/at_cmd_parser.h"
#include "inputs.h"
#include "round_trip.h"
#include "vorn/vorn_msg.h"

namespace {

template <int kFields>
void parseAnswer(benchmark::State& state)
{
    openLibrary();
    comparePairs(
        state,
        [] {
            static const std::string text = bench::answerWithFields(kFields);
            benchmark::DoNotOptimize(AtCmdParser::instance().parserAtCmdResponse(text.c_str()));
        },
        bareRoundTrip);
}
BENCHMARK(parseAnswer<1>)->Unit(benchmark::kMillisecond);
BENCHMARK(parseAnswer<5>)->Unit(benchmark::kMillisecond);
BENCHMARK(parseAnswer<24>)->Unit(benchmark::kMillisecond);

void chainOfThree(benchmark::State& state)
{
    compareRoundTrips(
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
