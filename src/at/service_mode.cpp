/// Service domain and usage of the device.
#include "at/at_cmd_parser.h"
#include "at/at_log.h"
#include "at/vorn_at_client.h"

#include <optional>

using at::kTag;
using mindroid::Parcel;
using mindroid::sp;

namespace {

/// The mode in an answer that carries one integer; nothing for every other answer.
std::optional<int32_t> modeOf(const sp<Parcel>& answer)
{
    const bool accepted = answer->getBoolean();
    if (accepted && answer->getInt() >= 1 && answer->getByte() == AtCmdParser::kInteger) {
        return answer->getInt();
    }
    return std::nullopt;
}

RADIO_APIS_RESULT onServiceMode(const sp<Parcel>& answer, RadioApisResultType* result)
{
    zorLogD(kTag, "getServiceMode :cb Enter");
    const auto mode = modeOf(answer);
    if (!mode) {
        return RADIO_APIS_FAILURE;
    }
    result->rsp.serviceModeInfo.serviceMode = *mode;
    zorLogD(kTag, "getServiceMode : result->rsp.serviceModeInfo.serviceMode : %d", *mode);
    return RADIO_APIS_SUCCESS;
}

} // namespace

int VornAtClient::getServiceMode(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: ENTER", __func__);
    return sendAtCommand("AT+CEMODE?", userData, cb, mindroid::make<AtResponseCallback>(onServiceMode));
}
