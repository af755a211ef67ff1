/// The public headers as one JSON document.
#pragma once

#include "comment.h"

#include <nlohmann/json.hpp>

#include <string>

namespace reader {

using Json = nlohmann::ordered_json;

/// Reads the headers below `include`/radio_apis. Throws HeaderError, naming file and line, for what can't be read, and
/// for every argument and member without a meaning.
Json readHeaders(const std::string& include, const Aliases& aliases);

} // namespace reader
