#include "radioctl/session.h"

#include "host/device.h"

#include <fmt/format.h>

#include <condition_variable>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <optional>

namespace radioctl {

namespace {

/// Shared by the caller, who may give up waiting, and the callback, which comes all the same.
struct Pending {
    explicit Pending(const Request& sent) : request(sent) {}

    const Request& request;
    std::mutex mutex;
    std::condition_variable answered;
    std::optional<Outcome> outcome;
};

void onAnswer(void* userData, RADIO_APIS_RESULT result, RadioApisResultType* record)
{
    const std::unique_ptr<std::shared_ptr<Pending>> owned(static_cast<std::shared_ptr<Pending>*>(userData));
    Pending& pending = **owned;
    Outcome outcome{Outcome::Kind::Answered, result, nullptr};
    if (record != nullptr && result == RADIO_APIS_SUCCESS && pending.request.show) {
        outcome.record = pending.request.show(record->rsp);
    }
    const std::lock_guard lock(pending.mutex);
    pending.outcome = std::move(outcome);
    pending.answered.notify_one();
}

/// Without a device root there is no property that says that the channel is supported; on a workstation it
/// is.
void prepareWorkstation(const SessionOptions& options)
{
    if (!options.device.empty()) {
        setenv("RADIO_VORN_DEVICE", options.device.c_str(), 1);
    }
    if (options.trace) {
        setenv("RADIO_TRACE", "-", 1);
        setenv("RADIO_TRACE_FORMAT", options.traceJson ? "json" : "text", 1);
    }
    if (host::deviceRoot().empty()) {
        host::setProperty("ro.vendor.zor_vorn_support", "1");
        setenv("RADIO_VORN_DEVICE", "embedded", 0);
    }
}

} // namespace

bool Outcome::succeeded() const
{
    return kind == Kind::Answered && result == RADIO_APIS_SUCCESS &&
           !(record.is_object() && (record.value("failure", 0U) != 0 || record.value("result", 0U) != 0));
}

Session::Session(const SessionOptions& options) : mTimeout(options.timeout)
{
    prepareWorkstation(options);
    const int result = radioApisInit(RADIO_APIS_SERVICE_MODEM, options.instance);
    if (result == RADIO_APIS_NOT_SUPPORTED) {
        throw std::runtime_error(
            "this device does not support the modem channel (property ro.vendor.zor_vorn_support)");
    }
    if (result != RADIO_APIS_SUCCESS) {
        throw std::runtime_error(fmt::format("the modem can't be reached (result {})", result));
    }
}

Outcome Session::run(const Request& request, const Arguments& arguments) const
{
    const auto pending = std::make_shared<Pending>(request);
    auto userData = std::make_unique<std::shared_ptr<Pending>>(pending);
    const int refusal = request.send(arguments, {userData.get(), onAnswer});
    if (refusal != RADIO_APIS_SUCCESS) {
        return {Outcome::Kind::Refused, refusal, nullptr};
    }
    static_cast<void>(userData.release()); // the callback's, which may have come already
    std::unique_lock lock(pending->mutex);
    if (!pending->answered.wait_for(lock, mTimeout, [&] { return pending->outcome.has_value(); })) {
        return {};
    }
    Outcome outcome = *pending->outcome;
    if (request.showSent && outcome.succeeded()) {
        outcome.record = request.showSent(arguments);
    }
    return outcome;
}

} // namespace radioctl
