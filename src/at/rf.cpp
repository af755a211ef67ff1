/// Test tables of the radio front end, and control of its transmitters, which this library does not support.
#include "at/at_log.h"
#include "at/rf_config_parser.h"
#include "at/vorn_at_client.h"

#include <algorithm>

namespace {

/// A command from the file that holds a line end would be several.
bool isOneLine(const std::string& command)
{
    return std::ranges::none_of(command, [](unsigned char c) { return c < ' '; });
}

/// Transmitter control.
int refuse(const char* request)
{
    zorLogE(at::kTag, "%s : unsupported operation", request);
    return RADIO_APIS_FAILURE;
}

} // namespace

int VornAtClient::setAsdivFixPosition(int featureId, int index, void* userData, RadioRequestCallback cb)
{
    const auto* commands = RfConfigParser::instance().getAtCmdByFeatureId(featureId, index);
    if (commands == nullptr || commands->empty() || !std::ranges::all_of(*commands, isOneLine)) {
        zorLogE(at::kTag, "%s : no commands for feature %d, index %d", __func__, featureId, index);
        return RADIO_APIS_FAILURE;
    }
    return sendSetters(*commands, userData, cb);
}

int VornAtClient::setAtcTableInit(void* userData, RadioRequestCallback cb)
{
    return sendSetter("AT+EGMC=1,\"RF_EM_Init\"", userData, cb);
}

int VornAtClient::setAtcTableDeInit(void* userData, RadioRequestCallback cb)
{
    return sendSetter("AT+EGMC=1,\"RF_EM_DeInit\"", userData, cb);
}

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
