/// What the modem's indications tell when nobody says what: the state of their slot.
#pragma once

#include "slot.h"

#include <span>

namespace sim {

/// Of what an indication tells.
struct Subject {
    std::span<const Slot> slots;
    const Slot& slot; ///< the one that it is of
};

/// The fields of an indication as the modem would send it right now.
Fields contentsOf(const MessageSpec& indication, const Subject& subject);

/// A block in field 256, which is all that many indications have.
Fields blockContents(Bytes block);

// contents_cells.cpp
Fields alertContents(const Subject& subject);
Fields allCellContents(const Subject& subject);
Fields mccContents(const Subject& subject);
Fields necContents(const Subject& subject);
Fields networkSelectContents(const Subject& subject);
Fields qosEventContents(const Subject& subject);
Fields qosPeriodContents(const Subject& subject);
Fields servingCellContents(const Subject& subject);
Fields veyraCellContents(const Subject& subject);

// contents_settings.cpp
Fields actionResultContents(const Subject& subject);
Fields atomContents(const Subject& subject);
Fields hyperUplinkContents(const Subject& subject);
Fields rlkContents(const Subject& subject);
Fields rtpControlContents(const Subject& subject);
Fields sceneModeContents(const Subject& subject);
Fields sidoIssueContents(const Subject& subject);
Fields smlContents(const Subject& subject);
Fields veyraEventContents(const Subject& subject);

/// Whether the hyper uplink was set to any mode.
bool isHyperUplinkOn(const Slot& slot);

/// What came of a network action, sent or rolled back: its number and type, success, and its four values.
Bytes actionOutcome(const Fields& action);

// contents_device.cpp
Fields callStateContents(const Subject& subject);
Fields logContents(const Subject& subject);
Fields multiSimContents(const Subject& subject);
Fields packetRouteContents(const Subject& subject);
Fields rfIccClatContents(const Subject& subject);
Fields rfIccEventContents(const Subject& subject);
Fields rfIccSharingContents(const Subject& subject);
Fields rtpSessionContents(const Subject& subject);
Fields singleSimContents(const Subject& subject);
Fields testContents(const Subject& subject);
Fields transmitPowerContents(const Subject& subject);
Fields vodataContents(const Subject& subject);

} // namespace sim
