/// Values within JSON, by paths such as neighbours[0].rsrp.
#pragma once

#include "interface/records.h"

namespace interface {

/// Takes a name of letters, digits and underscores off the front of a text; empty when there is none.
std::string_view takeName(std::string_view& text);

/// The value to which the front of `path` leads from `value` on, in steps of .NAME and [INDEX]; `path` loses them. Throws
/// ArgumentError for a member or element that there isn't.
const Json& follow(const Json& value, std::string_view& path);

/// The value to which a whole path leads, which begins with a name. Throws ArgumentError.
const Json& valueAt(const Json& record, std::string_view path);

} // namespace interface
