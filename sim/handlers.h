/// What the modem does with a request that fits the catalogue.
#pragma once

#include "slot.h"

#include <span>

namespace sim {

/// Results that the modem gives in field 0.
enum class ModemResult : int32_t {
    Success = 0,
    Failure = 1,
    BadArgument = 21,
    NotSupported = 31,
};

struct Request {
    const MessageSpec& spec;
    const Fields& fields;
    std::span<const Slot> slots = {}; ///< all of the modem's
};

struct Answer {
    ModemResult result = ModemResult::Success;
    Fields fields = {};
    bool restart = false; ///< the modem restarts once the answer is out
};

using Handler = Answer (*)(Slot& slot, const Request& request);

/// A message has a handler of its own, or it reads what another one stored, or it is stored itself.
Answer handle(Slot& slot, const Request& request);

// handlers_cells.cpp
Answer getLteCellInfo(Slot& slot, const Request& request);
Answer getServingCell(Slot& slot, const Request& request);
Answer getAllCells(Slot& slot, const Request& request);
Answer getRrcStatus(Slot& slot, const Request& request);

// handlers_nv.cpp
Answer readNv(Slot& slot, const Request& request);
Answer writeNv(Slot& slot, const Request& request);

// handlers_collect.cpp
Answer unloadAtomApplication(Slot& slot, const Request& request);
Answer getAtomData(Slot& slot, const Request& request);
Bytes atomRecord(const Slot& slot, int32_t id); ///< three words: id, status and sub-policy as they were set
Answer stopMetrics(Slot& slot, const Request& request);
Answer getMetrics(Slot& slot, const Request& request);
Answer getSceneModes(Slot& slot, const Request& request);
Answer getReportRecords(Slot& slot, const Request& request);

// handlers_actions.cpp
Answer sendNetworkAction(Slot& slot, const Request& request);
Answer rollbackNetworkAction(Slot& slot, const Request& request);
Answer getNetworkActionState(Slot& slot, const Request& request);

// handlers_device.cpp
Answer getCarkit(Slot& slot, const Request& request);
Answer getMultiSimState(Slot& slot, const Request& request);
Answer getOperationMode(Slot& slot, const Request& request);
Answer setOperationMode(Slot& slot, const Request& request);
Answer sendDeviceState(Slot& slot, const Request& request);
Answer getSimTrays(Slot& slot, const Request& request);
Answer setLockData(Slot& slot, const Request& request);
Answer getNecData(Slot& slot, const Request& request);
Answer getProtocolInfo(Slot& slot, const Request& request);
Answer getHeapList(Slot& slot, const Request& request);
Answer getPowerStatistics(Slot& slot, const Request& request);
Answer getRfIccInfo(Slot& slot, const Request& request);

// handlers_redundancy.cpp
Answer controlRedundancy(Slot& slot, const Request& request);
Answer getPacketRoute(Slot& slot, const Request& request);
Answer getPublicKey(Slot& slot, const Request& request);
Answer getRedundancyCapability(Slot& slot, const Request& request);
Answer setRemoteKey(Slot& slot, const Request& request);
Answer syncDataPath(Slot& slot, const Request& request);
bool hasRemoteKey(const Slot& slot, const Request& request); ///< whether the request's call has one

// handlers_sim.cpp
Answer authenticateSim(Slot& slot, const Request& request);
Answer setSimPower(Slot& slot, const Request& request);

} // namespace sim
