/// What the modem does with a request that fits the catalogue. The public headers group requests by domain, and so do
/// the files requests_DOMAIN.cpp: one handles the messages of its domain, and the AT commands that serve no other.
#pragma once

#include "at_commands.h"
#include "slot.h"

#include <span>
#include <string_view>
#include <vector>

namespace sim {

/// Of the request and the answer that carry AT commands.
inline constexpr uint16_t kAtText = 0x8100;

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

/// One field of what a setter stored under the request's key.
struct StoredField {
    std::string_view setter;
    uint16_t setterField;
    uint16_t answerField;
};

/// A message that does more than to store its fields: it has a handler, or it reads what another one stored.
struct MessageRow {
    std::string_view message;
    Handler handler = nullptr;
    StoredField reads = {};
};

struct Domain {
    std::span<const MessageRow> messages;
    std::span<const AtCommand> commands = {};
};

/// Those that have anything of their own.
std::span<const Domain> domains();

Domain antennaRequests();
Domain atomRequests();
Domain bandsRequests();
Domain campingRequests();
Domain carrierAggregationRequests();
Domain cellInfoRequests();
Domain deviceStateRequests();
Domain imsRequests();
Domain metricsRequests();
Domain multiSimRequests();
Domain networkActionRequests();
Domain nvRequests();
Domain operationModeRequests();
Domain packetRouteRequests();
Domain policyRequests();
Domain powerRequests();
Domain qosRequests();
Domain rfRequests();
Domain rfIccRequests();
Domain rtpRedundancyRequests();
Domain sarRequests();
Domain sceneRequests();
Domain searchRequests();
Domain serviceModeRequests();
Domain simRequests();

Answer handle(Slot& slot, const Request& request);

/// A block in field 256, which is all that many answers have.
Answer blockAnswer(Bytes block);

/// The ids that a request lists; when it lists none, all that were stored. At most `max`.
std::vector<int32_t> wantedIds(std::vector<Bytes> ids, const StoredSettings::ByKey& stored, size_t max);

/// Three words: id, status and sub-policy as they were set.
Bytes atomRecord(const Slot& slot, int32_t id);

/// Whether the call that the request is about has a remote key.
bool hasRemoteKey(const Slot& slot, const Request& request);

/// By which route packets go now.
uint8_t routeOf(const Slot& slot);

/// +EGMC=1,"QueryTxVerifyIdx",<technology>,<band>: a question in the form of a setting.
AtReply countTransmitPaths(const AtCall& call);

} // namespace sim
