#include "at/at_chain_promise.h"

#include "at/at_log.h"

#include <new>

using mindroid::Exception;
using mindroid::make;
using mindroid::sp;

namespace {

constexpr char kChainTag[] = "AtChainPromise";

} // namespace

RadioException::RadioException(int result)
    : Exception("radio exception with error no " + std::to_string(result)),
      mResult(static_cast<RADIO_APIS_RESULT>(result))
{}

CmdPair::CmdPair(const char* cmd, AtResponseCallback::Function fn, int pauseAfter, int moreSends)
    : text(mindroid::String::valueOf(cmd)), interpreter(std::move(fn)), delay(pauseAfter), repeats(moreSends)
{}

void processRadioException(const sp<RadioApiCallback>& cb, void* userData, const sp<Exception>& e)
{
    ZeroedResult record;
    RADIO_APIS_RESULT result = RADIO_APIS_FAILURE;
    const char* message = e->what();
    if (const auto* cause = dynamic_cast<const RadioException*>(e->getCause().get())) {
        result = cause->getResult();
        message = cause->what();
    }
    zorLogE(kChainTag, "processRadioException: %s", message);
    if (cb) {
        cb->call(userData, result, &record);
    }
}

void endWithException(const sp<RadioApiCallback>& cb, void* userData, const char* method,
                      const std::exception& exception)
{
    const auto* failure = dynamic_cast<const RadioException*>(&exception);
    if (method != nullptr) {
        zorLogE(at::kTag, "%s: %s: %s", method,
                failure != nullptr ? "processRadioException" : "process exception", exception.what());
    }
    sp<Exception> told;
    try {
        if (method != nullptr && failure == nullptr) {
            told = make<Exception>(exception.what());
        } else {
            const int result = failure != nullptr ? failure->getResult() : RADIO_APIS_FAILURE;
            told = make<mindroid::CompletionException>(make<RadioException>(result));
        }
    } catch (const std::bad_alloc&) {
        cb->call(userData, RADIO_APIS_FAILURE, nullptr);
        return;
    }
    processRadioException(cb, userData, told);
}
