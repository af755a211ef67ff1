/// Every event that radioctl knows: one row each.
#pragma once

#include "radioctl/request.h"

#include <string>
#include <vector>

namespace radioctl {

struct Event {
    std::string name; ///< on the command line: RADIO_EVENT_TEST_IND is test
    RADIO_EVENT_TYPE type;
    size_t size;                           ///< of its record
    std::function<Json(const void*)> show; ///< the record's members
};

/// All events, in the order of their numbers.
const std::vector<Event>& events();

/// Null when there is none of that name.
const Event* findEvent(std::string_view name);

} // namespace radioctl
