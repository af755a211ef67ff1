/// Whether a request is one that the catalogue knows.
#pragma once

#include "value.h"

#include <string>

namespace sim {

struct CheckedRequest {
    const MessageSpec* spec = nullptr; ///< null when the request fits no row
    Fields fields;
    std::string reason; ///< why it does not fit
};

/// Compares a request with the rows of its id: no field missing, none too many, each of its width. The
/// message functions can't list the fields of a message, so only tags that stand anywhere in the catalogue
/// are looked for, and an empty array can't be told from an absent one.
CheckedRequest checkRequest(const vorn_msg_t& request, const Protocol& protocol = Protocol::instance());

} // namespace sim
