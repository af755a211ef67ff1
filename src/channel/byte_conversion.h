/// Bytes as hexadecimal text and as big-endian numbers, the forms in which AT commands and callers carry
/// them.
#pragma once

#include <cstdint>

/// Writes two upper-case digits per byte, and no terminating NUL; a length of 0 or less writes nothing.
/// @return `bytes`
const uint8_t* byteArrayToHexString(const uint8_t* bytes, int length, char* out);

/// Reads pairs of digits of either case. -1, with the bytes before it written and `*outLength` untouched, at
/// the first pair that is not two digits - which the last one of an odd number is not; else 0 and the number
/// of bytes.
int hexStringToByteArray(const char* hex, uint8_t* out, int* outLength);

/// Four bytes, most significant first.
void intToByteArray(int32_t value, uint8_t* out);
int32_t byteArrayToInt(const uint8_t* bytes);

/// Groups of four bytes; `*count` is their number, a remainder is ignored.
void byteArrayToIntArray(const uint8_t* bytes, int length, int32_t* out, int* count);

/// Four bytes per value; a count of 0 or less writes nothing.
void intArrayToByteArray(const int32_t* values, int count, uint8_t* out);
