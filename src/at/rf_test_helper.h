/// Band bits of the modem as band bits of user interfaces.
#pragma once

#include <cstdint>
#include <string>

class RfTestHelper {
public:
    static constexpr int32_t GSM_900_BIT = 1;
    static constexpr int32_t GSM_1800_BIT = 3;
    static constexpr int32_t GSM_1900_BIT = 4;
    static constexpr int32_t GSM_850_BIT = 7;
    static constexpr int32_t GSM_MAX_BIT = 8;
    static constexpr int32_t UI_MASK_GSM900_BIT = 8;
    static constexpr int32_t UI_MASK_GSM1800_BIT = 7;
    static constexpr int32_t UI_MASK_GSM1900_BIT = 21;
    static constexpr int32_t UI_MASK_GSM850_BIT = 19;
    static constexpr int32_t WCDMA_MAX_BIT = 32;
    static constexpr int32_t UI_MASK_WCDMAB1_BIT = 22;
    static constexpr int32_t UI_MASK_WCDMAB2_BIT = 23;
    static constexpr int32_t UI_MASK_WCDMAB4_BIT = 25;
    static constexpr int32_t UI_MASK_WCDMAB5_BIT = 26;
    static constexpr int32_t UI_MASK_WCDMAB8_BIT = 49;
    static constexpr int32_t UI_MASK_WCDMAB9_BIT = 50;
    static constexpr int32_t UI_MASK_WCDMAB19_BIT = 60;
    static constexpr int32_t UI_MASK_CDMABC0_BIT = 1;

    /// Bits without a counterpart are dropped.
    static uint64_t convertGSMBandBit2UIbit(int modemMask);
    static uint64_t convertWCDMABandBit2UIbit(int modemMask);

    /// Whether a text is one that the functions below read a mask from.
    static bool isCDMAMask(const std::string& text);
    static bool isEPBSEHMask(const std::string& text);

    /// A mask of band classes, in decimal or, behind "0x", in hexadecimal digits; any other text gives 0.
    static uint64_t convertCDMABandBit2UIbit(const std::string& text);

    /// The low and the high 64 bits of a number of up to 32 hexadecimal digits (of a longer one, of its last
    /// 32), perhaps behind "0x"; any other text gives 0.
    static uint64_t parserEPBSEHLow(const std::string& text);
    static uint64_t parserEPBSEHHigh(const std::string& text);
};
