#include "at/at_answer.h"

#include "at/at_cmd_parser.h"
#include "at/at_log.h"

#include <charconv>

using mindroid::Parcel;
using mindroid::sp;

namespace at {

namespace {

std::string_view withoutAround(std::string_view text, std::string_view characters)
{
    const size_t begin = text.find_first_not_of(characters);
    return begin == std::string_view::npos
               ? std::string_view()
               : text.substr(begin, text.find_last_not_of(characters) - begin + 1);
}

Pieces piecesOf(std::string_view text)
{
    Pieces pieces;
    for (;;) {
        const size_t end = text.find(',');
        pieces.push_back(withoutAround(text.substr(0, end), " \""));
        if (end == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(end + 1);
    }
}

} // namespace

std::optional<int32_t> nextInteger(Parcel& answer)
{
    if (answer.getByte() == AtCmdParser::kInteger) {
        return answer.getInt();
    }
    answer.getString();
    return std::nullopt;
}

std::optional<int32_t> firstInteger(const sp<Parcel>& answer)
{
    const bool accepted = answer->getBoolean();
    return accepted && answer->getInt() >= 1 ? nextInteger(*answer) : std::nullopt;
}

AtResponseCallback::Function singleValue(const char* method, const char* value,
                                         int32_t (*store)(RadioApisResultType&, int32_t))
{
    return [=](const sp<Parcel>& answer, RadioApisResultType* record) {
        if (!answer->getBoolean()) {
            return RADIO_APIS_FAILURE;
        }
        const int count = answer->getInt();
        zorLogD(kTag, "VornAtClient::%s len=%d", method, count);
        if (count < 1) {
            return RADIO_APIS_FAILURE;
        }
        const int8_t kind = answer->getByte();
        zorLogD(kTag, "VornAtClient::%s type=%d", method, kind);
        if (kind == AtCmdParser::kInteger) {
            const int kept = store(*record, answer->getInt());
            zorLogD(kTag, "VornAtClient::%s %s=%d", method, value, kept);
        }
        return RADIO_APIS_SUCCESS;
    };
}

AtResponseCallback::Function severalValues(int least)
{
    return [=](const sp<Parcel>& answer, RadioApisResultType* record) {
        if (!answer->getBoolean()) {
            return RADIO_APIS_FAILURE;
        }
        const int fields = answer->atEnd() ? 0 : answer->getInt();
        auto& values = record->rsp.atValues;
        for (int i = 0; i < fields && values.count < kRadioMaxAtValues; ++i) {
            const auto value = nextInteger(*answer);
            if (!value) {
                break;
            }
            values.values[values.count++] = *value;
        }
        return fields < least ? RADIO_APIS_FAILURE : RADIO_APIS_SUCCESS;
    };
}

std::optional<Pieces> acceptedPieces(const sp<Parcel>& answer)
{
    return answer->getBoolean() ? std::optional(piecesOf(answer->getString())) : std::nullopt;
}

std::optional<int32_t> toInteger(std::string_view piece)
{
    int32_t value = 0;
    const char* end = piece.data() + piece.size();
    const auto [stop, error] = std::from_chars(piece.data(), end, value);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

} // namespace at
