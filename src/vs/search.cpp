/// How the modem searches for networks.
#include "vs/vs_request.h"

using vs::kTag;

int VornVsClient::hplmnBgSearch(const RadioHplmnBgSearchInfoType& info, void* userData,
                                RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter, repeat_interval=%d", __func__, info.repeatInterval);
    auto request = newRequest(VsMessage::HplmnBgSearch);
    request->addVornTlvUint16(256, static_cast<uint16_t>(info.repeatInterval));
    return send(request, userData, cb, processVoidResponseMsg);
}
