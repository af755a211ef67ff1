/// What the device tells the modem about itself.
#include "at/at_text.h"
#include "at/vorn_at_client.h"

int VornAtClient::updateFoldScreenStatus(int state, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+EDMFAPP=20000,204,\"%d\"", state), userData, cb);
}

int VornAtClient::setImeiSvn(int svn, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<32>("AT+EGMR=1,9,\"%02x\"", static_cast<unsigned>(svn)), userData, cb);
}
