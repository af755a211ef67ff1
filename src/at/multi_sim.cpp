/// How several SIM cards are served.
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/vorn_at_client.h"

using at::kTag;

int VornAtClient::setMsimSubModePref(int mode, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d mode=%d", __func__, mInstance, mode);
    return sendSetter(AtText<128>("AT+ESBP=5,\"SBP_DSDA\",%d", mode), userData, cb);
}
