/// Bands by their numbers, for requests that take and give them as bytes.
#pragma once

#include "interface/records.h"

#include <string>
#include <string_view>
#include <vector>

namespace interface {

/// How the bands of one radio access technology stand in bytes; radio_apis/bands.h tells more.
struct BandTechnology {
    RadioBandRat rat;
    size_t bits;      ///< bits of the shortest list of bands
    size_t firstBit;  ///< the number of the band of bit 0
    size_t mostBytes; ///< whose command is never cut; of one number the bytes that are sent

    /// As on a command line: nr-second.
    std::string name() const;
};

/// Throws ArgumentError for a name that there isn't.
const BandTechnology& bandTechnology(const std::string& name);

/// Null for a number that there isn't.
const BandTechnology* bandTechnology(int64_t rat);

/// The bytes of bands, from their numbers with commas between them: "1,3,7", "n78"; of GSM 850, 900, 1800 or 1900, of
/// CDMA band classes. Throws ArgumentError.
std::vector<uint8_t> bytesOfBands(const BandTechnology& technology, std::string_view list);

/// The other way round.
std::string bandsOfBytes(const BandTechnology& technology, std::span<const uint8_t> bytes);

} // namespace interface
