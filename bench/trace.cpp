/// What the trace of messages costs when it is off, and when it is on: a round trip over the link that the environment
/// asks for beside one over a link that knows of no trace.
#include "embedded_link.h"
#include "links.h"
#include "pairs.h"
#include "transport.h"

#include <cstdlib>
#include <semaphore>

namespace {

constexpr char kDevice[] = "embedded";

std::binary_semaphore answered(0);

/// An open transport; the program ends with it.
host::Transport& opened(const host::LinkFactory& makeLink)
{
    auto& transport = *new host::Transport;
    if (!transport.open(makeLink)) {
        std::abort();
    }
    return transport;
}

void roundTrip(host::Transport& transport)
{
    constexpr uint32_t kValues[] = {1, 2};
    const host::MessagePtr request(vorn_msg_init(0x3895, 1));
    vorn_msg_add_tlv(request.get(), 256, sizeof kValues[0], &kValues[0]);
    vorn_msg_add_tlv(request.get(), 257, sizeof kValues[1], &kValues[1]);
    transport.send(
        *request, [](vorn_msg_t*, void*) { answered.release(); }, nullptr);
    answered.acquire();
}

void besideKnowingNothing(benchmark::State& state, Way own)
{
    comparePairs(state, own, [] {
        static auto& plain = opened([](host::LinkEvents& events) {
            return std::make_unique<host::EmbeddedLink>(sim::Scenario::builtIn(), events);
        });
        roundTrip(plain);
    });
}

host::Transport& openedAsAsked()
{
    return opened([](host::LinkEvents& events) { return host::makeLink(kDevice, events); });
}

void traceOff(benchmark::State& state)
{
    besideKnowingNothing(state, [] {
        static auto& untraced = [&]() -> auto&
        {
            unsetenv("RADIO_TRACE");
            return openedAsAsked();
        }
        ();
        roundTrip(untraced);
    });
}
BENCHMARK(traceOff)->Unit(benchmark::kMillisecond);

void traceOn(benchmark::State& state)
{
    besideKnowingNothing(state, [] {
        static auto& traced = [&]() -> auto&
        {
            setenv("RADIO_TRACE", "/dev/null", 1);
            return openedAsAsked();
        }
        ();
        roundTrip(traced);
    });
}
BENCHMARK(traceOn)->Unit(benchmark::kMillisecond);

} // namespace
