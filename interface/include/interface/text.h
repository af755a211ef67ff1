/// Records and requests as people read them.
#pragma once

#include "interface/records.h"

#include <string>

namespace interface {

/// A record as text: its values one below the other, its lists of records as tables; "ok" when nothing is to be told.
/// Numbers have their units and names, unless they are wanted raw. Of a record without a description all is raw.
std::string asText(const Json& record, const Record* description, bool raw);

/// The request and its arguments: `set-ca-status rat enable`.
std::string synopsis(const Request& request);

/// A command line that shows how the request is used.
std::string exampleOf(const Request& request);

/// Meaning, arguments with their limits, answer, function and an example, with `usage` above and `moreArguments` behind
/// the arguments.
std::string helpOf(const Request& request, const std::string& usage, const std::string& moreArguments);

/// Lines of at most 100 characters; all but the first one are indented.
std::string wrapped(const std::string& text, size_t indent);

} // namespace interface
