// Bands. +EPBSE has decimal masks - GSM, UMTS, then one per 32 bands of LTE - and +EPBSEH the same sets and those
// of NR as hexadecimal numbers.

#include "requests.h"

#include <charconv>
#include <optional>

namespace sim {
namespace {

constexpr size_t kWordBits = 32;

template <size_t size>
std::bitset<size> bandSet(std::initializer_list<size_t> bands)
{
    std::bitset<size> set;
    for (const size_t band : bands) {
        set.set(band - 1);
    }
    return set;
}

std::optional<uint32_t> toMask(const AtParameter& parameter)
{
    uint32_t mask = 0;
    const char* end = parameter.text.data() + parameter.text.size();
    const auto [stop, error] = std::from_chars(parameter.text.data(), end, mask);
    return !parameter.quoted && error == std::errc() && stop == end ? std::optional(mask) : std::nullopt;
}

/// Takes a set over unless it has bands that the modem lacks.
template <size_t size>
bool adopt(std::bitset<size>& target, const std::bitset<size>& wanted, const std::bitset<size>& supported)
{
    if ((wanted & ~supported).any()) {
        return false;
    }
    target = wanted;
    return true;
}

template <size_t size>
bool adoptMask(std::bitset<size>& target, const AtParameter& parameter, const std::bitset<size>& supported)
{
    const auto mask = toMask(parameter);
    return mask && adopt(target, std::bitset<size>(*mask), supported);
}

/// The masks of LTE: the whole list is replaced, one left out is 0.
bool adoptLte(Bands& bands, std::span<const AtParameter> masks)
{
    std::bitset<kLteBands> wanted;
    if (masks.size() > kLteBands / kWordBits) {
        return false;
    }
    for (size_t i = 0; i < masks.size(); ++i) {
        const auto mask = masks[i].omitted() ? 0 : toMask(masks[i]);
        if (!mask) {
            return false;
        }
        wanted |= std::bitset<kLteBands>(*mask) << (i * kWordBits);
    }
    return adopt(bands.lte, wanted, supportedBands().lte);
}

/// A number in hexadecimal digits within quotes.
template <size_t size>
bool adoptHex(std::bitset<size>& target, const AtParameter& parameter, const std::bitset<size>& supported)
{
    std::bitset<size> wanted;
    for (const char c : parameter.text) {
        uint8_t digit = 0;
        const bool overflows = (wanted >> (size - 4)).any();
        const auto [stop, error] = std::from_chars(&c, &c + 1, digit, 16);
        if (overflows || error != std::errc() || stop != &c + 1) {
            return false;
        }
        wanted = wanted << 4 | std::bitset<size>(digit);
    }
    return parameter.quoted && !parameter.text.empty() && adopt(target, wanted, supported);
}

template <size_t size>
std::string hexText(const std::bitset<size>& set)
{
    std::string text;
    for (size_t bit = size; bit != 0; bit -= 4) {
        const size_t digit = set[bit - 1] * 8U + set[bit - 2] * 4U + set[bit - 3] * 2U + set[bit - 4];
        text += "0123456789ABCDEF"[digit];
    }
    return text;
}

/// Runs `adoptAll` on a copy of the slot's bands and takes it over when all went well.
template <typename Adopt>
AtReply change(const AtCall& call, Adopt adoptAll)
{
    Bands bands = call.slot.bands;
    if (!adoptAll(bands)) {
        return {AtResult::BadParameters};
    }
    call.slot.bands = bands;
    return {};
}

AtReply setMasks(const AtCall& call)
{
    const std::span<const AtParameter> masks = call.parameters;
    return change(call, [&](Bands& bands) {
        const bool gsm = masks[0].omitted() || adoptMask(bands.gsm, masks[0], supportedBands().gsm);
        const bool umts =
            masks.size() < 2 || masks[1].omitted() || adoptMask(bands.umts, masks[1], supportedBands().umts);
        return gsm && umts && (masks.size() < 3 || adoptLte(bands, masks.subspan(2)));
    });
}

std::string masksText(const Bands& bands)
{
    std::string text =
        "+EPBSE: " + std::to_string(bands.gsm.to_ulong()) + "," + std::to_string(bands.umts.to_ulong());
    const std::bitset<kLteBands> word(UINT32_MAX);
    for (size_t i = 0; i < kLteBands; i += kWordBits) {
        text += "," + std::to_string((bands.lte >> i & word).to_ulong());
    }
    return text;
}

/// The second set of NR is written two places behind the first, and read right behind it.
AtReply setHex(const AtCall& call)
{
    const auto& numbers = call.parameters;
    const Bands& supported = supportedBands();
    return change(call, [&](Bands& bands) {
        const auto adoptAt = [&](size_t index, auto& target, const auto& allowed) {
            return index >= numbers.size() || numbers[index].omitted() ||
                   adoptHex(target, numbers[index], allowed);
        };
        return numbers.size() <= 6 && adoptAt(0, bands.gsm, supported.gsm) &&
               adoptAt(1, bands.umts, supported.umts) && adoptAt(2, bands.lte, supported.lte) &&
               adoptAt(3, bands.nr, supported.nr) && adoptAt(5, bands.nrSecond, supported.nrSecond);
    });
}

std::string hexesText(const Bands& bands)
{
    return "+EPBSEH: \"" + hexText(bands.gsm) + "\",\"" + hexText(bands.umts) + "\",\"" + hexText(bands.lte) +
           "\",\"" + hexText(bands.nr) + "\",\"" + hexText(bands.nrSecond) + "\"";
}

AtReply queryMasks(const AtCall& call)
{
    return {AtResult::Ok, {masksText(call.slot.bands)}};
}

AtReply testMasks(const AtCall&)
{
    return {AtResult::Ok, {masksText(supportedBands())}};
}

AtReply queryHex(const AtCall& call)
{
    return {AtResult::Ok, {hexesText(call.slot.bands)}};
}

AtReply testHex(const AtCall&)
{
    return {AtResult::Ok, {hexesText(supportedBands())}};
}

AtReply setBandClasses(const AtCall& call)
{
    return change(call, [&](Bands& bands) {
        return call.parameters.size() == 1 &&
               adoptMask(bands.cdma, call.parameters[0], supportedBands().cdma);
    });
}

AtReply queryBandClasses(const AtCall& call)
{
    return {AtResult::Ok, {"+ECBANDCFG: " + std::to_string(call.slot.bands.cdma.to_ulong())}};
}

constexpr AtRule kWorldModePolicy[] = {{AtRule::Type::Number, 0, 2}};
constexpr AtRule kActiveTechnologies[] = {{AtRule::Type::Number, 0, 2}, {AtRule::Type::Number, 0, 1},
                                          {AtRule::Type::Number, 0, 1}, {AtRule::Type::Number, 0, 1},
                                          {AtRule::Type::Number, 0, 1}, {AtRule::Type::Number, 0, 1}};

} // namespace

const Bands& supportedBands()
{
    static const Bands bands = {
        .gsm = 0x9A, // 900, 1800, 1900 and 850
        .umts = bandSet<32>({1, 2, 4, 5, 8, 9, 19}),
        .cdma = 1,
        .lte = bandSet<kLteBands>({1,  2,  3,  4,  5,  7,  8,  12, 13, 17, 18, 19, 20, 25,
                                   26, 28, 32, 34, 38, 39, 40, 41, 42, 43, 48, 66, 71}),
        .nr = bandSet<kNrBands>({1, 2, 3, 5, 7, 8, 20, 25, 28, 38, 40, 41, 48, 66, 71, 77, 78, 79}),
        .nrSecond = bandSet<kNrBands>({1, 3, 28, 41, 77, 78, 79}),
    };
    return bands;
}

AtReply countTransmitPaths(const AtCall& call)
{
    // Two where the bands of NR are that wide; the technology makes no difference here.
    const auto band = toMask(call.parameters[3]);
    if (!band) {
        return {AtResult::BadParameters};
    }
    const bool wide = *band == 41 || (*band >= 77 && *band <= 79);
    return {AtResult::Ok, {wide ? R"(+EGMC: "QueryTxVerifyIdx",2)" : R"(+EGMC: "QueryTxVerifyIdx",1)"}};
}

Domain bandsRequests()
{
    static constexpr AtCommand commands[] = {
        {.name = "+EPBSE", .set = setMasks, .query = queryMasks, .test = testMasks},
        {.name = "+EPBSEH", .set = setHex, .query = queryHex, .test = testHex},
        {.name = "+ECBANDCFG", .set = setBandClasses, .query = queryBandClasses},
        {.name = "+EWMPOLICY",
         .set = setStored,
         .query = queryStored,
         .rules = kWorldModePolicy,
         .initial = "1"},
        {.name = "+ECSRA",
         .set = setStored,
         .query = queryStored,
         .rules = kActiveTechnologies,
         .initial = "2,0,1,0,1,0"},
    };
    return {.commands = commands};
}

} // namespace sim
