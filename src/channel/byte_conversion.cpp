#include "channel/byte_conversion.h"

#include <optional>

namespace {

std::optional<uint8_t> digitValue(char digit)
{
    if (digit >= '0' && digit <= '9') {
        return static_cast<uint8_t>(digit - '0');
    }
    if (digit >= 'a' && digit <= 'f') {
        return static_cast<uint8_t>(digit - 'a' + 10);
    }
    if (digit >= 'A' && digit <= 'F') {
        return static_cast<uint8_t>(digit - 'A' + 10);
    }
    return std::nullopt;
}

} // namespace

const uint8_t* byteArrayToHexString(const uint8_t* bytes, int length, char* out)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    for (int i = 0; i < length; ++i) {
        *out++ = kDigits[bytes[i] >> 4];
        *out++ = kDigits[bytes[i] & 0x0F];
    }
    return bytes;
}

int hexStringToByteArray(const char* hex, uint8_t* out, int* outLength)
{
    int length = 0;
    for (; *hex != '\0'; hex += 2) {
        const auto high = digitValue(hex[0]);
        const auto low = high ? digitValue(hex[1]) : std::nullopt;
        if (!low) {
            return -1;
        }
        out[length++] = static_cast<uint8_t>(*high << 4 | *low);
    }
    *outLength = length;
    return 0;
}

void intToByteArray(int32_t value, uint8_t* out)
{
    const auto bits = static_cast<uint32_t>(value);
    for (int i = 0; i < 4; ++i) {
        out[i] = static_cast<uint8_t>(bits >> (24 - 8 * i));
    }
}

int32_t byteArrayToInt(const uint8_t* bytes)
{
    uint32_t bits = 0;
    for (int i = 0; i < 4; ++i) {
        bits = bits << 8 | bytes[i];
    }
    return static_cast<int32_t>(bits);
}

void byteArrayToIntArray(const uint8_t* bytes, int length, int32_t* out, int* count)
{
    *count = length < 0 ? 0 : length / 4;
    for (int i = 0; i < *count; ++i, bytes += 4) {
        out[i] = byteArrayToInt(bytes);
    }
}

void intArrayToByteArray(const int32_t* values, int count, uint8_t* out)
{
    for (int i = 0; i < count; ++i, out += 4) {
        intToByteArray(values[i], out);
    }
}
