/// Records as JSON and back, by their descriptions.
#pragma once

#include "interface/description.h"

#include <nlohmann/json.hpp>

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace interface {

using Json = nlohmann::ordered_json;

/// Values that don't fit; the message names the place and tells why.
class ArgumentError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Whether "@FILE" stands for the bytes in a file. Only for callers who may read what this process may.
enum class Files : uint8_t { AreTexts, AreRead };

/// The members of a record of record.size bytes at `data`: numbers, characters as text, bytes as hexadecimal digits,
/// lists up to what counts of them and never beyond what the record holds. Unused members are left out. Characters
/// outside of ASCII, and those that steer terminals, are shown as \xNN.
Json toJson(const Record& record, const void* data);

/// What the numbers of a record as toJson() gives it mean, in the same shape: {"unit": ...} and {"name": ...}. Members
/// of which there is nothing to tell are left out.
Json explanations(const Record& record, const Json& shown);

/// Whether a member of the record, or of a record in it, tells of the modem's failure.
bool tellsFailure(const Record& record, const void* data);

/// Fills record.size zeroed bytes at `data` from members as toJson() gives them. Numbers may be texts, too, for
/// hexadecimal ones and for names of values; what is not given stays zero, and members that count follow from what is
/// given unless they are given themselves. Throws ArgumentError that names `where`.
void fromJson(const std::string& where, const Record& record, const Json& in, void* data,
              Files files = Files::AreTexts);

/// Bytes from hexadecimal digits, or a file. Throws ArgumentError that names `where`.
std::vector<uint8_t> bytesFrom(const std::string& where, const Json& in, Files files);

/// A number as people read it: "NR (5)", "-85 dBm", "7".
std::string explained(const Meaning& meaning, const Json& number);

/// How values are written, with all limits: "4 to 64 bytes as hexadecimal digits or @FILE, a multiple of 4".
std::string formOf(const Argument& argument);
std::string formOf(const Member& member);

} // namespace interface
