/// The bands that a slot of the modem may use.
#pragma once

#include <bitset>
#include <cstdint>
#include <string>

namespace sim {

constexpr size_t kLteBands = 256;
constexpr size_t kNrBands = 128;

/// In every set a bit n - 1 stands for band n, but for GSM and CDMA, whose bits are the modem's own.
struct Bands {
    std::bitset<32> gsm;
    std::bitset<32> umts;
    std::bitset<32> cdma;
    std::bitset<kLteBands> lte;
    std::bitset<kNrBands> nr;
    std::bitset<kNrBands> nrSecond;
};

/// What the modem could use.
const Bands& supportedBands();

} // namespace sim
