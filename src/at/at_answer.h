/// What the interpreters of answers share.
#pragma once

#include "at/at_callbacks.h"

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace at {

/// Interprets accepted answers: `read(answer, record)` tells whether they held what was asked for. A refused one is a
/// failure.
template <typename Read>
AtResponseCallback::Function ifAccepted(Read read)
{
    return [=](const mindroid::sp<mindroid::Parcel>& answer, RadioApisResultType* record) {
        return answer->getBoolean() && read(*answer, *record) ? RADIO_APIS_SUCCESS : RADIO_APIS_FAILURE;
    };
}

/// Takes the next field off a parsed answer: its value when it is an integer, nothing for another kind. Throws
/// when there is none.
std::optional<int32_t> nextInteger(mindroid::Parcel& answer);

/// Interprets the answer to the question for one value. `store` is given the answer's first field, when that is
/// an integer, and returns what it kept; a field of another kind leaves the record zero and is a success, too.
/// Each step is logged with the names of the method and of the value.
AtResponseCallback::Function singleValue(const char* method, const char* value,
                                         int32_t (*store)(RadioApisResultType& record, int32_t field));

/// Fills `rsp.atValues` with the integers that an accepted answer begins with; fewer fields than `least` are a
/// failure.
AtResponseCallback::Function severalValues(int least);

using Pieces = std::vector<std::string_view>;

/// What is between the commas of an accepted answer's raw text, without the blanks and quotes around it. Throws when
/// there is none.
Pieces nextPieces(mindroid::Parcel& answer);

/// The whole text as a number; nothing when it is none, or one that does not fit.
template <typename Number>
std::optional<Number> toNumber(std::string_view digits, int base = 10)
{
    Number number = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number, base);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

} // namespace at
