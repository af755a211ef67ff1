#include "radioctl/special.h"

#include "interface/bands.h"
#include "interface/text.h"

#include <fmt/format.h>

#include <algorithm>

namespace radioctl {

namespace {

using interface::Arguments;
using interface::BandTechnology;
using interface::Request;

constexpr char kBandForms[] = R"(
  --bands LIST  band numbers with commas between them: --bands 1,3,7 or --bands n78;
                of gsm 850, 900, 1800 or 1900, of cdma band classes
  HEX           the bytes themselves, most significant first: 4 of gsm, umts and cdma, a multiple
                of 4 of the others, up to 64 of lte, 112 of nr and 108 of nr-second
)";

std::string hex(std::span<const uint8_t> bytes)
{
    return fmt::format("{:02x}", fmt::join(bytes, ""));
}

Json shownBands(int64_t rat, std::span<const uint8_t> bytes)
{
    const BandTechnology* technology = interface::bandTechnology(rat);
    if (technology == nullptr) {
        return {{"rat", rat}, {"bytes", hex(bytes)}};
    }
    return {{"rat", technology->name()},
            {"bands", interface::bandsOfBytes(*technology, bytes)},
            {"bytes", hex(bytes)}};
}

/// RAT --bands LIST or RAT HEX as the description has it.
Words bandsToSet(std::span<const std::string> words)
{
    const BandTechnology& technology = interface::bandTechnology(words.empty() ? "" : words.front());
    const bool byNumber = words.size() == 3 && words[1] == "--bands";
    if (!byNumber && (words.size() != 2 || words[1].starts_with("--"))) {
        throw UsageError("bands: RAT --bands LIST or RAT HEX is wanted");
    }
    const auto bytes = byNumber ? interface::bytesOfBands(technology, words[2])
                                : interface::bytesFrom("bands", words[1], interface::Files::AreRead);
    const size_t size = bytes.size();
    if (size < 4 || size > technology.mostBytes) {
        throw UsageError(
            fmt::format("bands: {} bytes, 4 to {} are allowed, a multiple of 4", size, technology.mostBytes));
    }
    return {std::to_string(technology.rat), hex(bytes)};
}

/// RAT or RAT --current.
Words bandsToGet(std::span<const std::string> words)
{
    const BandTechnology& technology = interface::bandTechnology(words.empty() ? "" : words.front());
    if (words.size() > 1 && words[1] != "--current") {
        throw UsageError(fmt::format("rat: '{}' is not --current", words[1]));
    }
    if (words.size() > 2) {
        throw UsageError(fmt::format("'{}' is one argument too many", words[2]));
    }
    return {std::to_string(technology.rat | (words.size() == 2 ? kRadioCurrentBands : 0))};
}

void showSentBands(const Arguments& sent, Json& record)
{
    record = shownBands(sent.number<int>(0), sent.bytes(1));
}

void showAnsweredBands(const Arguments& /*sent*/, Json& record)
{
    const auto bytes = interface::bytesFrom("bands", record["bands"], interface::Files::AreTexts);
    Json shown = shownBands(record["rat"].get<int64_t>(), bytes);
    shown["current"] = record["current"];
    record = shown;
}

/// The library's command has room for both lists together.
void checkBandLists(const Arguments& in)
{
    constexpr size_t kMostTextBytes = 236;
    const size_t size = std::string_view(in.text(0)).size() + std::string_view(in.text(1)).size();
    if (size > kMostTextBytes) {
        throw UsageError(fmt::format("lteBands and nrBands: {} characters, at most {} are allowed together",
                                     size, kMostTextBytes));
    }
}

/// The library's command of option 1 repeats its numbers, and must have room for all of them.
void checkOutOfService(const Arguments& in)
{
    constexpr size_t kRoom = 223;
    const auto info = in.record<RadioOosCfgInfo>(0);
    const auto size = [](int32_t number, size_t times) { return std::to_string(number).size() * times; };
    const size_t needed =
        size(info.p7, 2) + size(info.p8, 4) + size(info.p9, 6) + size(info.p10, 7) + size(info.p11, 4);
    if (info.option == 1 && needed > kRoom) {
        throw UsageError(
            fmt::format("info: p7 to p11, sent 2, 4, 6, 7 and 4 times, make {} characters, at most {} "
                        "are allowed",
                        needed, kRoom));
    }
}

struct Special {
    std::string_view function;
    const char* usage = "";
    const char* help = "";
    Words (*plain)(std::span<const std::string>) = nullptr; ///< the words as the description has them
    void (*check)(const Arguments&) = nullptr;
    void (*show)(const Arguments&, Json&) = nullptr;
    const char* words = "";
};

constexpr Special kSpecials[] = {
    {"radioSetBandPrefer", "RAT --bands LIST | RAT HEX", kBandForms, bandsToSet, nullptr, showSentBands,
     "--bands"},
    {"radioGetBandPrefer", "RAT [--current]",
     "\n  --current     the bands in use instead of those that could be\n", bandsToGet, nullptr,
     showAnsweredBands, "--current"},
    {.function = "radioSetUst5gUCBandConfig", .check = checkBandLists},
    {.function = "radioSetOosCfg", .check = checkOutOfService},
};

const Special& specialOf(const Request& request)
{
    static constexpr Special kNone;
    const auto* found = std::ranges::find(kSpecials, request.function, &Special::function);
    return found != std::end(kSpecials) ? *found : kNone;
}

} // namespace

Arguments parseArguments(const Request& request, std::span<const std::string> words)
{
    const Special& special = specialOf(request);
    Words plain;
    if (special.plain != nullptr) {
        plain = special.plain(words);
        words = plain;
    } else {
        refuseUnknownOptions(words);
    }
    Arguments arguments = Arguments::fromWords(request, words);
    if (special.check != nullptr) {
        special.check(arguments);
    }
    return arguments;
}

std::string usageOf(const Request& request)
{
    const std::string usage = specialOf(request).usage;
    return usage.empty() ? interface::synopsis(request) : fmt::format("{} {}", request.name, usage);
}

std::string helpOf(const Request& request)
{
    return interface::helpOf(request, usageOf(request), specialOf(request).help);
}

Words specialWords(const Request& request)
{
    const std::string words = specialOf(request).words;
    return words.empty() ? Words() : Words{words};
}

void showSpecially(const Request& request, const Arguments& sent, Json& record)
{
    if (specialOf(request).show != nullptr) {
        specialOf(request).show(sent, record);
    }
}

} // namespace radioctl
