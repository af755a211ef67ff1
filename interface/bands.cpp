#include "interface/bands.h"

#include "interface/names.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

namespace interface {

namespace {

constexpr BandTechnology kTechnologies[] = {
    {RADIO_BAND_GSM, 32, 0, 4},  {RADIO_BAND_UMTS, 32, 1, 4},  {RADIO_BAND_CDMA, 32, 0, 4},
    {RADIO_BAND_LTE, 32, 1, 64}, {RADIO_BAND_NR, 128, 1, 112}, {RADIO_BAND_NR_SECOND, 128, 1, 108},
};

/// Bits of GSM's mask, by the band's name in MHz.
constexpr std::pair<int, size_t> kGsmBands[] = {{900, 1}, {1800, 3}, {1900, 4}, {850, 7}};

bool isNr(const BandTechnology& technology)
{
    return technology.bits == 128;
}

/// Where the byte with a bit stands: LTE has a number of 32 bits for each 32 bands, the others have one.
size_t byteOfBit(const BandTechnology& technology, size_t bit, size_t size)
{
    return technology.rat == RADIO_BAND_LTE ? bit / 32 * 4 + 3 - bit % 32 / 8 : size - 1 - bit / 8;
}

int bandNumber(std::string_view word, int least, int most)
{
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size() || number < least || number > most) {
        throw ArgumentError(fmt::format("--bands: '{}' is not a number from {} to {}", word, least, most));
    }
    return number;
}

size_t bitOfBand(const BandTechnology& technology, std::string_view word)
{
    constexpr int kMostBands = 512;
    std::string_view digits = word;
    digits.remove_prefix(isNr(technology) && (word.starts_with('n') || word.starts_with('N')) ? 1 : 0);
    if (technology.rat == RADIO_BAND_GSM) {
        const int band = bandNumber(digits, 0, 9999);
        const auto* found = std::ranges::find(kGsmBands, band, &std::pair<int, size_t>::first);
        if (found == std::end(kGsmBands)) {
            throw ArgumentError(fmt::format("--bands: '{}' is none of 850, 900, 1800 and 1900", word));
        }
        return found->second;
    }
    const auto first = static_cast<int>(technology.firstBit);
    const int most = technology.bits == 32 && technology.rat != RADIO_BAND_LTE ? 31 + first : kMostBands;
    return static_cast<size_t>(bandNumber(digits, first, most) - first);
}

std::string bandText(const BandTechnology& technology, size_t bit)
{
    if (technology.rat == RADIO_BAND_GSM) {
        const auto* found = std::ranges::find(kGsmBands, bit, &std::pair<int, size_t>::second);
        return found == std::end(kGsmBands) ? fmt::format("bit {}", bit) : std::to_string(found->first);
    }
    return fmt::format("{}{}", isNr(technology) ? "n" : "", bit + technology.firstBit);
}

} // namespace

std::string BandTechnology::name() const
{
    for (const auto& value : findRequest("radioSetBandPrefer")->arguments.front().meaning.values) {
        if (value.value == rat) {
            return wordOf(value);
        }
    }
    return "";
}

const BandTechnology& bandTechnology(const std::string& name)
{
    const auto* found = std::ranges::find(kTechnologies, name, &BandTechnology::name);
    if (found == std::end(kTechnologies)) {
        throw ArgumentError(fmt::format("rat: '{}' is none of gsm, umts, cdma, lte, nr and nr-second", name));
    }
    return *found;
}

const BandTechnology* bandTechnology(int64_t rat)
{
    const auto* found =
        std::ranges::find(kTechnologies, rat, [](const auto& known) { return int64_t{known.rat}; });
    return found != std::end(kTechnologies) ? found : nullptr;
}

std::vector<uint8_t> bytesOfBands(const BandTechnology& technology, std::string_view list)
{
    std::vector<size_t> bits;
    size_t room = technology.bits;
    for (size_t begin = 0; begin <= list.size();) {
        const size_t end = std::min(list.find(',', begin), list.size());
        bits.push_back(bitOfBand(technology, list.substr(begin, end - begin)));
        room = std::max(room, (bits.back() / 32 + 1) * 32);
        begin = end + 1;
    }
    std::vector<uint8_t> bytes(room / 8);
    for (const size_t bit : bits) {
        bytes[byteOfBit(technology, bit, bytes.size())] |= static_cast<uint8_t>(1U << bit % 8);
    }
    return bytes;
}

std::string bandsOfBytes(const BandTechnology& technology, std::span<const uint8_t> bytes)
{
    std::vector<std::string> bands;
    for (size_t bit = 0; bit < bytes.size() * 8; ++bit) {
        if ((bytes[byteOfBit(technology, bit, bytes.size())] >> bit % 8 & 1) != 0) {
            bands.push_back(bandText(technology, bit));
        }
    }
    return fmt::format("{}", fmt::join(bands, ","));
}

} // namespace interface
