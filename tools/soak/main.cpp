/// soak: the library over a modem that is killed again and again with requests and chains in flight. Counts what
/// became of each request; ends with 1 when one was lost or answered twice, when a service listener or an event
/// missed something, or when what the library holds grows from round to round.
#include "host/device.h"
#include "host/vorn_control.h"
#include "radio_apis/radio_apis.h"
#include "soak/live_blocks.h"
#include "soak/modem_process.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <unistd.h>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr auto kModem = RADIO_APIS_SERVICE_MODEM;
constexpr auto kPatience = 60s;

/// Queues and tables settle on their size during the first rounds; a context that is lost in every round
/// does not stay below this for long.
constexpr int64_t kMostGrowth = 20;

/// Everything that came back, under one lock, and the wait for it.
class Tally {
public:
    using Count = std::atomic<uint64_t>;

    /// One request; answered more than once it tells so.
    struct Ticket {
        Tally* tally;
        int answers = 0;
    };

    static void onAnswer(void* user, RADIO_APIS_RESULT result, RadioApisResultType* /*record*/)
    {
        auto& ticket = *static_cast<Ticket*>(user);
        Tally& self = *ticket.tally;
        const std::lock_guard lock(self.mMutex);
        self.doubled += ++ticket.answers > 1 ? 1 : 0;
        ++self.answers;
        if (result != RADIO_APIS_SUCCESS) {
            ++self.mFailures[result];
        }
        self.mChanged.notify_all();
    }
    static void onService(RADIO_APIS_SERVICE_TYPE /*service*/, RAPIS_CONNECT_STATE state, void* user)
    {
        auto& self = *static_cast<Tally*>(user);
        const std::lock_guard lock(self.mMutex);
        ++(state == RAPIS_CONNECTED ? self.connects : self.losses);
        self.mChanged.notify_all();
    }
    static void onEvent(RADIO_EVENT_TYPE /*event*/, void* user, void* /*data*/, int /*length*/)
    {
        auto& self = *static_cast<Tally*>(user);
        const std::lock_guard lock(self.mMutex);
        ++self.events;
        self.mChanged.notify_all();
    }

    /// Waits until a count has reached what it should be. Throws std::runtime_error when it does not.
    void await(const char* what, Count Tally::*count, uint64_t wanted)
    {
        std::unique_lock lock(mMutex);
        if (!mChanged.wait_for(lock, kPatience, [&] { return this->*count >= wanted; })) {
            throw std::runtime_error(
                fmt::format("waited in vain for {}: {} of {}", what, (this->*count).load(), wanted));
        }
    }

    std::map<int, uint64_t> failuresByResult()
    {
        const std::lock_guard lock(mMutex);
        return mFailures;
    }

    Count accepted = 0;
    Count refused = 0;
    Count answers = 0;
    Count doubled = 0;
    Count connects = 0;
    Count losses = 0;
    Count events = 0;

private:
    std::mutex mMutex;
    std::condition_variable mChanged;
    std::map<int, uint64_t> mFailures;
};

void control(const nlohmann::json& command)
{
    std::string answer;
    const auto keep = [](const char* json, void* user) { *static_cast<std::string*>(user) = json; };
    const bool done = vorn_host_control(command.dump().c_str(), keep, &answer) == 0;
    if (!done || !nlohmann::json::parse(answer).value("ok", false)) {
        throw std::runtime_error(fmt::format("the modem does not do {}: {}", command.dump(), answer));
    }
}

class Soak {
public:
    explicit Soak(std::string modemSim) : mModem(std::move(modemSim))
    {
        host::setProperty("ro.vendor.zor_vorn_support", "1");
        mModem.start();
        setenv("RADIO_VORN_DEVICE", mModem.device().c_str(), 1);
        if (radioApisInit(kModem, 0) != RADIO_APIS_SUCCESS) {
            throw std::runtime_error("the library does not reach the modem");
        }
        registerRadioApisEvent(kModem, &tally, Tally::onService);
        tally.await("the modem", &Tally::connects, 1);
        registerRadioEvent(RADIO_EVENT_TEST_IND, &tally, Tally::onEvent);
        const RegVsEvtType events{.test = {1, 1}};
        radioRegisterVsEvent(events, nullptr, nullptr);
    }

