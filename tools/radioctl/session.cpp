#include "radioctl/session.h"

#include "host/device.h"
#include "host/log_sink.h"
#include "host/vorn_control.h"
#include "radioctl/special.h"

#include "vorn/vorn_msg.h"

#include <fmt/format.h>

#include <algorithm>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <mutex>

namespace radioctl {

namespace {

/// The link's state, as the library tells it from a thread of its own. Never destroyed: that thread lives on.
struct LinkState {
    std::mutex mutex;
    std::condition_variable changed;
    bool isUp = true;
    unsigned losses = 0;
    unsigned lossesWanted = 0;
    std::function<void(bool isUp)> listener; ///< called with the mutex held

    static LinkState& instance()
    {
        static auto& state = *new LinkState;
        return state;
    }

    static void onChange(RADIO_APIS_SERVICE_TYPE /*service*/, RAPIS_CONNECT_STATE state, void* user)
    {
        auto& link = *static_cast<LinkState*>(user);
        const bool isUp = state == RAPIS_CONNECTED;
        const std::lock_guard lock(link.mutex);
        if (std::exchange(link.isUp, isUp) == isUp) {
            return;
        }
        link.losses += isUp ? 0 : 1;
        link.changed.notify_all();
        if (link.listener) {
            link.listener(isUp);
        }
    }
};

/// What the modem said last, in words. It says so on the delivery thread, in front of the callbacks, of which some run on
/// another one.
class LastAnswer {
public:
    static LastAnswer& instance()
    {
        static auto& answer = *new LastAnswer;
        return answer;
    }

    std::string text()
    {
        const std::lock_guard lock(mMutex);
        return mText;
    }

    static void note(const vorn_msg_t* answer, void* user)
    {
        auto& last = *static_cast<LastAnswer*>(user);
        const std::lock_guard lock(last.mMutex);
        last.mText = textOf(*answer);
    }

private:
    static std::string textOf(const vorn_msg_t& answer)
    {
        constexpr uint16_t kAtCommand = 3;
        constexpr uint16_t kAtText = 0x8100;
        uint16_t length = 0;
        uint32_t code = 0;
        if (const void* result = vorn_msg_get_val_ptr(&answer, 0, &length); result != nullptr) {
            std::memcpy(&code, result, std::min<size_t>(length, sizeof code));
        }
        const char* text = answer.hdr.msg_id == kAtCommand ? vorn_msg_get_val_str(&answer, kAtText) : nullptr;
        if (code != 0 || text == nullptr) {
            return code == 0 ? "" : fmt::format("result {}", code);
        }
        std::string line(text);
        std::ranges::replace_if(
            line, [](unsigned char c) { return c < ' ' || c > '~'; }, ' ');
        const auto areBlanks = [](char a, char b) { return a == ' ' && b == ' '; };
        line.erase(std::unique(line.begin(), line.end(), areBlanks), line.end());
        line.erase(0, line.starts_with(' ') ? 1 : 0);
        line.resize(line.find_last_not_of(' ') + 1);
        return line;
    }

    std::mutex mMutex;
    std::string mText;
};

void prepareEnvironment(const Options& options)
{
    if (!options.device.empty()) {
        setenv("RADIO_VORN_DEVICE", options.device.c_str(), 1);
    }
    if (options.trace) {
        setenv("RADIO_TRACE", "-", 1);
        setenv("RADIO_TRACE_FORMAT", options.json ? "json" : "text", 1);
    }
    // Without a device root nothing says that the channel is supported; on a workstation it is.
    if (host::deviceRoot().empty()) {
        host::setProperty("ro.vendor.zor_vorn_support", "1");
        setenv("RADIO_VORN_DEVICE", "embedded", 0);
    }
    setenv("RADIO_LOG", options.log.empty() ? "off" : options.log.c_str(), options.log.empty() ? 0 : 1);
}

/// Opens the channel for an instance. Its errors are told once, by the exception, and not in the log as well.
void open(unsigned instance)
{
    std::string reason;
    const char* level = std::getenv("RADIO_LOG");
    const bool isLogged = level != nullptr && std::string_view(level) != "off";
    if (!isLogged) {
        host::setLogSink([&](const host::LogLine& line) {
            constexpr int kError = 6;
            if (line.priority >= kError && reason.empty()) {
                reason = line.text;
            }
        });
    }
    const int result = radioApisInit(RADIO_APIS_SERVICE_MODEM, instance);
    if (!isLogged) {
        host::setLogSink(nullptr);
    }
    if (result == RADIO_APIS_NOT_SUPPORTED) {
        throw Unreachable(
            "this device does not support the modem channel (property ro.vendor.zor_vorn_support)");
    }
    if (result != RADIO_APIS_SUCCESS) {
        throw Unreachable(fmt::format("the modem can't be reached: {}",
                                      reason.empty() ? interface::resultText(result) : reason));
    }
}

} // namespace

int exitStatus(const Outcome& outcome)
{
    return outcome.succeeded()                       ? kExitSuccess
           : outcome.kind == Outcome::Kind::TimedOut ? kExitTimeout
                                                     : kExitFailure;
}

Session::Session(const Options& options) : mInstance(options.instance)
{
    prepareEnvironment(options);
    open(mInstance);
    vorn_host_observe(LastAnswer::note, &LastAnswer::instance());
    registerRadioApisEvent(RADIO_APIS_SERVICE_MODEM, &LinkState::instance(), LinkState::onChange);
}

Session::~Session()
{
    vorn_host_observe(nullptr, nullptr);
}

void Session::use(const Options& options)
{
    if (std::exchange(mInstance, options.instance) != options.instance) {
        open(mInstance);
    }
}

Outcome Session::run(const interface::Request& request, interface::Arguments arguments,
                     const Options& options)
{
    const unsigned lossesBefore = losses();
    Outcome outcome = interface::call(request, arguments, std::chrono::milliseconds(options.timeout),
                                      [] { return LastAnswer::instance().text(); });
    if (outcome.succeeded()) {
        showSpecially(request, arguments, outcome.record);
        if (request.function == "radioRequireModemReboot") {
            expectLoss(lossesBefore + 1);
        }
    }
    return outcome;
}

unsigned Session::losses() const
{
    LinkState& link = LinkState::instance();
    const std::lock_guard lock(link.mutex);
    return link.losses;
}

void Session::expectLoss(unsigned number)
{
    LinkState& link = LinkState::instance();
    const std::lock_guard lock(link.mutex);
    link.lossesWanted = number;
}

bool Session::awaitLink(std::chrono::milliseconds atMost)
{
    LinkState& link = LinkState::instance();
    std::unique_lock lock(link.mutex);
    return link.changed.wait_for(lock, atMost, [&] { return link.isUp && link.losses >= link.lossesWanted; });
}

void onLinkChange(std::function<void(bool isUp)> changed)
{
    LinkState& link = LinkState::instance();
    const std::lock_guard lock(link.mutex);
    link.listener = std::move(changed);
}

} // namespace radioctl
