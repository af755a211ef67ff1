/// Functionality of the modem: on, off, restarted.
#include "at/at_answer.h"
#include "at/at_chain_promise.h"
#include "at/at_log.h"
#include "at/at_text.h"

using at::kTag;
using mindroid::make;
using mindroid::Parcel;
using mindroid::sp;

namespace {

constexpr int kPause = 500; ///< milliseconds: the modem needs about so long to change its mode

bool isAccepted(const sp<Parcel>& answer)
{
    const bool accepted = answer->getBoolean();
    if (!accepted) {
        zorLogD(kTag, "getBoolean: false");
    }
    return accepted;
}

RADIO_APIS_RESULT onModeSet(const sp<Parcel>& answer, RadioApisResultType*)
{
    return isAccepted(answer) ? RADIO_APIS_SUCCESS : RADIO_APIS_FAILURE;
}

/// A success when one of the numbers in the answer is the wanted mode, else a reason to look again.
RADIO_APIS_RESULT onLook(unsigned char wanted, const sp<Parcel>& answer)
{
    if (!isAccepted(answer)) {
        throw RadioException(RADIO_APIS_FAILURE);
    }
    const int count = answer->getInt();
    zorLogD(kTag, "query efun callback: efun=%d,  p->len=%d", wanted, count);
    for (int i = 0; i < count; ++i) {
        const auto mode = at::nextInteger(*answer);
        if (!mode) {
            zorLogD(kTag, "unexpected type");
            continue;
        }
        zorLogD(kTag, "curMode=%d", *mode);
        if (*mode == wanted) {
            return RADIO_APIS_SUCCESS;
        }
    }
    return RADIO_APIS_FAILURE;
}

RADIO_APIS_RESULT onFunctionality(const sp<Parcel>& answer, RadioApisResultType* result)
{
    if (!isAccepted(answer)) {
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
    const auto chain = make<AtChain>(__func__);
    chain->addText(AtText<64>("AT+EFUN=%hhu", wanted), onModeSet, kPause);
    chain->addText(
        "AT+EFUN?", [=](const sp<Parcel>& answer, auto*) { return onLook(wanted, answer); }, kPause, 1);
    chain->start(this, userData, cb);
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
