/// Antennas.
#include "at/at_chain_promise.h"
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/rf_config_parser.h"
#include "at/vorn_at_client.h"

#include <algorithm>

namespace {

/// A command from the file that holds a line end would be several.
bool isOneLine(const std::string& command)
{
    return std::ranges::none_of(command, [](unsigned char c) { return c < ' '; });
}

} // namespace

int VornAtClient::setAsdivFixPosition(int featureId, int index, void* userData, RadioRequestCallback cb)
{
    const auto* commands = RfConfigParser::instance().getAtCmdByFeatureId(featureId, index);
    if (commands == nullptr || commands->empty() || !std::ranges::all_of(*commands, isOneLine)) {
        zorLogE(at::kTag, "%s : no commands for feature %d, index %d", __func__, featureId, index);
        return RADIO_APIS_FAILURE;
    }
    const auto chain = mindroid::make<AtChain>();
    for (const std::string& command : *commands) {
        chain->add(command.c_str(), completeWithResultVoid);
    }
    chain->start(this, userData, cb);
    return RADIO_APIS_SUCCESS;
}

int VornAtClient::setAntForceStateByRat(int, int state, void* userData, RadioRequestCallback cb)
{
    return sendSetter(AtText<64>("AT+EGMC = 1,\"NrTas_onoff\",%d", state), userData, cb);
}