    /// So many requests and chains hang in the modem when it dies; it comes back, and all works again.
    void round(size_t requests, size_t chains)
    {
        // The first command of each chain is answered, the next one not.
        control({{"command", "fault-add"},
                 {"fault", {{"action", "drop"}, {"match", {{"message", "SendScreenState"}}}}}});
        control(
            {{"command", "fault-add"}, {"fault", {{"action", "drop"}, {"match", {{"at", "AT+ECSRA*"}}}}}});
        mTickets.assign(2 * (requests + chains), {&tally});
        mNext = 0;
        for (size_t i = 0; i < std::max(requests, chains); ++i) {
            if (i < requests) {
                count(radioSendScreenState(1, ticket(), Tally::onAnswer));
                count(radioGetAllCellularCellInfo(ticket(), Tally::onAnswer));
            }
            if (i < chains) {
                count(radioGetBand(RADIO_BAND_CDMA, ticket(), Tally::onAnswer));
            }
        }
        const uint64_t losses = tally.losses + 1;
        const uint64_t connects = tally.connects + 1;
        mModem.kill();
        tally.await("the end of the link", &Tally::losses, losses);
        tally.await("answers", &Tally::answers, tally.accepted);

        mModem.start();
        tally.await("the link's return", &Tally::connects, connects);
        const uint64_t events = tally.events + 1;
        control({{"command", "indicate"}, {"message", "test"}, {"slot", 0}, {"value", 7}});
        tally.await("an event", &Tally::events, events);
        const auto failures = tally.failuresByResult();
        for (size_t i = 0; i < chains; ++i) {
            count(radioGetRRCStatus(ticket(), Tally::onAnswer));
        }
        tally.await("answers", &Tally::answers, tally.accepted);
        if (tally.failuresByResult() != failures) {
            throw std::runtime_error("a request failed on the modem that came back");
        }
    }

    /// Never destroyed: the service listener stays for good, with threads that outlive everything here.
    Tally& tally = *new Tally;

private:
    void* ticket() { return &mTickets[mNext++]; }
    void count(int result) { ++(result == RADIO_APIS_SUCCESS ? tally.accepted : tally.refused); }

    soak::ModemProcess mModem;
    std::vector<Tally::Ticket> mTickets; ///< of one round
    size_t mNext = 0;
};

struct Options {
    std::string modemSim;
    unsigned seconds = 10;
    size_t requests = 1000;
    size_t chains = 50;
};

int run(const Options& options)
{
    Soak soak(options.modemSim);
    Tally& tally = soak.tally;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(options.seconds);
    const bool isTerminal = isatty(STDERR_FILENO) != 0;
    std::vector<int64_t> held;
    // What is allocated once, by whoever is the first to need it, is there after two rounds.
    for (int round = 1; round <= 3 || std::chrono::steady_clock::now() < end; ++round) {
        soak.round(options.requests, options.chains);
        held.push_back(soak::liveBlocks());
        if (isTerminal) {
            fmt::print(stderr, "\rround {}: {} requests, {} answers ", round, tally.accepted.load(),
                       tally.answers.load());
        }
    }
    const int64_t grown = held.back() - held[1];
    if (isTerminal) {
        fmt::print(stderr, "\n");
    }
    fmt::print("rounds        {}\nrequests      {} accepted, {} refused\nanswers       {}\n", held.size(),
               tally.accepted.load(), tally.refused.load(), tally.answers.load());
    for (const auto& [code, times] : tally.failuresByResult()) {
        fmt::print("failed with {} {}\n", code, times);
    }
    fmt::print("doubled       {}\nunanswered    {}\nreconnects    {}\nevents        {}\nblocks grown  {}\n",
               tally.doubled.load(), tally.accepted - tally.answers, tally.connects - 1, tally.events.load(),
               grown);
    const bool isSound =
        tally.doubled == 0 && tally.answers == tally.accepted && tally.refused == 0 && grown < kMostGrowth;
    return isSound ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Kills the simulated modem again and again and counts what becomes of the requests.",
                 "soak");
    Options options;
    app.add_option("MODEM_SIM", options.modemSim, "the modem-sim to run")
        ->required()
        ->check(CLI::ExistingFile);
    app.add_option("--seconds", options.seconds, "how long, at least three rounds (default 10)");
    app.add_option("--requests", options.requests, "in flight when the modem is killed (default 1000)")
        ->check(CLI::Range(1, 10000));
    app.add_option("--chains", options.chains, "chains of AT commands in flight then (default 50)")
        ->check(CLI::Range(1, 1000));
    CLI11_PARSE(app, argc, argv);
    try {
        return run(options);
    } catch (const std::exception& error) {
        fmt::print(stderr, "soak: {}\n", error.what());
        return 1;
    }
}
