/// Bands that the modem may use, and those it could.
#include "at/at_answer.h"
#include "at/at_chain_promise.h"
#include "at/at_cmd_parser.h"
#include "at/at_log.h"
#include "at/at_text.h"
#include "at/rf_test_helper.h"
#include "at/vorn_at_client.h"
#include "channel/byte_conversion.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

using at::ifAccepted;
using at::kTag;
using at::Pieces;
using mindroid::make;
using mindroid::Parcel;
using mindroid::sp;

namespace {

/// A mask of 32 bits in decimal digits, which the modem may take for a signed number.
std::optional<uint32_t> toMask(std::string_view digits)
{
    const auto value = at::toNumber<int64_t>(digits);
    const bool fits = value && *value >= INT32_MIN && *value <= UINT32_MAX;
    return fits ? std::optional(static_cast<uint32_t>(*value)) : std::nullopt;
}

/// Where one radio access technology's bands stand in an answer.
struct BandPlace {
    uint16_t rat;
    enum class Form { Mask, Masks, Hex } form;
    const char* currentQuery;
    const char* query;
    size_t first; ///< piece
};

constexpr size_t kLtePiece = 2; ///< the first of as many as there are
constexpr size_t kNrPiece = 3;

constexpr BandPlace kBandPlaces[] = {
    {RADIO_BAND_GSM, BandPlace::Form::Mask, "AT+EPBSE?", "AT+EPBSE=?", 0},
    {RADIO_BAND_UMTS, BandPlace::Form::Mask, "AT+EPBSE?", "AT+EPBSE=?", 1},
    {RADIO_BAND_CDMA, BandPlace::Form::Mask, "AT+ECBANDCFG?", "AT+ECBANDCFG?", 0},
    {RADIO_BAND_LTE, BandPlace::Form::Masks, "AT+EPBSE?", "AT+EPBSE=?", kLtePiece},
    {RADIO_BAND_NR, BandPlace::Form::Hex, "AT+EPBSEH?", "AT+EPBSEH=?", kNrPiece},
    {RADIO_BAND_NR_SECOND, BandPlace::Form::Hex, "AT+EPBSEH?", "AT+EPBSEH=?", 4},
};

const BandPlace* bandPlace(uint16_t rat)
{
    const auto* found = std::ranges::find(kBandPlaces, rat, &BandPlace::rat);
    return found == std::end(kBandPlaces) ? nullptr : found;
}

constexpr char kGetBandPrefer[] = "getBandPrefer";

bool readMasks(std::span<const std::string_view> pieces, RadioBandPrefer& out)
{
    if (pieces.size() > kRadioMaxBandBytes / sizeof(uint32_t)) {
        zorLogE(kTag, "%s : too many bands: %zu", kGetBandPrefer, pieces.size());
        return false;
    }
    for (const std::string_view piece : pieces) {
        const auto mask = toMask(piece);
        if (!mask) {
            zorLogE(kTag, "%s : NumberFormatException!!", kGetBandPrefer);
            return false;
        }
        intToByteArray(static_cast<int32_t>(*mask), out.bands + out.length);
        out.length += sizeof(uint32_t);
    }
    return true;
}

bool readHex(std::string_view digits, RadioBandPrefer& out)
{
    if (digits.starts_with("0x") || digits.starts_with("0X")) {
        digits.remove_prefix(2);
    }
    int length = 0;
    if (digits.size() > 2 * size_t{kRadioMaxBandBytes} ||
        hexStringToByteArray(std::string(digits).c_str(), out.bands, &length) != 0) {
        zorLogE(kTag, "%s : hexStringToByteArray error", kGetBandPrefer);
        return false;
    }
    out.length = static_cast<uint32_t>(length);
    return true;
}

bool readBands(const BandPlace& place, const Pieces& pieces, RadioBandPrefer& out)
{
    switch (place.form) {
    case BandPlace::Form::Mask:
        return readMasks(std::span(pieces).subspan(place.first, 1), out);
    case BandPlace::Form::Masks:
        return readMasks(std::span(pieces).subspan(place.first), out);
    case BandPlace::Form::Hex:
        return readHex(pieces[place.first], out);
    }
    return false;
}

RADIO_APIS_RESULT onBandPrefer(const BandPlace& place, bool current, const sp<Parcel>& answer,
                               RadioApisResultType* result)
{
    zorLogD(kTag, "getBandPrefer cb: type:%d, rat:%d", current ? 1 : 0, place.rat);
    auto& out = result->rsp.bandPrefer;
    out.rat = place.rat;
    out.current = current ? 1 : 0;
    if (!answer->getBoolean()) {
        return RADIO_APIS_FAILURE;
    }
    const Pieces pieces = at::nextPieces(*answer);
    zorLogD(kTag, "getBandPrefer : bands size:%d", static_cast<int>(pieces.size()));
    if (pieces.size() <= place.first) {
        zorLogE(kTag, "%s : un expected bands len returned, expected at least %zu", kGetBandPrefer,
                place.first + 1);
        return RADIO_APIS_FAILURE;
    }
    if (!readBands(place, pieces, out)) {
        out.length = 0;
        return RADIO_APIS_FAILURE;
    }
    return RADIO_APIS_SUCCESS;
}

bool onBandModes(Parcel& answer, RadioApisResultType& record)
{
    const Pieces pieces = at::nextPieces(answer);
    if (pieces.size() < kLtePiece || pieces.size() > kLtePiece + kRadioMaxLteBandWords) {
        return false;
    }
    RadioBandModes modes{};
    uint32_t* const places[] = {&modes.gsm, &modes.umts};
    for (size_t i = 0; i < pieces.size(); ++i) {
        const auto mask = toMask(pieces[i]);
        if (!mask) {
            return false;
        }
        *(i < kLtePiece ? places[i] : &modes.lte[modes.lteWords++]) = *mask;
    }
    record.rsp.bandModes = modes;
    return true;
}

/// The bits of a piece that is a mask. Throws where there is none, as the interpreter of an answer may.
int32_t maskAt(const Pieces& pieces, size_t index)
{
    return static_cast<int32_t>(toMask(pieces.at(index)).value());
}

/// 64 bits out of two masks, of which the answer may have none or one.
uint64_t lteBands(const Pieces& pieces, size_t index)
{
    uint64_t bands = 0;
    for (size_t i = 0; i < 2 && index + i < pieces.size(); ++i) {
        bands |= uint64_t{static_cast<uint32_t>(maskAt(pieces, index + i))} << (32 * i);
    }
    return bands;
}

bool onBand(int nwType, const Pieces& pieces, RadioApisResultType& record)
{
    RadioBandInfo info{nwType, 0, 0};
    switch (nwType) {
    case RADIO_BAND_GSM:
        info.low = RfTestHelper::convertGSMBandBit2UIbit(maskAt(pieces, 0));
        break;
    case RADIO_BAND_UMTS:
        info.low = RfTestHelper::convertWCDMABandBit2UIbit(maskAt(pieces, 1));
        break;
    case RADIO_BAND_LTE:
        if (pieces.size() <= kLtePiece) {
            return false;
        }
        info.low = lteBands(pieces, kLtePiece);
        info.high = lteBands(pieces, kLtePiece + 2);
        break;
    default: // NR
        const std::string mask(pieces.at(kNrPiece));
        if (!RfTestHelper::isEPBSEHMask(mask)) {
            return false;
        }
        info.low = RfTestHelper::parserEPBSEHLow(mask);
        info.high = RfTestHelper::parserEPBSEHHigh(mask);
    }
    record.rsp.bandInfo = info;
    return true;
}

/// The mask is the first field, whatever its kind.
bool onCdmaBand(Parcel& answer, RadioApisResultType& record)
{
    if (answer.getInt() < 1) {
        return false;
    }
    const bool isInteger = answer.getByte() == AtCmdParser::kInteger;
    const std::string mask = isInteger ? std::to_string(answer.getInt()) : std::string(answer.getString());
    if (!RfTestHelper::isCDMAMask(mask)) {
        return false;
    }
    record.rsp.bandInfo = {RADIO_BAND_CDMA, RfTestHelper::convertCDMABandBit2UIbit(mask), 0};
    return true;
}

/// The number is the last field: the name of the item comes first.
bool onBandsTxNum(Parcel& answer, RadioApisResultType& record)
{
    for (int left = answer.getInt(); left > 1; --left) {
        at::nextInteger(answer);
    }
    const auto number = at::nextInteger(answer);
    if (!number) {
        return false;
    }
    record.rsp.bandTxNumInfo.bandTxNum = *number;
    zorLogD(kTag, "%s : result->rsp.bandTxNumInfo.bandTxNum=%d", "getBandsTxNum", *number);
    return true;
}

std::string joinedMasks(const uint8_t* bands, unsigned length)
{
    std::vector<int32_t> masks(length / sizeof(int32_t));
    int count = 0;
    byteArrayToIntArray(bands, static_cast<int>(length), masks.data(), &count);
    std::string text;
    for (const int32_t mask : masks) {
        text += (text.empty() ? "" : ",") + std::to_string(static_cast<uint32_t>(mask));
    }
    return text;
}

std::string hexText(const uint8_t* bytes, unsigned length)
{
    std::string text(2 * size_t{length}, '\0');
    byteArrayToHexString(bytes, static_cast<int>(length), text.data());
    return text;
}

/// The command that sets bands; empty for a technology that has none.
std::string bandCommand(uint16_t rat, const uint8_t* bands, unsigned length)
{
    const auto mask = [&] { return std::to_string(static_cast<uint32_t>(byteArrayToInt(bands))); };
    switch (rat) {
    case RADIO_BAND_GSM:
        return "AT+EPBSE=" + mask();
    case RADIO_BAND_UMTS:
        return "AT+EPBSE=," + mask();
    case RADIO_BAND_CDMA:
        return "AT+ECBANDCFG=" + mask();
    case RADIO_BAND_LTE:
        return "AT+EPBSE=,," + joinedMasks(bands, length);
    case RADIO_BAND_NR:
        return R"(AT+EPBSEH=,,,")" + hexText(bands, length) + '"';
    case RADIO_BAND_NR_SECOND:
        return R"(AT+EPBSEH=,,,,,")" + hexText(bands, length) + '"';
    default:
        return {};
    }
}

} // namespace

