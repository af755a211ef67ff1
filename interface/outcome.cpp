#include "interface/outcome.h"

#include <fmt/format.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

namespace interface {

namespace {

/// Shared by the caller, who may give up waiting, and the callback, which comes all the same.
struct Pending {
    Pending(const Request& sent, Said asked) : request(sent), said(asked) {}

    const Request& request;
    const Said said;
    std::mutex mutex;
    std::condition_variable answered;
    std::optional<Outcome> outcome;
};

void onAnswer(void* userData, RADIO_APIS_RESULT result, RadioApisResultType* record)
{
    const std::unique_ptr<std::shared_ptr<Pending>> owned(static_cast<std::shared_ptr<Pending>*>(userData));
    Pending& pending = **owned;
    Outcome outcome{Outcome::Kind::Answered, result, nullptr};
    const Record* answer = pending.request.answer;
    if (record != nullptr && result == RADIO_APIS_SUCCESS && answer != nullptr) {
        outcome.record = toJson(*answer, &record->rsp);
        outcome.modemFailed = tellsFailure(*answer, &record->rsp);
    }
    if (!outcome.succeeded() && pending.said != nullptr) {
        outcome.modemSaid = pending.said();
    }
    const std::lock_guard lock(pending.mutex);
    pending.outcome = std::move(outcome);
    pending.answered.notify_one();
}

} // namespace

std::string resultText(int result)
{
    for (const Value& value : results()) {
        if (value.value == result) {
            return fmt::format("{} ({})", value.name, result);
        }
    }
    return fmt::format("result {}", result);
}

const char* Outcome::error() const
{
    return kind == Kind::Answered ? "failed" : kind == Kind::Refused ? "refused" : "timeout";
}

std::string Outcome::reason() const
{
    if (kind == Kind::TimedOut) {
        return fmt::format("no answer within {} ms", limit.count());
    }
    if (kind == Kind::Refused) {
        return fmt::format("refused by the library: {}", resultText(result));
    }
    const std::string said = modemSaid.empty() ? "" : fmt::format("; the modem said: {}", modemSaid);
    return result == RADIO_APIS_SUCCESS ? fmt::format("the modem reported a failure{}", said)
                                        : fmt::format("failed: {}{}", resultText(result), said);
}

Outcome call(const Request& request, Arguments& arguments, std::chrono::milliseconds limit, Said said)
{
    const auto pending = std::make_shared<Pending>(request, said);
    auto userData = std::make_unique<std::shared_ptr<Pending>>(pending);
    const int refusal = request.call(arguments, userData.get(), onAnswer);
    if (refusal != RADIO_APIS_SUCCESS) {
        return {Outcome::Kind::Refused, refusal, nullptr};
    }
    static_cast<void>(userData.release()); // the callback's, which may have come already
    std::unique_lock lock(pending->mutex);
    if (!pending->answered.wait_for(lock, limit, [&] { return pending->outcome.has_value(); })) {
        Outcome late;
        late.limit = limit;
        return late;
    }
    return *pending->outcome;
}

} // namespace interface
