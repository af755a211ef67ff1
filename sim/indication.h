/// An indication that the modem is to send, as scenarios and control commands write it.
#pragma once

#include "value.h"

namespace sim {

struct Indication {
    const MessageSpec* spec = nullptr;
    int slot = 0;
    Fields fields = {}; ///< those given; the others have what suits the slot when it is sent
    uint32_t times = 1;
};

/// {"message": NAME or ID, "slot": N, "fields": {NAME: VALUE...} or "value": NUMBER, "times": N}; reads these
/// members only. The name may lack its end "Ind" or "EventInd" and be written with dashes and in lower case.
/// A value is that of the only field. Throws ScenarioError.
Indication indicationFromJson(JsonNode& node);

/// The indication of this name in the catalogue, which has to be there.
Indication indicationNamed(std::string_view name, int slot, Fields fields = {});

} // namespace sim
