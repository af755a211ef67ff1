/// Power saving switches.
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

using at::kTag;

int VornAtClient::setPowerSavingState(const UAIINFO& info, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. setPowerSavingState type=%d op=%d dl=%d ul=%d delay=%d cnt=%d,cgType=%d",
            __func__, info.type, info.op, info.dl, info.ul, info.delay, info.cnt, info.cgType);
    switch (info.cgType) {
    case 3:
        return sendSetter(AtText<128>("AT+ESBP=5,\"SBP_CUSTOM_QRXLEVMIN_ADJ_NR\",%d", info.op), userData, cb);
    case 4:
        return sendSetter(AtText<128>("AT+ESBP=5,\"SBP_GMSS_NO_SIM_SKIP_LTE_NR_SEARCH\",%d", info.op),
                          userData, cb);
    case 5:
        // The one switch with operation 6.
        return sendSetter(AtText<128>("AT+ESBP=6,\"SBP_SAF_ASSISTANT_LOW_POWER_CONTROL\",%d", info.op),
                          userData, cb);
    default:
        zorLogE(kTag, "setPowerSavingState: invalid cgType: %d", info.cgType);
        return RADIO_APIS_FAILURE;
    }
}
