/// Every request, event and other call of the library with the n-th allocation failing, for every n: nothing may leave
/// a function but its result, and what was accepted is answered once, with nothing lost, leaked or sent by halves. Each
/// case has a process of its own.
///
///   allocation_failure_test                            a sample
///   allocation_failure_test all [NAME...]              all cases, or those of these names
///   allocation_failure_test one NAME THREAD N [later]  one case in this process, for a debugger: break on _exit
#include "embedded_link.h"
#include "interface/text.h"
#include "interface/words.h"
#include "links.h"
#include "radioctl/program.h"
#include "support/failing_memory.h"
#include "system/examples.h"

#include "mindroid/promise.h"
#include "radio/indications.h"
#include "vs/indications.h"

#include <fmt/format.h>

#include <condition_variable>
#include <cstring>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;
namespace memory = test::memory;

namespace {

constexpr auto kModem = RADIO_APIS_SERVICE_MODEM;
constexpr int kProcesses = 2;
constexpr const char* kRoles[] = {"caller", "delivery", "other"};
constexpr const char* kGood[] = {"refused", "accepted and answered once", "done"}; ///< all else is a fault

/// What a case tells the process that waits for it. Two runs: the second one, in the same process, has memory.
struct Report {
    const char* outcome;
    std::atomic<bool> failed; ///< an allocation
    struct {
        int results[2];
        std::atomic<int> calls[2];
        int allocations[memory::kRoles]; ///< in the first run
    } seen;
    long leftOver;           ///< blocks
    size_t sent;             ///< bytes of
    uint8_t frames[1 << 20]; ///< what reached the modem in the first run
};

struct Case {
    enum Kind { Request, Event, Other } kind;
    std::string name;
    std::function<void()> prepare;
    std::function<int(std::atomic<int>& calls)> act;
    int ownAllocations = 0; ///< of `act`, before the library's first
    int calls = 0;          ///< how often the library calls back in the end when this is no request
};

template <typename T>
T* sharedMemory(size_t count)
{
    return static_cast<T*>(
        mmap(nullptr, count * sizeof(T), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
}

std::atomic<int>* tally = nullptr; ///< of the good outcomes, and of all faults; all processes'
Report* report = nullptr;          ///< of this process's case
int run = 0;
std::mutex mutex;
std::condition_variable changed;

[[noreturn]] void end(const char* outcome)
{
    report->outcome = outcome;
    _exit(0);
}

void count(std::atomic<int>& counter)
{
    const std::lock_guard lock(mutex);
    ++counter;
    changed.notify_all();
}

/// Waits, while time passes quickly.
bool waitFor(const std::atomic<int>& counter, int wanted, int steps = 400)
{
    std::unique_lock lock(mutex);
    for (int step = 0; step < steps; ++step) {
        if (changed.wait_for(lock, 2ms, [&] { return counter >= wanted; })) {
            return true;
        }
        lock.unlock();
        host::Clock::advance(250ms);
        lock.lock();
    }
    return false;
}

/// Between the modem, which has memory, and the message library.
struct Events : host::LinkEvents {
    bool received(host::MessagePtr message) override
    {
        const memory::TestCode library(false);
        kept = std::move(message);
        return target == nullptr || target->received(std::move(kept));
    }
    void lost(std::chrono::milliseconds retryAfter) override
    {
        target != nullptr ? target->lost(retryAfter) : void();
    }
    host::LinkEvents* target = nullptr;
    host::MessagePtr kept;
} events;

/// Made before the first process is: reading its scenario takes longer than a case.
host::EmbeddedLink& modem()
{
    static auto& link = *new host::EmbeddedLink(sim::Scenario::builtIn(), events);
    return link;
}

struct ModemLink : host::Link {
    void open(std::chrono::milliseconds patience) override { modem().open(patience); }
    void close() override { modem().close(); }
    void send(const vorn_msg_t& request) override
    {
        const memory::TestCode test;
        const auto copy = host::copyOf(request);
        copy->hdr.tx_id = 0;
        std::vector<uint8_t> frame;
        host::Message::of(*copy).encode(frame);
        if (run == 0) {
            std::ranges::copy(frame, report->frames + report->sent);
            report->sent += frame.size();
        }
        modem().send(request);
    }
    host::Clock::TimePoint nextDeadline() const override
    {
        memory::role = memory::Delivery;
        return modem().nextDeadline();
    }
    void advance(host::Clock::TimePoint now) override
    {
        const memory::TestCode test;
        modem().advance(now);
    }
};

} // namespace

std::unique_ptr<host::Link> host::makeLink(const std::string&, LinkEvents& target)
{
    events.target = &target;
    return std::make_unique<ModemLink>();
}

namespace {

/// Returns when the delivery thread and the timer thread have done what they had to. What they free after that is the
/// test's.
void settle()
{
    constexpr uint16_t kBarrier = 0xFFFE;
    static std::atomic<int> delivered;
    static std::atomic<int> timed;
    const memory::TestCode test;
    const auto onBarrier = [](vorn_msg_t*, void*) { count(delivered); };
    const int before = delivered;
    const bool isOpen = vorn_msg_register_ind_api(1, kBarrier, onBarrier, 0, nullptr) == 0;
    for (int tries = 0; isOpen && delivered == before; ++tries) {
        // What waits behind the message that can't be delivered is lost with it.
        events.received(host::MessagePtr(vorn_msg_init(kBarrier, 1)));
        waitFor(delivered, before + 1, 50) || tries < 8 ? void() : end("the delivery thread stopped");
    }
    timed = 0;
    mindroid::runAfter(0ms, [] { count(timed); });
    waitFor(timed, 1) ? void() : end("the timer thread stopped");
}

std::vector<std::vector<uint8_t>> framesOf(const Report& sent)
{
    std::vector<std::vector<uint8_t>> frames;
    for (const uint8_t* next = sent.frames; next < sent.frames + sent.sent; next += frames.back().size()) {
        frames.emplace_back(next, next + *host::frameSize(std::span<const uint8_t, 4>(next, 4)));
    }
    return frames;
}

/// Whether the first run sent only what is also sent when nothing fails.
bool sentWhole(const Report& good)
{
    const auto all = framesOf(good);
    return std::ranges::all_of(framesOf(*report),
                               [&](const auto& frame) { return std::ranges::count(all, frame) != 0; });
}

/// Runs a case in this process. `good` is what it does when nothing fails.
[[noreturn]] void perform(const Case& what, const memory::Aim& aim, const Report& good)
{
    auto& [results, calls, allocations] = report->seen;
    const memory::TestCode library(false);
    alarm(10);
    std::set_terminate([] { end("std::terminate"); });
    memory::failed = &report->failed;
    what.prepare();
    settle();
    const long before = memory::live;
    memory::arm(aim);
    try {
        results[0] = what.act(calls[0]);
    } catch (...) {
        end("an exception left the function");
    }
    allocations[memory::Caller] = memory::allocations[memory::Caller].load();
    if (aim.role == memory::Caller) {
        memory::disarm();
    }
    const bool isRequest = what.kind == Case::Request;
    const int accepted = isRequest && results[0] == 0 ? 1 : 0;
    waitFor(calls[0], accepted) ? void() : end("never answered");
    settle();
    memory::disarm();
    for (const auto role : {memory::Delivery, memory::Other}) {
        allocations[role] = memory::allocations[role].load();
    }
    run = 1;
    results[1] = 1;
    for (int tries = 0; results[1] != 0 && tries < 20; ++tries) {
        settle();
        results[1] = what.act(calls[1]);
        waitFor(calls[1], 1, 1); // a link that was given up for want of memory comes back by itself
    }
    const bool works = waitFor(calls[1], isRequest ? results[1] == 0 : what.calls);
    settle();
    radioApisReleaseService(kModem);
    vorn_deinit();
    report->leftOver = memory::live - before;
    calls[0] <= (isRequest ? accepted : calls[1].load()) ? void() : end("called back again");
    works&& results[1] == good.seen.results[1] && calls[1] == good.seen.calls[1]
        ? void()
        : end("did not work afterwards");
    sentWhole(good) ? void() : end("a message that is not sent otherwise");
    report->leftOver <= good.leftOver ? void() : end("memory left behind");
    end(kGood[isRequest ? accepted : 2]);
}

/// The same in a process of its own.
void performApart(const Case& what, const memory::Aim& aim, const Report& good)
{
    std::memset(static_cast<void*>(report), 0, offsetof(Report, frames));
    const pid_t process = fork();
    if (process == 0) {
        perform(what, aim, good);
    }
    int status = 0;
    waitpid(process, &status, 0);
    const char* outcome = status == 0 ? report->outcome : "the process died";
    const auto* known = std::ranges::find(kGood, outcome);
    tally[known - kGood] += aim.first != 0 || known == std::end(kGood) ? 1 : 0;
    if (known == std::end(kGood)) {
        fmt::print("{} {} {}{}: {}\n", what.name, kRoles[aim.role], aim.first,
                   aim.last > aim.first ? " later" : "", outcome);
    }
}

/// All that can fail in a case, or a sample of it.
void failEverywhere(const Case& what, const Report& good, std::optional<int> sample)
{
    for (const auto role : {memory::Caller, memory::Delivery, memory::Other}) {
        const int own = role == memory::Caller ? what.ownAllocations : 0;
        const int allocations = good.seen.allocations[role] - own;
        if (allocations <= 0 || (what.kind == Case::Event && role == memory::Caller)) {
            continue;
        }
        for (const bool later : {false, true}) {
            int n = own + (sample ? *sample % allocations : 0);
            do {
                ++n;
                performApart(what, {role, n, later ? INT_MAX : n}, good);
            } while (report->failed && !sample);
        }
    }
}

/// What the case does when nothing fails. The modem here goes on to the state that the case leaves it in.
const Report& goodRun(const Case& what)
{
    constexpr int kTries = 3; // what is freed in time, and what a moment later, differs
    static Report good;
    long mostLeftOver = 0;
    for (int i = 0; i < kTries; ++i) {
        performApart(what, {}, *report);
        mostLeftOver = std::max<long>(mostLeftOver, report->leftOver);
    }
    std::memcpy(static_cast<void*>(&good), report, offsetof(Report, frames) + report->sent);
    good.leftOver = mostLeftOver;
    // Context, message, what the message library copies of it and keeps, and what interprets an answer's text.
    constexpr int kMostForOneMessage = 6;
    if (what.kind == Case::Request && framesOf(good).size() == 1 &&
        good.seen.allocations[memory::Caller] - what.ownAllocations > kMostForOneMessage) {
        ++tally[3];
        fmt::print("{}: {} allocations\n", what.name, good.seen.allocations[memory::Caller]);
    }
    modem().open(0ms);
    for (const auto& frame : framesOf(good)) {
        modem().send(*host::decodeFrame(frame));
    }
    host::Clock::advance(1s);
    modem().advance(host::Clock::now());
    return good;
}

void init()
{
    radioApisInit(kModem, 0);
}

int switchVendorEvents()
{
    RegVsEvtType switches;
    std::memset(&switches, 1, sizeof switches);
    return radioRegisterVsEvent(switches, nullptr, nullptr);
}

int switchRadioEvents()
{
    return radioRegisterRadioEvent({{1, 1}, {1, 1}}, nullptr, nullptr);
}

int listen(RADIO_EVENT_TYPE event)
{
    return registerRadioEvent(event, nullptr,
                              [](RADIO_EVENT_TYPE, void*, void*, int) { count(report->seen.calls[run]); });
}

int listenToService()
{
    return registerRadioApisEvent(kModem, nullptr, [](RADIO_APIS_SERVICE_TYPE, RAPIS_CONNECT_STATE, void*) {
        count(report->seen.calls[1]);
    });
}

Case requestCase(const std::string& line)
{
    const auto onAnswer = [](void* user, RADIO_APIS_RESULT, RadioApisResultType*) {
        count(*static_cast<std::atomic<int>*>(user));
    };
    const auto call = radioctl::parseRequest(interface::splitWords(line));
    const auto act = [=](std::atomic<int>& calls) {
        interface::Arguments arguments = call.arguments;
        return call.request->call(arguments, &calls, onAnswer);
    };
    // Without an instance the library refuses before it allocates: what is allocated now is not its own.
    const memory::TestCode library(false);
    std::atomic<int> none;
    act(none);
    memory::arm({});
    act(none);
    return {Case::Request, std::string(call.request->name), init, act, memory::allocations[memory::Caller]};
}

Case eventCase(const rpcEventHandlerMap& row)
{
    const std::string name = fmt::format("0x{:04x}", row.msgId);
    modem().open(0ms);
    modem().control(fmt::format(R"({{"command": "indicate", "message": "{}", "slot": 0}})", name),
                    host::ControlAnswer());
    const auto prepare = [event = row.event] {
        init();
        switchVendorEvents();
        switchRadioEvents();
        listen(event);
    };
    const auto act = [indication = std::shared_ptr<vorn_msg_t>(std::move(events.kept))](const auto&) {
        events.target->received(host::copyOf(*indication));
        settle();
        return 0;
    };
    return {Case::Event, "event-" + name, prepare, act};
}

std::vector<Case> allCases()
{
    std::vector<Case> cases;
    for (const Example& example : kExamples) {
        cases.push_back(requestCase(example.line));
    }
    for (const interface::Request& request : interface::requests()) {
        if (!request.isSupported) {
            cases.push_back(requestCase(exampleOf(request)));
        }
    }
    std::ranges::transform(kVendorIndications, std::back_inserter(cases), eventCase);
    std::ranges::transform(kRadioIndications, std::back_inserter(cases), eventCase);
    const auto add = [&](const char* name, auto prepare, auto act, int calls = 0) {
        cases.push_back({Case::Other, name, prepare, [=](const auto&) { return act(); }, 0, calls});
    };
    const auto nothing = [] {};
    add("init", nothing, [] { return radioApisInit(kModem, 0); });
    add("release", init, [] { return radioApisReleaseService(kModem); });
    add("deinit", init, radioApisDeinit);
    add("listen-to-service", nothing, listenToService);
    add("listen-to-open-service", init, listenToService, 1);
    add("listen", init, [] { return listen(RADIO_EVENT_TEST_IND); });
    add("switch-vendor-events", init, switchVendorEvents);
    add("switch-radio-events", init, switchRadioEvents);
    return cases;
}

} // namespace

int main(int argumentCount, char** words)
{
    const std::vector<std::string> arguments(words + 1, words + argumentCount);
    setenv("RADIO_LOG", "off", 1);
    setenv("RADIO_DEVICE_ROOT", DEVICE_ROOT, 1);
    const memory::TestCode test;
    host::Clock::freeze();
    memory::role = memory::Caller;
    tally = sharedMemory<std::atomic<int>>(std::size(kGood) + 1);
    report = sharedMemory<Report>(1);
    const std::vector<Case> cases = allCases();
    const auto isWanted = [&](const Case& what) {
        return arguments.size() < 2 || std::ranges::count(arguments, what.name) != 0;
    };
    if (arguments.size() > 3 && arguments[0] == "one") {
        const auto what = std::ranges::find_if(cases, isWanted);
        const auto role = static_cast<memory::Role>(std::ranges::find(kRoles, arguments[2]) - kRoles);
        const Report& good = goodRun(*what);
        const int n = std::stoi(arguments[3]);
        perform(*what, {role, n, arguments.size() > 4 ? INT_MAX : n}, good);
    }
    for (int process = 0; process < kProcesses; ++process) {
        if (fork() != 0) {
            continue;
        }
        report = sharedMemory<Report>(1);
        for (int i = 0; const Case& what : cases) {
            const Report& good = goodRun(what);
            if (i++ % kProcesses == process && isWanted(what)) {
                failEverywhere(what, good, arguments.empty() ? std::optional(i) : std::nullopt);
                std::fflush(stdout);
            }
        }
        _exit(0);
    }
    int status = 0;
    while (wait(&status) > 0) {
        tally[3] += status != 0 ? 1 : 0;
    }
    fmt::print("{} {}, {} {}, {} {}, {} faults\n", tally[0].load(), kGood[0], tally[1].load(), kGood[1],
               tally[2].load(), kGood[2], tally[3].load());
    return tally[3] == 0 ? 0 : 1;
}
