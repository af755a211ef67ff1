/// Functionality of the modem: on, off, restarted.
#include "at/at_answer.h"
#include "at/at_chain_promise.h"
#include "at/at_log.h"
#include "at/at_text.h"

using at::kTag;
using mindroid::make;
using mindroid::Parcel;
using mindroid::sp;
using namespace std::chrono_literals;

namespace {

using Step = mindroid::Promise<bool>; ///< whether the modem is known to have the wanted mode
using Check = std::function<bool(Parcel& answer)>;

constexpr auto kPause = 500ms; ///< the modem needs about so long to change its mode

sp<mindroid::Exception> failure()
{
    return make<mindroid::CompletionException>(make<RadioException>(RADIO_APIS_FAILURE));
}

/// What `check` says of an accepted answer; nothing when the answer was refused, or has not what `check` reads.
std::optional<bool> checkAnswer(const sp<Parcel>& answer, const Check& check)
{
    try {
        if (answer->getBoolean()) {
            return check(*answer);
        }
        zorLogD(kTag, "getBoolean: false");
    } catch (const mindroid::Exception&) {
    }
    return std::nullopt;
}

/// Sends one command; the promise tells what its check says, or fails.
sp<Step> sendStep(const sp<VornAtClient>& client, void* userData, const char* cmd, const Check& check)
{
    auto step = make<Step>();
    const auto onAnswer = [=](const sp<Parcel>& answer, RadioApisResultType*) {
        const auto verdict = checkAnswer(answer, check);
        if (!verdict) {
            step->completeExceptionally(failure());
            return RADIO_APIS_FAILURE;
        }
        step->complete(*verdict);
        return RADIO_APIS_SUCCESS;
    };
    if (client->sendAtCommand(cmd, userData, make<AtResponseCallback>(onAnswer)) != 0) {
        // Not from here: the caller may still be inside the request function.
        mindroid::runAfter(0ms, [step] { step->completeExceptionally(failure()); });
    }
    return step;
}

/// Whether one of the numbers in the answer is the wanted mode.
bool findMode(Parcel& answer, unsigned wanted)
{
    const int count = answer.getInt();
    zorLogD(kTag, "query efun callback: efun=%d,  p->len=%d", static_cast<int>(wanted), count);
    for (int i = 0; i < count; ++i) {
        const auto mode = at::nextInteger(answer);
        if (!mode) {
            zorLogD(kTag, "unexpected type");
            continue;
        }
        zorLogD(kTag, "curMode=%d", *mode);
        if (*mode == static_cast<int>(wanted)) {
            return true;
        }
    }
    return false;
}

/// Tells the caller, once, how the change ended.
void finish(const sp<RadioApiCallback>& callback, void* userData, bool reached,
            const sp<mindroid::Exception>& exception)
{
    constexpr char kMethod[] = "setOperationMode";
    if (!exception && reached) {
        ZeroedResult record;
        callback->call(userData, RADIO_APIS_SUCCESS, &record);
        return;
    }
    const sp<mindroid::Exception> reason = exception ? exception : failure();
    if (const auto* cause = dynamic_cast<const RadioException*>(reason->getCause().get())) {
        zorLogE(kTag, "%s: processRadioException: %s", kMethod, cause->what());
    } else {
        zorLogE(kTag, "%s: process exception: %s", kMethod, reason->what());
    }
    processRadioException(callback, userData, reason);
}

RADIO_APIS_RESULT onFunctionality(const sp<Parcel>& answer, RadioApisResultType* result)
{
    if (!answer->getBoolean()) {
        zorLogD(kTag, "getBoolean: false");
        return RADIO_APIS_FAILURE;
    }
    const int count = answer->getInt();
    zorLogD(kTag, "query cfun callback: p->len=%d", count);
    const auto mode = count >= 1 ? at::nextInteger(*answer) : std::nullopt;
    if (!mode) {
        return RADIO_APIS_FAILURE;
    }
    zorLogD(kTag, "cfun mode=%d", *mode);
    result->rsp.operationMode.mode = static_cast<uint32_t>(*mode);
    return RADIO_APIS_SUCCESS;
}

} // namespace

int VornAtClient::setOperationMode(RADIO_OPERATION_MODE_TYPE mode, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: mode=%d", __func__, mode);
    constexpr unsigned kModeBits = 7;
    const unsigned char wanted =
        (static_cast<unsigned>(mode) & kModeBits) == RADIO_OPERATION_MODE_ONLINE ? 3 : 0;
    const sp<VornAtClient> self(this);
    const auto look = [=] {
        return sendStep(self, userData, "AT+EFUN?",
                        [wanted](Parcel& answer) { return findMode(answer, wanted); });
    };
    const auto lookAgain = [=](bool reached) {
        const auto pause = make<Step>();
        pause->complete(reached);
        return reached ? pause : pause->delay(kPause)->compose([=](bool) { return look(); });
    };
    const AtText<64> command("AT+EFUN=%hhu", wanted);
    sendStep(self, userData, command, [](Parcel&) { return false; })
        ->delay(kPause)
        ->compose([=](bool) { return look(); })
        ->compose(lookAgain)
        ->then([=, callback = make<RadioApiCallback>(cb)](bool reached,
                                                          const sp<mindroid::Exception>& exception) {
            finish(callback, userData, reached, exception);
        });
    return RADIO_APIS_SUCCESS;
}

int VornAtClient::getOperationMode(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. ", __func__);
    return sendQuery("AT+CFUN?", userData, cb, onFunctionality);
}

int VornAtClient::requireModemReboot(void* userData, RadioRequestCallback cb)
{
    return sendSetter("AT+CFUN=1,1", userData, cb);
}
