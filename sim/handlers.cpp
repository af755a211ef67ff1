#include "handlers.h"

#include "at_interpreter.h"

#include <algorithm>
#include <unordered_map>

namespace sim {
namespace {

constexpr uint16_t kAtText = 0x8100;

Answer executeAtCommand(Slot& slot, const Request& request)
{
    const AtAnswer reply = executeAt(slot, request.fields.text(kAtText));
    Answer answer;
    answer.fields.setText(kAtText, reply.text);
    answer.restart = reply.restart;
    return answer;
}

/// A getter whose answer carries one field of what a setter stored under the same key.
struct Getter {
    std::string_view setter;
    uint16_t setterField;
    uint16_t answerField;
};

const auto& kGetters = *new const std::unordered_map<std::string_view, Getter>{
    {"GetFeatureState", {"SetFeatureState", 257, 256}},
    {"GetModemIndicationPolicy", {"SetModemIndicationPolicy", 256, 256}},
    {"GetQosData", {"SetQosConfig", 257, 256}},
    {"GetRlkStatus", {"SetRlkStatus", 257, 257}},
    {"GetSarDsiState", {"SetSarDsiState", 256, 256}},
    {"GetSmlStatus", {"SetSmlStatus", 257, 257}},
};

/// The messages that do more than to store their fields or to read stored ones.
const auto& kHandlers = *new const std::unordered_map<std::string_view, Handler>{
    {"AtCommand", executeAtCommand},
    {"GetAllCellularCellInfo", getAllCells},
    {"GetAtomData", getAtomData},
    {"GetDataActPacketRoute", getPacketRoute},
    {"GetDataIfupPacketRoute", getPacketRoute},
    {"GetImsRtpRedunCapability", getRedundancyCapability},
    {"GetImsRtpRedunPublicKey", getPublicKey},
    {"GetIndicationReportRecords", getReportRecords},
    {"GetLteCellInfo", getLteCellInfo},
    {"GetMetricsData", getMetrics},
    {"GetModemHeapList", getHeapList},
    {"GetModemProtocolInfo", getProtocolInfo},
    {"GetMsimSubModeState", getMultiSimState},
    {"GetNecData", getNecData},
    {"GetNetworkActionState", getNetworkActionState},
    {"GetOperationMode", getOperationMode},
    {"GetPowerStatistics", getPowerStatistics},
    {"GetRRCStatus", getRrcStatus},
    {"GetRfIccInfo", getRfIccInfo},
    {"GetSceneMode", getSceneModes},
    {"GetServingCellularCellInfo", getServingCell},
    {"GetSimTrayStatus", getSimTrays},
    {"GetTxCarkit", getCarkit},
    {"IccSimAuthentication", authenticateSim},
    {"ReadNv", readNv},
    {"RollbackNetworkAction", rollbackNetworkAction},
    {"SendDeviceStateExt", sendDeviceState},
    {"SendNetworkAction", sendNetworkAction},
    {"SetImsRtpRedunControlInfo", controlRedundancy},
    {"SetImsRtpRedunRemotePublicKey", setRemoteKey},
    {"SetOperationMode", setOperationMode},
    {"SetRlkBlob", setLockData},
    {"SetRlkStatus", setLockData},
    {"SetSmlBlob", setLockData},
    {"SetSmlStatus", setLockData},
    {"SetUimPower", setSimPower},
    {"StopMetricsCollect", stopMetrics},
    {"SyncImsRtpRedunDataPathConfig", syncDataPath},
    {"UnloadAtomApplication", unloadAtomApplication},
    {"WriteNv", writeNv},
};

/// What was never set reads as zeros.
Answer readStored(const Slot& slot, const Request& request, const Getter& getter)
{
    const Fields* stored = slot.settings.find(getter.setter, keyOf(request.spec, request.fields));
    const auto spec = std::ranges::find(request.spec.response, getter.answerField, &FieldSpec::tag);
    Answer answer;
    answer.fields.set(getter.answerField,
                      stored != nullptr ? stored->bytes(getter.setterField) : Bytes(spec->minLength));
    return answer;
}

} // namespace

Answer handle(Slot& slot, const Request& request)
{
    if (const auto handler = kHandlers.find(request.spec.name); handler != kHandlers.end()) {
        return handler->second(slot, request);
    }
    if (const auto getter = kGetters.find(request.spec.name); getter != kGetters.end()) {
        return readStored(slot, request, getter->second);
    }
    slot.settings.store(request.spec, request.fields);
    return {};
}

} // namespace sim
