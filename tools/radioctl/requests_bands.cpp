#include "radioctl/call.h"
#include "radioctl/describe.h"

namespace radioctl {

namespace {

struct BandTechnology {
    const char* name;
    RadioBandRat rat;
    size_t bits;      ///< bits of the shortest list of bands
    size_t firstBit;  ///< the number of the band of bit 0
    size_t mostBytes; ///< whose command is never cut; of one number the bytes that are sent
};

constexpr BandTechnology kTechnologies[] = {
    {"gsm", RADIO_BAND_GSM, 32, 0, 4},   {"umts", RADIO_BAND_UMTS, 32, 1, 4},
    {"cdma", RADIO_BAND_CDMA, 32, 0, 4}, {"lte", RADIO_BAND_LTE, 32, 1, 64},
    {"nr", RADIO_BAND_NR, 128, 1, 112},  {"nr-second", RADIO_BAND_NR_SECOND, 128, 1, 108},
};

constexpr char kTechnologyNames[] = "gsm, umts, cdma, lte, nr or nr-second";
constexpr char kBandForms[] =
    R"(    --bands LIST       band numbers with commas between them: --bands 1,3,7 or --bands n78;
                       of gsm 850, 900, 1800 or 1900, of cdma band classes
    HEX                the bytes themselves, most significant first: 4 of gsm, umts and cdma, a multiple
                       of 4 of the others, up to 64 of lte, 112 of nr and 108 of nr-second
)";

/// Bits of GSM's mask, by the band's name in MHz.
constexpr std::pair<int, size_t> kGsmBands[] = {{900, 1}, {1800, 3}, {1900, 4}, {850, 7}};

/// The bands of one technology.
struct BandList {
    const BandTechnology* technology = nullptr;
    bool current = false;
    std::vector<uint8_t> bytes;
};

const BandTechnology& technologyNamed(std::span<const std::string> words)
{
    const std::string name = words.empty() ? "" : words.front();
    const auto* found = std::ranges::find_if(
        kTechnologies, [&](const BandTechnology& technology) { return name == technology.name; });
    if (found == std::end(kTechnologies)) {
        throw UsageError(fmt::format("rat: '{}' is none of {}", name, kTechnologyNames));
    }
    return *found;
}

/// Where the byte with a bit stands: LTE has a number of 32 bits for each 32 bands, the others have one.
size_t byteOfBit(const BandTechnology& technology, size_t bit, size_t size)
{
    return technology.rat == RADIO_BAND_LTE ? bit / 32 * 4 + 3 - bit % 32 / 8 : size - 1 - bit / 8;
}

size_t bitOfBand(const BandTechnology& technology, std::string_view word)
{
    constexpr int kMostBands = 512;
    const bool isNr = technology.rat == RADIO_BAND_NR || technology.rat == RADIO_BAND_NR_SECOND;
    std::string_view digits = word;
    digits.remove_prefix(isNr && (word.starts_with('n') || word.starts_with('N')) ? 1 : 0);
    if (technology.rat == RADIO_BAND_GSM) {
        const int band = parseNumber<int>("--bands", digits);
        const auto* found = std::ranges::find(kGsmBands, band, &std::pair<int, size_t>::first);
        if (found == std::end(kGsmBands)) {
            throw UsageError(fmt::format("--bands: '{}' is none of 850, 900, 1800 and 1900", word));
        }
        return found->second;
    }
    const auto first = static_cast<int>(technology.firstBit);
    const int most = technology.bits == 32 && technology.rat != RADIO_BAND_LTE ? 31 + first : kMostBands;
    return static_cast<size_t>(parseNumber<int>("--bands", digits, first, most) - first);
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

std::string bandText(const BandTechnology& technology, size_t bit)
{
    if (technology.rat == RADIO_BAND_GSM) {
        const auto* found = std::ranges::find(kGsmBands, bit, &std::pair<int, size_t>::second);
        return found == std::end(kGsmBands) ? fmt::format("bit {}", bit) : std::to_string(found->first);
    }
    return fmt::format("{}{}", technology.bits == 128 ? "n" : "", bit + technology.firstBit);
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

Json showBands(const BandTechnology& technology, std::span<const uint8_t> bytes)
{
    return {{"rat", technology.name},
            {"bands", bandsOfBytes(technology, bytes)},
            {"bytes", fmt::format("{:02x}", fmt::join(bytes, ""))}};
}

Argument bandsToSet()
{
    const auto parse = [](std::span<const std::string> words) -> std::any {
        BandList list{&technologyNamed(words)};
        const bool byNumber = words.size() == 3 && words[1] == "--bands";
        if (!byNumber && words.size() != 2) {
            throw UsageError("bands: RAT --bands LIST or RAT HEX is wanted");
        }
        list.bytes = byNumber ? bytesOfBands(*list.technology, words[2])
                              : parseBytes("bands", words[1], 4, list.technology->mostBytes);
        return list;
    };
    return {"bands", kTechnologyNames, "RAT --bands LIST or RAT HEX", parse, true, kBandForms};
}

Argument bandsToGet()
{
    const auto parse = [](std::span<const std::string> words) -> std::any {
        const bool current = words.size() == 2 && words[1] == "--current";
        if (words.size() > 1 && !current) {
            throw UsageError(fmt::format("rat: '{}' is not --current", words[1]));
        }
        return BandList{&technologyNamed(words), current, {}};
    };
    return {"rat", kTechnologyNames, "RAT, or RAT --current for the bands in use", parse, true, ""};
}

Json showPreferredBands(const Rsp& rsp)
{
    const auto& record = rsp.bandPrefer;
    const auto* technology =
        std::ranges::find_if(kTechnologies, [&](const auto& known) { return known.rat == record.rat; });
    const size_t length = std::min<size_t>(record.length, std::size(record.bands));
    Json shown = showBands(*technology, std::span(record.bands).first(length));
    shown["current"] = record.current;
    return shown;
}

} // namespace

template <>
inline constexpr auto kMembers<RadioBandModes> =
    std::tuple{member("gsm", &RadioBandModes::gsm), member("umts", &RadioBandModes::umts),
               countedMember("lte", &RadioBandModes::lte, "lteWords", &RadioBandModes::lteWords)};

template <>
inline constexpr auto kMembers<RadioBandInfo> =
    std::tuple{member("nwType", &RadioBandInfo::nwType), member("low", &RadioBandInfo::low),
               member("high", &RadioBandInfo::high)};

template <>
inline constexpr auto kMembers<RadioBandTxNum> = std::tuple{member("bandTxNum", &RadioBandTxNum::bandTxNum)};

std::vector<Request> bandRequests()
{
    const std::string group = "Bands";
    return {
        {"radioSetBandPrefer",
         group,
         "Set the bands that the modem may use",
         {bandsToSet()},
         [](const Arguments& in, Reply to) {
             const auto& list = in.at<BandList>(0);
             return radioSetBandPrefer(list.technology->rat, list.bytes.data(),
                                       static_cast<unsigned>(list.bytes.size()), to.userData, to.callback);
         },
         nullptr,
         [](const Arguments& in) {
             const auto& list = in.at<BandList>(0);
             return showBands(*list.technology, list.bytes);
         }},
        {"radioGetBandPrefer",
         group,
         "The bands that the modem could or may use",
         {bandsToGet()},
         [](const Arguments& in, Reply to) {
             const auto& list = in.at<BandList>(0);
             return radioGetBandPrefer(list.technology->rat | (list.current ? kRadioCurrentBands : 0),
                                       to.userData, to.callback);
         },
         showPreferredBands},
        {"radioGetAvailableBandModes",
         group,
         "The masks of the bands in use with GSM, UMTS and LTE",
         {},
         call(radioGetAvailableBandModes),
         show(&Rsp::bandModes)},
        {"radioGetBand",
         group,
         "The bands that the modem could use, in the bits of user interfaces",
         {number<int>("nwType", "0 GSM, 1 UMTS, 3 CDMA, 4 LTE, 5 NR", 0, 5)},
         call(radioGetBand),
         show(&Rsp::bandInfo)},
        {"radioGetBandsTxNum",
         group,
         "How many transmit paths a band has",
         {number<int>("radioTech", "radio access technology, as the modem numbers them"),
          number<int>("uiBand", "the band"), number<int>("subband", "part of the band")},
         call(radioGetBandsTxNum),
         show(&Rsp::bandTxNumInfo)},
    };
}

} // namespace radioctl
