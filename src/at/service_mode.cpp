/// Service domain and usage of the device.
#include "at/at_answer.h"
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

using at::kTag;
using mindroid::Parcel;
using mindroid::sp;

namespace {

RADIO_APIS_RESULT onServiceMode(const sp<Parcel>& answer, RadioApisResultType* result)
{
    zorLogD(kTag, "getServiceMode :cb Enter");
    const auto mode = at::firstInteger(answer);
    if (!mode) {
        return RADIO_APIS_FAILURE;
    }
    result->rsp.serviceModeInfo.serviceMode = *mode;
    zorLogD(kTag, "getServiceMode : result->rsp.serviceModeInfo.serviceMode : %d", *mode);
    return RADIO_APIS_SUCCESS;
}

RADIO_APIS_RESULT onCentricMode(const sp<Parcel>& answer, RadioApisResultType* result)
{
    zorLogD(kTag, "getCentricMode :cb Enter");
    const auto mode = at::firstInteger(answer);
    if (!mode) {
        return RADIO_APIS_FAILURE;
    }
    result->rsp.centricModeInfo.centricMode = *mode;
    zorLogD(kTag, "getCentricMode : result->rsp.centricModeInfo.centricMode : %d", *mode);
    return RADIO_APIS_SUCCESS;
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
