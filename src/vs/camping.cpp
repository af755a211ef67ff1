/// Switches of how the modem camps, set by their name.
#include "vs/vs_request.h"

int VornVsClient::setModemSwitch(const char* name, int on, void* userData, RadioRequestCallback cb)
{
    constexpr uint8_t kSet = 5;
    auto request = newRequest(VsMessage::SetModemSwitch);
    request->addVornTlvUint8(256, kSet);
    request->addVornTlvStr(258, name);
    request->addVornTlvUint8(259, on != 0 ? 1 : 0);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setRedirectOptSetting(int a1, int a2, int a3, int, int, int, void* userData,
                                        RadioRequestCallback cb)
{
    logEnter(__func__);
    if (a1 != 4 || a2 != 7) {
        return RADIO_APIS_NOT_SUPPORTED;
    }
    return setModemSwitch("SBP_CONTINUOUS_4G5_REDIRECTION_FAILURE", a3, userData, cb);
}

int VornVsClient::setAttachPriority(int a1, int a2, int a3, int a4, int, void* userData,
                                    RadioRequestCallback cb)
{
    logEnter(__func__);
    if (a1 != 0 || a2 != 2 || a4 != 0) {
        return RADIO_APIS_NOT_SUPPORTED;
    }
    return setModemSwitch("SBP_MODIFY_NON_DATA_SIM_GMM_ATTACH_PRIORITY_TO_LOW_MSPM_PRIORITY", a3, userData,
                          cb);
}