int VornAtClient::setBandPrefer(int rat, const unsigned char* bands, unsigned int length, void* userData,
                                RadioRequestCallback cb)
{
    constexpr unsigned kMoreRoom = 128;              // for the command around the bands, and its end
    constexpr unsigned kLongest = 65535 - kMoreRoom; // what a message's field carries
    if (bands == nullptr || length < sizeof(int32_t) || length % sizeof(int32_t) != 0 || length > kLongest) {
        return RADIO_APIS_FAILURE;
    }
    std::string command = bandCommand(static_cast<uint16_t>(rat), bands, length);
    if (command.empty()) {
        zorLogE(kTag, "%s : unsupported setBandPrefer rat: %d", __func__, rat);
        return RADIO_APIS_FAILURE;
    }
    command.resize(std::min<size_t>(command.size(), length + kMoreRoom - 1));
    return sendSetter(command.c_str(), userData, cb);
}

int VornAtClient::getBandPrefer(int rat, void* userData, RadioRequestCallback cb)
{
    const auto selector = static_cast<uint32_t>(rat);
    zorLogE(kTag, "getBandPrefer rat: %d, un signed: %u", rat, selector);
    const BandPlace* place = bandPlace(static_cast<uint16_t>(selector));
    if (place == nullptr) {
        zorLogE(kTag, "%s : unsupported getBandPrefer with request rat: %d", __func__, rat);
        return RADIO_APIS_FAILURE;
    }
    const bool current = selector >> 16 == 1;
    const auto interpreter = [=](const sp<Parcel>& answer, RadioApisResultType* result) {
        return onBandPrefer(*place, current, answer, result);
    };
    return sendAtCommandRspRawStr(current ? place->currentQuery : place->query, userData, cb,
                                  make<AtResponseCallback>(interpreter));
}

