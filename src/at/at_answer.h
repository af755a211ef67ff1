/// What the interpreters of answers share.
#pragma once

#include "at/at_callbacks.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace at {

/// Takes the next field off a parsed answer: its value when it is an integer, nothing for another kind. Throws
/// when there is none.
std::optional<int32_t> nextInteger(mindroid::Parcel& answer);

/// The first field of an accepted answer when it is an integer; nothing for every other answer.
std::optional<int32_t> firstInteger(const mindroid::sp<mindroid::Parcel>& answer);

/// Interprets the answer to the question for one value. `store` is given the answer's first field, when that is
/// an integer, and returns what it kept; a field of another kind leaves the record zero and is a success, too.
/// Each step is logged with the names of the method and of the value.
AtResponseCallback::Function singleValue(const char* method, const char* value,
                                         int32_t (*store)(RadioApisResultType& record, int32_t field));

/// Fills `rsp.atValues` with the integers that an accepted answer begins with; fewer fields than `least` are a
/// failure.
AtResponseCallback::Function severalValues(int least);

using Pieces = std::vector<std::string_view>;

/// What is between the commas of an accepted answer's raw text, without the blanks and quotes around it;
/// nothing when the answer was refused. Throws when it has no data.
std::optional<Pieces> acceptedPieces(const mindroid::sp<mindroid::Parcel>& answer);

/// A decimal number; nothing when the piece is none.
std::optional<int32_t> toInteger(std::string_view piece);

} // namespace at
