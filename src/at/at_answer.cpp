#include "at/at_answer.h"

#include "at/at_cmd_parser.h"
#include "at/at_log.h"

using mindroid::Parcel;

namespace at {

namespace {

std::string_view withoutAround(std::string_view text, std::string_view characters)
{
    const size_t begin = text.find_first_not_of(characters);
    return begin == std::string_view::npos
               ? std::string_view()
               : text.substr(begin, text.find_last_not_of(characters) - begin + 1);
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

AtResponseCallback::Function singleValue(const char* method, const char* value,
                                         int32_t (*store)(RadioApisResultType&, int32_t))
{
    return ifAccepted([=](Parcel& answer, RadioApisResultType& record) {
        const int count = answer.getInt();
        zorLogD(kTag, "VornAtClient::%s len=%d", method, count);
        if (count < 1) {
            return false;
        }
        const int8_t kind = answer.getByte();
        zorLogD(kTag, "VornAtClient::%s type=%d", method, kind);
        if (kind == AtCmdParser::kInteger) {
            const int kept = store(record, answer.getInt());
            zorLogD(kTag, "VornAtClient::%s %s=%d", method, value, kept);
        }
        return true;
    });
}

AtResponseCallback::Function severalValues(int least)
{
    return ifAccepted([=](Parcel& answer, RadioApisResultType& record) {
        const int fields = answer.atEnd() ? 0 : answer.getInt();
        auto& values = record.rsp.atValues;
        for (int i = 0; i < fields && values.count < kRadioMaxAtValues; ++i) {
            const auto value = nextInteger(answer);
            if (!value) {
                break;
            }
            values.values[values.count++] = *value;
        }
        return fields >= least;
    });
}

Pieces nextPieces(Parcel& answer)
{
    std::string_view text = answer.getString();
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

} // namespace at
