#include "consequences.h"

#include "contents.h"

#include <algorithm>

namespace sim {
namespace {

constexpr size_t kMaxLockStatus = 512;

bool always(const Slot&, const Request&)
{
    return true;
}

bool hyperUplinkIsOn(const Slot& slot, const Request&)
{
    return isHyperUplinkOn(slot);
}

bool screenIsOn(const Slot&, const Request& request)
{
    return request.fields.number<int32_t>(256) == 1;
}

bool reportsAreOn(const Slot&, const Request& request)
{
    return request.fields.number<int32_t>(256) != 0;
}

/// Nothing that is not in the slot's state anyhow.
Fields nothing(const Slot&, const Request&)
{
    return {};
}

Fields outcomeOfAction(const Slot&, const Request& request)
{
    Bytes block = toBytes(uint32_t{1});
    append(block, actionOutcome(request.fields));
    return blockContents(std::move(block));
}

/// The beginning of what was set.
Fields lockData(const Slot&, const Request& request)
{
    Bytes data = request.fields.bytes(request.spec.request.front().tag);
    data.resize(std::min(data.size(), kMaxLockStatus));
    Fields fields;
    fields.set(257, std::move(data));
    return fields;
}

Fields thisAtom(const Slot& slot, const Request& request)
{
    return blockContents(atomRecord(slot, request.fields.number<int32_t>(256)));
}

Fields controlOfCall(const Slot&, const Request& request)
{
    Fields fields;
    fields.setNumber(256, request.fields.number<uint8_t>(256));
    fields.setNumber(257, request.fields.number<int32_t>(257));
    return fields;
}

struct Row {
    std::string_view request;
    std::string_view indication;
    bool (*happens)(const Slot&, const Request&) = always;
    Fields (*fields)(const Slot&, const Request&) = nothing;
};

constexpr Row kRows[] = {
    {"LoadAtomApplication", "AtomDataInd", always, thisAtom},
    {"RollbackNetworkAction", "NetworkActionResultInd", always, outcomeOfAction},
    {"SendNetworkAction", "NetworkActionResultInd", always, outcomeOfAction},
    {"SendScreenState", "ServingCellInfoInd", screenIsOn},
    {"SetAtomStatus", "AtomDataInd", always, thisAtom},
    {"SetHyperUplinkMode", "HyperUplinkStateInd"},
    {"SetImsRtpRedunControlInfo", "CallRtpSessionMlcInd", hasRemoteKey, controlOfCall},
    {"SetOperationMode", "NwEtxPwrInd"},
    {"SetOperationMode", "DataIfupPacketRouteInd"},
    {"SetRlkBlob", "RlkStatusInd", always, lockData},
    {"SetRlkStatus", "RlkStatusInd", always, lockData},
    {"SetSceneMode", "SceneModeInd"},
    {"SetSceneMode", "HyperUplinkStateInd", hyperUplinkIsOn},
    {"SetSmlBlob", "SmlStatusInd", always, lockData},
    {"SetSmlStatus", "SmlStatusInd", always, lockData},
    {"SetUimPower", "MsimSubModeInd"},
    {"SetUimPower", "SingleSimChangeInd"},
    {"SetVeyraConfigPolicy", "VeyraCellInfoInd", reportsAreOn},
};

} // namespace

Answer carryOut(Slot& slot, const Request& request, Consequences& consequences)
{
    const uint32_t mcc = slot.servedMcc();
    Answer answer = handle(slot, request);
    if (answer.result != ModemResult::Success) {
        return answer;
    }
    for (const Row& row : kRows) {
        if (row.request == request.spec.name && row.happens(slot, request)) {
            consequences.indications.push_back(
                indicationNamed(row.indication, slot.number, row.fields(slot, request)));
        }
    }
    if (slot.servedMcc() != mcc) {
        slot.previousMcc = mcc;
        consequences.indications.push_back(indicationNamed("MccChangedInd", slot.number));
    }
    consequences.reports = reportChangeBy(slot.number, request);
    return answer;
}

} // namespace sim
