/// The measurement report of VeyraCellInfoInd.
#pragma once

#include "slot.h"

namespace sim {

/// What a slot with service measures, as one subscription of the report: 2172 packed bytes with up to two
/// groups, one for the radio access technology that it camps on and one for the other. A group has a record
/// for each of up to ten frequencies, and these one for each of up to eight cells.
Bytes veyraSubscription(const Slot& slot);

} // namespace sim
