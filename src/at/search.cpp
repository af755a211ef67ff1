/// What the modem does out of service.
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

using at::kTag;

namespace {

/// A switch's text, by whether it is on.
const char* byState(int enable, const char* on, const char* off)
{
    return enable != 0 ? on : off;
}

} // namespace

int VornAtClient::setOosCfg(const RadioOosCfgInfo& info, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "setOosCfg: ENTER");
    zorLogD(kTag, "setOosCfg: option=%d, enable=%d", info.option, info.enable);
    const auto send = [&](const char* command) {
        const int result = sendSetter(command, userData, cb);
        zorLogD(kTag, "setOosCfg: result: %d", result);
        return result;
    };
    switch (info.option) {
    case 1: {
        // The recovery timers of 23 phases, of which whole groups share a value.
        const int a = info.p7;
        const int b = info.p8;
        const int c = info.p9;
        const int d = info.p10;
        const int e = info.p11;
        const AtText<256> command(
            "AT+ERSCFG=%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d,%d", a, a, b, b, b,
            b, c, c, c, c, c, c, d, d, d, d, d, d, d, e, e, e, e);
        zorLogD(kTag, "setOosCfg: nwsel_oos_cfg_strcmd: %s", static_cast<const char*>(command));
        return send(command);
    }
    case 2: {
        const AtText<256> command("AT+ESRVREC=%d,%d,%d,,%d,%d", info.p1, info.p2, info.p3, info.p5, info.p6);
        zorLogD(kTag, "setOosCfg: nwsel_gmss_oos_strcmd: %s", static_cast<const char*>(command));
        return send(command);
    }
    case 3:
        return send(byState(info.enable, "AT+ESBP=5,\"SBP_INACTIVE_MODE_SERVICE_RECOVERY_GMSS_CONTROL\",1",
                            "AT+ESBP=5,\"SBP_INACTIVE_MODE_SERVICE_RECOVERY_GMSS_CONTROL\",0"));
    case 4:
        return send(byState(info.enable, "AT+ESBP=5,\"SBP_INACTIVE_MODE_SERVICE_RECOVERY\",1",
                            "AT+ESBP=5,\"SBP_INACTIVE_MODE_SERVICE_RECOVERY\",0"));
    case 5:
        return send(AtText<256>("AT+ESRVREC=,,,%d", info.p4));
    default:
        zorLogE(kTag, "setOosCfg: invalid option: %d", info.option);
        zorLogE(kTag, "setOosCfg: result: %d", RADIO_APIS_FAILURE);
        return RADIO_APIS_FAILURE;
    }
}
