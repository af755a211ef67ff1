/// Numbers of any of the description's types.
#pragma once

#include "interface/records.h"

namespace interface {

size_t sizeOf(Type type);

/// Of a number of this type at `data`, which may have any alignment.
Json loadNumber(const Meaning& meaning, Type type, const uint8_t* data);
void storeNumber(Type type, uint64_t bits, uint8_t* data);

/// The two's complement of a number that is given as such, as a text, or by one of its names. Throws ArgumentError that
/// names `where`.
uint64_t parseNumber(const std::string& where, const Meaning& meaning, Type type, const Json& in);

/// What the elements of a list mean: its bounds are those of its length.
Meaning elementOf(Meaning list);

/// "0 to 255", "lte (4), nr (5) or a number", with the unit.
std::string numberForm(const Meaning& meaning, Type type);

/// "at most 20", "1 to 2048".
std::string countForm(const Range& range);

/// "4 to 64 bytes as hexadecimal digits or @FILE, a multiple of 4".
std::string bytesForm(const Range& range);

/// Throws ArgumentError when so many are not allowed.
void checkCount(const std::string& where, size_t count, const Range& range, std::string_view what);

} // namespace interface
