/// Every request, event and other call of the library with the n-th allocation failing, for every n: nothing may leave
/// a function but its result, and what was accepted is answered once, with nothing lost, leaked or sent by halves. Each
/// case has a process of its own.
///
///   allocation_failure_test                            a sample
///   allocation_failure_test all [NAME...]              all cases, or those of these names
///   allocation_failure_test one NAME THREAD N [later]  one case, in this process, and where it fails: for a debugger
#include "embedded_link.h"
#include "links.h"
#include "radioctl/batch.h"
#include "radioctl/command.h"
#include "support/failing_memory.h"
#include "system/examples.h"

#include "host/device.h"
#include "mindroid/promise.h"
#include "radio/indications.h"
#include "vs/indications.h"

#include <condition_variable>
#include <cstring>
#include <execinfo.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace test;
using namespace std::chrono_literals;

namespace {

constexpr auto kModem = RADIO_APIS_SERVICE_MODEM;
constexpr int kProcesses = 2;
constexpr int kRuns = 2; ///< of each case: one with a failing allocation, one after it
constexpr const char* kRoles[] = {"caller", "delivery", "other"};
constexpr uint16_t kBarrier = 0xFFFE; ///< an indication that means nothing to the library

/// What can come of a case; all from kFirstFault on must not.
enum Outcome {
    kNotAccepted,
    kAnswered,
    kDone,
    kFirstFault,
    kThrown = kFirstFault,
    kThrownByCallback,
    kTerminated,
    kDied,
    kUnanswered,
    kAnsweredAgain,
    kSentOther,
    kLeaked,
    kDeliveryStopped,
    kTimerStopped,
    kBroken,
    kOutcomes
};
constexpr const char* kOutcomeNames[] = {"refused",
                                         "accepted and answered once",
                                         "done",
                                         "an exception left the function",
                                         "an exception went through the message library",
                                         "std::terminate",
                                         "the process died",
                                         "never answered",
                                         "answered again",
                                         "a message that is not sent otherwise",
                                         "memory left behind",
                                         "the delivery thread stopped",
                                         "the timer thread stopped",
                                         "did not work afterwards"};

/// What one run of a case did.
struct Run {
    int result;
    int calls;
};

/// What a case tells the process that waits for it.
struct Report {
    Outcome outcome;
    bool failed; ///< an allocation
    Run runs[kRuns];
    int allocations[memory::kRoles];
    long leftOver; ///< blocks
    size_t sent;   ///< bytes of `frames`
    uint8_t frames[1 << 20];
};

struct Case {
    std::string name;
    bool isRequest;
    bool isEvent;
    std::function<void()> prepare;
    std::function<int(int* calls)> act;
    int ownAllocations = 0; ///< of the caller, before the library's first
};

template <typename T>
T* sharedMemory(size_t count)
{
    return static_cast<T*>(
        mmap(nullptr, count * sizeof(T), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
}

std::atomic<int>* tally = nullptr; ///< of all outcomes, shared by all processes
Report* report = nullptr;          ///< of this process's case

std::mutex mutex;
std::condition_variable changed;
int run = 0;
int calls[kRuns];

void count(int& counter)
{
    const std::lock_guard lock(mutex);
    ++counter;
    changed.notify_all();
}

/// Waits, while time passes quickly.
bool waitFor(const int& counter, int wanted)
{
    std::unique_lock lock(mutex);
    for (int step = 0; step < 400; ++step) {
        if (changed.wait_for(lock, 2ms, [&] { return counter >= wanted; })) {
            return true;
        }
        lock.unlock();
        host::Clock::advance(250ms);
        lock.lock();
    }
    return false;
}

[[noreturn]] void end(Outcome outcome)
{
    report->outcome = outcome;
    _exit(0);
}

/// Between the modem, whose memory never fails, and the message library.
struct Events : host::LinkEvents {
    void received(host::MessagePtr message) override
    {
        if (target == nullptr) {
            kept = std::move(message);
            return;
        }
        const memory::Scope library(false);
        target->received(std::move(message));
    }
    void lost(std::chrono::milliseconds retryAfter) override
    {
        if (target != nullptr) {
            const memory::Scope library(false);
            target->lost(retryAfter);
        }
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

class ModemLink : public host::Link {
    void open() override
    {
        asTest([] { modem().open(); });
    }
    void close() override
    {
        asTest([] { modem().close(); });
    }
    void send(const vorn_msg_t& request) override
    {
        asTest([&] {
            if (run == 0) {
                const auto copy = host::copyOf(request);
                copy->hdr.tx_id = 0;
                std::vector<uint8_t> frame;
                host::Message::of(*copy).encode(frame);
                std::ranges::copy(frame, report->frames + report->sent);
                report->sent += frame.size();
            }
            modem().send(request);
        });
    }
    host::Clock::TimePoint nextDeadline() const override
    {
        memory::setRole(memory::Delivery);
        return modem().nextDeadline();
    }
    void advance(host::Clock::TimePoint now) override
    {
        asTest([&] { modem().advance(now); });
    }

    template <typename Function>
    void asTest(Function function)
    {
        const memory::Scope test(true);
        function();
    }
};

} // namespace

std::unique_ptr<host::Link> host::makeLink(const std::string&, LinkEvents& target)
{
    const memory::Scope test(true);
    events.target = &target;
    return std::make_unique<ModemLink>();
}

// What the library gives the message library to call passes through here.
extern "C" int __real_vorn_msg_async_api(vorn_msg_t* request, vorn_msg_cb callback, uint32_t flags,
                                         void* user);
extern "C" int __wrap_vorn_msg_async_api(vorn_msg_t* request, vorn_msg_cb callback, uint32_t flags,
                                         void* user)
{
    struct Call {
        vorn_msg_cb callback;
        void* user;
    };
    const auto guarded = [](vorn_msg_t* response, void* call) {
        const std::unique_ptr<Call> owned(static_cast<Call*>(call));
        try {
            owned->callback(response, owned->user);
        } catch (...) {
            end(kThrownByCallback);
        }
    };
    std::unique_ptr<Call> call;
    {
        const memory::Scope test(true);
        call.reset(new Call{callback, user});
    }
    const int result = __real_vorn_msg_async_api(request, guarded, flags, call.get());
    static_cast<void>(result == 0 ? call.release() : nullptr);
    return result;
}

namespace {

/// Returns when the delivery thread and the timer thread have done what they had to.
void settle()
{
    const memory::Scope test(true);
    static int delivered;
    static int timed;
    const auto onBarrier = [](vorn_msg_t*, void*) { count(delivered); };
    if (vorn_msg_register_ind_api(1, kBarrier, onBarrier, 0, nullptr) == 0) {
        const int before = delivered;
        events.target->received(host::MessagePtr(vorn_msg_init(kBarrier, 1)));
        if (!waitFor(delivered, before + 1)) {
            end(kDeliveryStopped);
        }
    }
    const int before = timed;
    mindroid::runAfter(0ms, [] { count(timed); });
    if (!waitFor(timed, before + 1)) {
        end(kTimerStopped);
    }
}

Run perform(const Case& what, int expectedCalls)
{
    Run done{what.act(&calls[run]), 0};
    const int wanted = what.isRequest ? (done.result == 0 ? 1 : 0) : expectedCalls;
    if (!waitFor(calls[run], wanted) && what.isRequest) {
        end(kUnanswered);
    }
    settle();
    done.calls = calls[run];
    return done;
}

std::vector<std::vector<uint8_t>> framesOf(const Report& sent)
{
    std::vector<std::vector<uint8_t>> frames;
    for (const uint8_t* next = sent.frames; next < sent.frames + sent.sent;) {
        const size_t size = *host::frameSize(std::span<const uint8_t, host::kFrameSizeBytes>(next, 4));
        frames.emplace_back(next, next + size);
        next += size;
    }
    return frames;
}

bool isPartOf(const Report& part, const Report& whole)
{
    const auto all = framesOf(whole);
    return std::ranges::all_of(framesOf(part),
                               [&](const auto& frame) { return std::ranges::find(all, frame) != all.end(); });
}

/// Runs a case in this process. `good` is what it does when nothing fails; null: this is how to find out.
[[noreturn]] void perform(const Case& what, const memory::Aim& aim, const Report* good)
{
    alarm(10);
    std::set_terminate([] { end(kTerminated); });
    memory::onFailure = [] { report->failed = true; };
    {
        const memory::Scope test(true);
        what.prepare();
    }
    const long before = memory::live();
    memory::arm(aim);
    try {
        report->runs[0] = perform(what, good != nullptr && !what.isEvent ? good->runs[0].calls : 0);
    } catch (...) {
        end(kThrown);
    }
    memory::disarm();
    for (int role = 0; role < memory::kRoles; ++role) {
        report->allocations[role] = memory::allocations(static_cast<memory::Role>(role));
    }
    run = 1;
    report->runs[1] = perform(what, 0);
    radioApisReleaseService(kModem);
    vorn_deinit();
    report->leftOver = memory::live() - before;

    const Run& first = report->runs[0];
    const Run& second = report->runs[1];
    const int most = what.isRequest ? (first.result == 0 ? 1 : 0) : what.isEvent ? second.calls : calls[0];
    if (calls[0] > most || calls[1] != second.calls) {
        end(kAnsweredAgain);
    }
    if (good != nullptr) {
        if (second.result != good->runs[1].result || second.calls != good->runs[1].calls) {
            end(kBroken);
        }
        if (!isPartOf(*report, *good)) {
            end(kSentOther);
        }
        if (report->leftOver > good->leftOver) {
            end(kLeaked);
        }
    }
    end(!what.isRequest ? kDone : first.result == 0 ? kAnswered : kNotAccepted);
}

/// The same in a process of its own.
void performApart(const Case& what, const memory::Aim& aim, const Report* good)
{
    report->outcome = kDied;
    report->failed = false;
    report->sent = 0;
    const pid_t process = fork();
    if (process == 0) {
        perform(what, aim, good);
    }
    int status = 0;
    waitpid(process, &status, 0);
    if (status != 0) {
        report->outcome = kDied;
    }
}

void note(const Case& what, const memory::Aim& aim)
{
    ++tally[report->outcome];
    if (report->outcome >= kFirstFault) {
        fmt::print("{} {} {}{}: {}\n", what.name, kRoles[aim.role], aim.number,
                   aim.andAllLater ? " later" : "", kOutcomeNames[report->outcome]);
    }
}

/// All that can fail in a case, or a sample of it.
void failEverywhere(const Case& what, const Report& good, int sample)
{
    for (const memory::Role role : {memory::Caller, memory::Delivery, memory::Other}) {
        const int own = role == memory::Caller ? what.ownAllocations : 0;
        const int allocations = good.allocations[role] - own;
        if (allocations <= 0 || (what.isEvent && role == memory::Caller)) {
            continue;
        }
        if (sample >= 0) {
            const memory::Aim aim{role, own + 1 + sample % allocations, sample % 2 == 0};
            performApart(what, aim, &good);
            note(what, aim);
            continue;
        }
        for (const bool andAllLater : {false, true}) {
            memory::Aim aim{role, own + 1, andAllLater};
            for (performApart(what, aim, &good); report->failed; performApart(what, aim, &good)) {
                note(what, aim);
                ++aim.number;
            }
        }
    }
}

/// What the case does when nothing fails. The modem here goes on to the state that the case leaves it in.
Report& goodRun(const Case& what)
{
    static Report good;
    performApart(what, {}, nullptr);
    if (report->outcome >= kFirstFault) {
        fmt::print("{}: {}, though nothing failed\n", what.name, kOutcomeNames[report->outcome]);
        ++tally[report->outcome];
    }
    std::memcpy(&good, report, offsetof(Report, frames) + report->sent);
    modem().open();
    for (const auto& frame : framesOf(good)) {
        modem().send(*host::decodeFrame(frame));
    }
    host::Clock::advance(1s);
    modem().advance(host::Clock::now());
    return good;
}

void onAnswer(void* user, RADIO_APIS_RESULT, RadioApisResultType*)
{
    count(*static_cast<int*>(user));
}

void onEvent(RADIO_EVENT_TYPE, void*, void*, int)
{
    count(calls[run]);
}

void init()
{
    radioApisInit(kModem, 0);
}

RegVsEvtType allVendorEvents()
{
    RegVsEvtType switches;
    std::memset(&switches, 1, sizeof switches);
    return switches;
}

Case requestCase(const std::string& line)
{
    auto call = radioctl::parseRequest(radioctl::splitWords(line));
    const auto act = [call](int* answers) { return call.request->send(call.arguments, {answers, onAnswer}); };
    // Without an instance the library refuses before it allocates: what is allocated now is not its own.
    act(nullptr);
    memory::arm({});
    act(nullptr);
    memory::disarm();
    return {call.request->name(), true, false, init, act, memory::allocations(memory::Caller)};
}

Case eventCase(const rpcEventHandlerMap& row)
{
    const std::string name = fmt::format("0x{:04x}", row.msgId);
    const nlohmann::json command = {{"command", "indicate"}, {"message", name}, {"slot", 0}};
    modem().control(command.dump());
    const auto prepare = [event = row.event] {
        init();
        radioRegisterVsEvent(allVendorEvents(), nullptr, nullptr);
        radioRegisterRadioEvent({{1, 1}, {1, 1}}, nullptr, nullptr);
        registerRadioEvent(event, nullptr, onEvent);
    };
    const auto act = [indication = std::shared_ptr<vorn_msg_t>(std::move(events.kept))](int*) {
        const memory::Scope test(true);
        events.target->received(host::copyOf(*indication));
        settle();
        return 0;
    };
    return {"event-" + name, false, true, prepare, act};
}

Case otherCase(const std::string& name, std::function<void()> prepare, std::function<int()> act)
{
    return {name, false, false, std::move(prepare), [act = std::move(act)](int*) { return act(); }};
}

std::vector<Case> allCases()
{
    std::vector<Case> cases;
    for (const Example& example : kExamples) {
        cases.push_back(requestCase(example.line));
    }
    for (const std::string& line : kRefused) {
        cases.push_back(requestCase(line));
    }
    modem().open();
    std::ranges::transform(kVendorIndications, std::back_inserter(cases), eventCase);
    std::ranges::transform(kRadioIndications, std::back_inserter(cases), eventCase);
    const auto onState = [](RADIO_APIS_SERVICE_TYPE, RAPIS_CONNECT_STATE, void*) { count(calls[run]); };
    cases.push_back(otherCase(
        "init", [] {}, [] { return radioApisInit(kModem, 0); }));
    cases.push_back(otherCase("release", init, [] { return radioApisReleaseService(kModem); }));
    cases.push_back(otherCase("deinit", init, [] { return radioApisDeinit(); }));
    cases.push_back(otherCase(
        "register-service", [] {}, [=] { return registerRadioApisEvent(kModem, nullptr, onState); }));
    cases.push_back(otherCase("register-service-of-open", init,
                              [=] { return registerRadioApisEvent(kModem, nullptr, onState); }));
    cases.push_back(otherCase("register", init,
                              [] { return registerRadioEvent(RADIO_EVENT_TEST_IND, nullptr, onEvent); }));
    cases.push_back(otherCase("switch-vendor-events", init,
                              [] { return radioRegisterVsEvent(allVendorEvents(), nullptr, nullptr); }));
    cases.push_back(otherCase("switch-radio-events", init, [] {
        return radioRegisterRadioEvent({{1, 1}, {1, 1}}, nullptr, nullptr);
    }));
    return cases;
}

} // namespace

int main(int count, char** words)
{
    const std::vector<std::string> arguments(words + 1, words + count);
    const bool all = count > 1 && arguments[0] == "all";
    const bool one = count > 4 && arguments[0] == "one";
    setenv("RADIO_LOG", "off", 1);
    setenv("RADIO_DEVICE_ROOT", DEVICE_ROOT, 1);
    host::Clock::freeze();
    memory::setRole(memory::Caller);
    tally = sharedMemory<std::atomic<int>>(kOutcomes);
    report = sharedMemory<Report>(1);
    const std::vector<Case> cases = allCases();
    const auto isWanted = [&](const Case& what) {
        return count < 3 || std::ranges::find(arguments, what.name) != arguments.end();
    };
    if (one) {
        const auto what = std::ranges::find_if(cases, isWanted);
        const auto role =
            static_cast<memory::Role>(std::ranges::find(kRoles, arguments[2]) - std::begin(kRoles));
        const Report& good = goodRun(*what);
        perform(*what, {role, std::stoi(arguments[3]), count > 5}, &good);
    }
    for (int process = 0; process < kProcesses; ++process) {
        if (fork() != 0) {
            continue;
        }
        report = sharedMemory<Report>(1);
        for (int i = 0; i < static_cast<int>(cases.size()); ++i) {
            const Report& good = goodRun(cases[i]);
            if (i % kProcesses == process && isWanted(cases[i])) {
                failEverywhere(cases[i], good, all ? -1 : i);
                std::fflush(stdout);
            }
        }
        _exit(0);
    }
    int status = 0;
    bool ended = true;
    while (wait(&status) > 0) {
        ended = ended && status == 0;
    }
    int faults = 0;
    for (int outcome = 0; outcome < kOutcomes; ++outcome) {
        fmt::print("{:6} {}\n", tally[outcome].load(), kOutcomeNames[outcome]);
        faults += outcome >= kFirstFault ? tally[outcome].load() : 0;
    }
    return ended && faults == 0 ? 0 : 1;
}
