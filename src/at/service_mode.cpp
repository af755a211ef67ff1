/// Service domain and usage of the device.
#include "at/at_answer.h"
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

using at::kTag;
using mindroid::Parcel;
using mindroid::sp;

namespace {

/// Reads the first field of an answer, which must be an integer.
RADIO_APIS_RESULT readMode(const char* method, const char* name, const sp<Parcel>& answer, int32_t& mode)
{
    zorLogD(kTag, "%s :cb Enter", method);
    const bool hasFields = answer->getBoolean() && answer->getInt() >= 1;
    const auto field = hasFields ? at::nextInteger(*answer) : std::nullopt;
    if (!field) {
        return RADIO_APIS_FAILURE;
    }
    mode = *field;
    zorLogD(kTag, "%s : result->rsp.%s : %d", method, name, mode);
    return RADIO_APIS_SUCCESS;
}

RADIO_APIS_RESULT onServiceMode(const sp<Parcel>& answer, RadioApisResultType* result)
{
    return readMode("getServiceMode", "serviceModeInfo.serviceMode", answer,
                    result->rsp.serviceModeInfo.serviceMode);
}

RADIO_APIS_RESULT onCentricMode(const sp<Parcel>& answer, RadioApisResultType* result)
{
    return readMode("getCentricMode", "centricModeInfo.centricMode", answer,
                    result->rsp.centricModeInfo.centricMode);
}

} // namespace

int VornAtClient::setServiceMode(int mode, void* userData, RadioRequestCallback cb)
{
    const AtText<32> command("AT+CEMODE=%d", mode);
    zorLogD(kTag, "%s: ENTER: %d", __func__, mode);
    zorLogD(kTag, "%s: ENTER: cmd %s", __func__, static_cast<const char*>(command));
    return sendSetters({"AT+CFUN=0", std::string(command), "AT+CFUN=1"}, userData, cb);
}

int VornAtClient::getServiceMode(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: ENTER", __func__);
    return sendQuery("AT+CEMODE?", userData, cb, onServiceMode);
}

int VornAtClient::setCentricMode(int mode, void* userData, RadioRequestCallback cb)
{
    const AtText<32> command("AT+CEUS=%d", mode);
    zorLogD(kTag, "%s: ENTER: %d", __func__, mode);
    zorLogD(kTag, "%s: ENTER: cmd %s", __func__, static_cast<const char*>(command));
    return sendSetters({"AT+CFUN=0", std::string(command), "AT+CFUN=1"}, userData, cb);
}

int VornAtClient::getCentricMode(void* userData, RadioRequestCallback cb)
{
    return sendQuery("AT+CEUS?", userData, cb, onCentricMode);
}