int VornAtClient::getAvailableBandModes(void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d", __func__, mInstance);
    return sendAtCommandRspRawStr("AT+EPBSE?", userData, cb,
                                  make<AtResponseCallback>(ifAccepted(onBandModes)));
}

int VornAtClient::getBand(int nwType, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s: ENTER  nwType=%d", __func__, nwType);
    const auto interpreter =
        make<AtResponseCallback>(ifAccepted([=](Parcel& answer, RadioApisResultType& record) {
            return onBand(nwType, at::nextPieces(answer), record);
        }));
    switch (nwType) {
    case RADIO_BAND_GSM:
    case RADIO_BAND_UMTS:
    case RADIO_BAND_LTE:
        return sendAtCommandRspRawStr("AT+EPBSE=?", userData, cb, interpreter);
    case RADIO_BAND_NR:
        return sendAtCommandRspRawStr("AT+EPBSEH=?", userData, cb, interpreter);
    case RADIO_BAND_CDMA: {
        const auto chain = make<AtChain>();
        chain->add("AT+EWMPOLICY=0", completeWithResultVoid);
        chain->add("AT+ECSRA=2,1,0,1,1,0", completeWithResultVoid);
        chain->add("AT+ECBANDCFG?", ifAccepted(onCdmaBand));
        chain->start(this, userData, cb);
        return RADIO_APIS_SUCCESS;
    }
    default:
        zorLogE(kTag, "unknown rat!");
        return RADIO_APIS_FAILURE;
    }
}

int VornAtClient::getBandsTxNum(int radioTech, int uiBand, int subband, void* userData,
                                RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. radioTech=%d, uiBand=%d, subband=%d, slotId=%d", __func__, radioTech, uiBand,
            subband, mInstance);
    const auto chain = make<AtChain>();
    chain->add("AT", completeWithResultVoid);
    chain->add(AtText<64>(R"(AT+EGMC=1,"QueryTxVerifyIdx",%d,%d)", radioTech, uiBand),
               ifAccepted(onBandsTxNum));
    chain->start(this, userData, cb);
    return RADIO_APIS_SUCCESS;
}
