/// A SIM card of the simulated modem.
#pragma once

#include "milenage.h"
#include "value.h"

#include <optional>
#include <string>

namespace sim {

/// What a card and its network share, and what the card remembers.
struct SimSecrets {
    Milenage::Block k{};
    Milenage::Block opc{};
    Milenage::Amf amf{};  ///< of the challenges that are for this key
    uint64_t nextSqn = 0; ///< the lowest sequence number that the card still accepts
};

struct SimCard {
    bool inserted = false;
    bool present = false; ///< inserted and powered
    std::string imsi;
    SimSecrets secrets;
};

/// The "sim" of a scenario's slot. Throws ScenarioError.
SimCard simCardFromJson(JsonNode node);

/// The AUTHENTICATE command of a card (3GPP TS 31.102, in the context of a 3G network): RAND and AUTN, each
/// behind its length, become RES, CK and IK, or AUTS when the sequence number was used before. Nothing when
/// the challenge is malformed or not from the card's network.
std::optional<Bytes> authenticate(SimSecrets& secrets, const Bytes& challenge);

} // namespace sim
