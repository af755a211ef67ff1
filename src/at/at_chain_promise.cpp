#include "at/at_chain_promise.h"

#include "channel/vorn_client.h"
#include "zor/log.h"

namespace {

constexpr char kChainTag[] = "AtChainPromise";

} // namespace

RadioException::RadioException(int result)
    : Exception("radio exception with error no " + std::to_string(result)),
      mResult(static_cast<RADIO_APIS_RESULT>(result))
{}

CmdPair::CmdPair(const char* cmd, AtResponseCallback::Function fn, int pauseAfter)
    : text(mindroid::String::valueOf(std::string(cmd) + "\r\n")),
      delay(pauseAfter),
      interpreter(mindroid::make<AtResponseCallback>(std::move(fn)))
{}

void processRadioException(const mindroid::sp<RadioApiCallback>& cb, void* userData,
                           const mindroid::sp<mindroid::Exception>& e)
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
