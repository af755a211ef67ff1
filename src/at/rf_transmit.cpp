/// Transmitter control, which this library does not support.
#include "at/at_log.h"
#include "at/vorn_at_client.h"

namespace {

int refuse(const char* request)
{
    zorLogE(at::kTag, "%s : unsupported operation", request);
    return RADIO_APIS_FAILURE;
}

} // namespace

int VornAtClient::setTasForceIdxByRat(int, int, int, int, void*, RadioRequestCallback)
{
    return refuse(__func__);
}

int VornAtClient::setMaxTxPower(int, int, int, void*, RadioRequestCallback)
{
    return refuse(__func__);
}

int VornAtClient::setRfTxInfo(const RFTXINFO&, void*, RadioRequestCallback)
{
    return refuse(__func__);
}

int VornAtClient::getTxAdc(const TXADCINFO&, void*, RadioRequestCallback)
{
    return refuse(__func__);
}

int VornAtClient::setRfTxPower(const RFTXINFO&, void*, RadioRequestCallback)
{
    return refuse(__func__);
}

int VornAtClient::setComboRfTxInfo(const std::vector<RFTXINFO>&, void*, RadioRequestCallback)
{
    return refuse(__func__);
}
