#include "contents.h"

#include <unordered_map>

namespace sim {
namespace {

using Contents = Fields (*)(const Subject& subject);

const auto& kContents = *new const std::unordered_map<std::string_view, Contents>{
    {"AlertEventInd", alertContents},
    {"AllCellInfoInd", allCellContents},
    {"AtomDataInd", atomContents},
    {"CallRtpSessionMlcInd", rtpSessionContents},
    {"CallStateChangeInd", callStateContents},
    {"DataIfupPacketRouteInd", packetRouteContents},
    {"HyperUplinkStateInd", hyperUplinkContents},
    {"ImsRtpControlInd", rtpControlContents},
    {"MccChangedInd", mccContents},
    {"MsimSubModeInd", multiSimContents},
    {"NecInd", necContents},
    {"NetworkActionResultInd", actionResultContents},
    {"NwEtxPwrInd", transmitPowerContents},
    {"OlogInd", logContents},
    {"QosEventReportInd", qosEventContents},
    {"QosPeriodReportInd", qosPeriodContents},
    {"RfIccClatInd", rfIccClatContents},
    {"RfIccEventInd", rfIccEventContents},
    {"RfIccTxSharingInd", rfIccSharingContents},
    {"RlkStatusInd", rlkContents},
    {"SceneModeInd", sceneModeContents},
    {"ServingCellInfoInd", servingCellContents},
    {"SidoIssueInd", sidoIssueContents},
    {"SingleSimChangeInd", singleSimContents},
    {"SmartNetworkSelectInd", networkSelectContents},
    {"SmlStatusInd", smlContents},
    {"TestInd", testContents},
    {"VeyraCellInfoInd", veyraCellContents},
    {"VeyraEventInd", veyraEventContents},
    {"VodataEventInd", vodataContents},
};

/// An indication that nothing in a slot says anything about.
Fields zeros(const MessageSpec& indication)
{
    Fields fields;
    for (const auto& spec : indication.response) {
        fields.set(spec.tag, spec.isArray ? Value(std::vector<Bytes>()) : Value(Bytes(spec.minLength)));
    }
    return fields;
}

} // namespace

Fields blockContents(Bytes block)
{
    Fields fields;
    fields.set(256, std::move(block));
    return fields;
}

Fields contentsOf(const MessageSpec& indication, const Subject& subject)
{
    const auto contents = kContents.find(indication.name);
    return contents != kContents.end() ? contents->second(subject) : zeros(indication);
}

} // namespace sim
