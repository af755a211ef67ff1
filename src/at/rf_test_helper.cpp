#include "at/rf_test_helper.h"

#include "at/at_answer.h"
#include "at/at_log.h"

#include <span>

using at::kTag;
using at::toNumber;

namespace {

/// Where a bit of the modem's mask goes.
struct BitMove {
    int from;
    int to;
};

constexpr BitMove kGsmBits[] = {
    {RfTestHelper::GSM_900_BIT, RfTestHelper::UI_MASK_GSM900_BIT},
    {RfTestHelper::GSM_1800_BIT, RfTestHelper::UI_MASK_GSM1800_BIT},
    {RfTestHelper::GSM_1900_BIT, RfTestHelper::UI_MASK_GSM1900_BIT},
    {RfTestHelper::GSM_850_BIT, RfTestHelper::UI_MASK_GSM850_BIT},
};

/// Band n is bit n - 1 of the modem's mask.
constexpr BitMove kWcdmaBits[] = {
    {0, RfTestHelper::UI_MASK_WCDMAB1_BIT},   {1, RfTestHelper::UI_MASK_WCDMAB2_BIT},
    {3, RfTestHelper::UI_MASK_WCDMAB4_BIT},   {4, RfTestHelper::UI_MASK_WCDMAB5_BIT},
    {7, RfTestHelper::UI_MASK_WCDMAB8_BIT},   {8, RfTestHelper::UI_MASK_WCDMAB9_BIT},
    {18, RfTestHelper::UI_MASK_WCDMAB19_BIT},
};

uint64_t moveBits(const char* function, uint32_t mask, std::span<const BitMove> moves)
{
    uint64_t moved = 0;
    for (const BitMove& move : moves) {
        if ((mask >> move.from & 1) != 0) {
            moved |= uint64_t{1} << move.to;
        }
    }
    zorLogD(kTag, "%s change from 0x%x to 0x%llx", function, mask, static_cast<unsigned long long>(moved));
    return moved;
}

bool removeHexPrefix(std::string_view& text)
{
    const bool present = text.starts_with("0x") || text.starts_with("0X");
    text.remove_prefix(present ? 2 : 0);
    return present;
}

std::optional<uint64_t> toBandClasses(std::string_view digits)
{
    const int base = removeHexPrefix(digits) ? 16 : 10;
    return toNumber<uint64_t>(digits, base);
}

constexpr size_t kHalf = 16; ///< digits of 64 bits

uint64_t parseHalf(const char* function, std::string_view digits)
{
    const uint64_t mask = toNumber<uint64_t>(digits, 16).value_or(0);
    zorLogD(kTag, "%s 64 bits=[%.*s]  ret=0x%llx", function, static_cast<int>(digits.size()), digits.data(),
            static_cast<unsigned long long>(mask));
    return mask;
}

} // namespace

uint64_t RfTestHelper::convertGSMBandBit2UIbit(int modemMask)
{
    return moveBits(__func__, static_cast<uint32_t>(modemMask), kGsmBits);
}

uint64_t RfTestHelper::convertWCDMABandBit2UIbit(int modemMask)
{
    return moveBits(__func__, static_cast<uint32_t>(modemMask), kWcdmaBits);
}

bool RfTestHelper::isCDMAMask(const std::string& text)
{
    return toBandClasses(text).has_value();
}

bool RfTestHelper::isEPBSEHMask(const std::string& text)
{
    std::string_view digits = text;
    removeHexPrefix(digits);
    return !digits.empty() && digits.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

uint64_t RfTestHelper::convertCDMABandBit2UIbit(const std::string& text)
{
    const uint64_t bandClass0 = toBandClasses(text).value_or(0) & 1;
    const uint64_t mask = bandClass0 << UI_MASK_CDMABC0_BIT;
    zorLogD(kTag, "%s change from %s to 0x%llx", __func__, text.c_str(),
            static_cast<unsigned long long>(mask));
    return mask;
}

uint64_t RfTestHelper::parserEPBSEHLow(const std::string& text)
{
    std::string_view digits = text;
    removeHexPrefix(digits);
    return parseHalf(__func__, digits.substr(digits.size() - std::min(digits.size(), kHalf)));
}

uint64_t RfTestHelper::parserEPBSEHHigh(const std::string& text)
{
    std::string_view digits = text;
    removeHexPrefix(digits);
    digits.remove_suffix(std::min(digits.size(), kHalf));
    return parseHalf(__func__, digits.substr(digits.size() - std::min(digits.size(), kHalf)));
}
