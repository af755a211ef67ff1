/// Antennas.
#include "at/at_text.h"
#include "at/vorn_at_client.h"

int VornAtClient::setAntForceStateByRat(int, int state, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+EGMC = 1,\"NrTas_onoff\",%d", state), userData, cb);
}

int VornAtClient::setAolScenario(int scenario, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+ERFIDX=0,%d", scenario), userData, cb);
}
