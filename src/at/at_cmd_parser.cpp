#include "at/at_cmd_parser.h"

#include "mindroid/exception.h"
#include "mindroid/integer.h"
#include "mindroid/log.h"

#include <algorithm>
#include <array>
#include <string_view>

using mindroid::Log;
using mindroid::Parcel;
using mindroid::sp;
using mindroid::String;

namespace {

constexpr char kParserTag[] = "AtCmdParser";
constexpr std::string_view kLineEnd = "\r\n";

/// The lines of an answer. Only as many are kept as an accepted answer can have; all are counted.
struct Lines {
    std::array<std::string_view, 3> kept;
    size_t count = 0;
    bool framed = false; ///< the answer began with a line end
};

/// Empty lines are line ends too many and don't count, but for an answer that is nothing else.
Lines linesOf(std::string_view answer)
{
    Lines lines;
    if (answer.empty()) {
        lines.kept[lines.count++] = answer;
    }
    lines.framed = answer.starts_with(kLineEnd);
    for (;;) {
        while (answer.starts_with(kLineEnd)) {
            answer.remove_prefix(kLineEnd.size());
        }
        if (answer.empty()) {
            return lines;
        }
        const std::string_view line = answer.substr(0, answer.find(kLineEnd));
        if (lines.count < lines.kept.size()) {
            lines.kept[lines.count] = line;
        }
        ++lines.count;
        answer.remove_prefix(line.size());
    }
}

bool saysOk(std::string_view line)
{
    return line.find("OK") != std::string_view::npos;
}

/// The data of an information line: all of it when it has no ":", else what is between the first and the
/// second.
std::string_view dataOf(std::string_view line)
{
    const size_t prefix = line.find(':');
    if (prefix == std::string_view::npos) {
        return line;
    }
    line.remove_prefix(prefix + 1);
    return line.substr(0, line.find(':'));
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kWhiteSpace = " \t\r\n\v\f";
    text.remove_prefix(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
    return text.substr(0, text.find_last_not_of(kWhiteSpace) + 1);
}

/// Where the text of a field ends, and its value. Two registers hold it.
struct Field {
    const char* end;
    int32_t number;
    bool isNumber;
};

/// The field that begins there. Its end and its value come from one look, but for signs and for numbers that may be
/// too large.
Field fieldAt(const char* begin, const char* textEnd)
{
    constexpr ptrdiff_t kAlwaysFit = 9;
    uint32_t number = 0;
    const char* at = begin;
    for (; at != textEnd; ++at) {
        const auto digit = static_cast<uint32_t>(*at) - '0';
        if (digit > 9) {
            break;
        }
        number = number * 10 + digit;
    }
    if ((at == textEnd || *at == ',') && at != begin && at - begin <= kAlwaysFit) {
        return {at, static_cast<int32_t>(number), true};
    }
    at = std::find(at, textEnd, ',');
    const auto value = mindroid::Integer::tryParse({begin, at});
    return {at, value.value_or(0), value.has_value()};
}

/// The fields of a text, one after the other; a text without commas is one field.
class Fields {
public:
    explicit Fields(std::string_view text) : mNext(text.data()), mEnd(mNext + text.size()) {}

    bool atEnd() const { return mNext == nullptr; }
    const char* next() const { return mNext; }

    Field take()
    {
        const Field field = fieldAt(mNext, mEnd);
        mNext = field.end == mEnd ? nullptr : field.end + 1;
        return field;
    }

    /// Of those not yet taken.
    size_t count() const { return atEnd() ? 0 : static_cast<size_t>(std::count(mNext, mEnd, ',')) + 1; }

private:
    const char* mNext; ///< null at the end
    const char* mEnd;
};

void putField(Parcel& parcel, const char* begin, const Field& field)
{
    if (field.isNumber) {
        parcel.putByte(AtCmdParser::kInteger);
        parcel.putInt(field.number);
    } else {
        parcel.putByte(AtCmdParser::kString);
        parcel.putString({begin, field.end});
    }
}

/// Their number goes first, so that those of an ordinary answer are read before any is put.
void putFields(Parcel& parcel, std::string_view data)
{
    data = trimmed(data);
    Fields fields(data);
    std::array<Field, 32> block;
    const char* begin = data.data();
    bool isFirst = true;
    do {
        size_t read = 0;
        while (!fields.atEnd() && read < block.size()) {
            block[read++] = fields.take();
        }
        if (isFirst) {
            parcel.putInt(static_cast<int32_t>(read + fields.count()));
            isFirst = false;
        }
        for (size_t i = 0; i < read; ++i) {
            putField(parcel, begin, block[i]);
            begin = block[i].end + 1;
        }
    } while (!fields.atEnd());
}

void putRawText(Parcel& parcel, std::string_view data)
{
    parcel.putString(trimmed(data));
}

/// What differs between the two forms of an answer: how its data is kept, and the name in the log.
struct Form {
    const char* name;
    void (*putData)(Parcel&, std::string_view);
};

constexpr Form kFields = {"parserAtCmdResponse", putFields};
constexpr Form kRawText = {"parserAtCmdResponseRawStr", putRawText};

void putRefused(Parcel& parcel, const Form& form)
{
    Log::d(kParserTag, "%s put false", form.name);
    parcel.putBoolean(false);
}

void putAccepted(Parcel& parcel, const Form& form, std::string_view line)
{
    parcel.putBoolean(true);
    form.putData(parcel, dataOf(line));
}

void parseInto(Parcel& parcel, std::string_view answer, const Form& form)
{
    const Lines lines = linesOf(answer);
    const auto& line = lines.kept;
    Log::d(kParserTag, "%s length = %lu", form.name,
           static_cast<unsigned long>(lines.count + (lines.framed ? 1 : 0)));
    if (lines.count == 1 || lines.count == 2) {
        Log::d(kParserTag, "parserAtCmdResponse %.*s", static_cast<int>(line[0].size()), line[0].data());
    }
    switch (lines.count) {
    case 1:
        if (saysOk(line[0])) {
            parcel.putBoolean(true);
        } else {
            putRefused(parcel, form);
        }
        break;
    case 2:
        if (saysOk(line[1])) {
            putAccepted(parcel, form, line[0]);
        } else {
            putRefused(parcel, form);
        }
        break;
    case 3:
        // Echo, information, final result: the last one is not looked at.
        putAccepted(parcel, form, line[1]);
        break;
    default:
        parcel.putBoolean(false);
        Log::e(kParserTag, "parserAtCmdResponse not support length = %lu",
               static_cast<unsigned long>(lines.count));
    }
}

sp<Parcel> parse(const Form& form, std::string_view answer)
{
    auto parcel = Parcel::obtain();
    parseInto(*parcel, answer, form);
    parcel->rewind();
    return parcel;
}

sp<Parcel> parse(const Form& form, const sp<String>& answer)
{
    try {
        return parse(form, answer->view());
    } catch (const mindroid::Exception& exception) {
        Log::e(kParserTag, "%s meet exception = %s", form.name, exception.what());
    }
    auto parcel = Parcel::obtain();
    parcel->putBoolean(false);
    parcel->rewind();
    return parcel;
}

} // namespace

AtCmdParser& AtCmdParser::instance()
{
    static AtCmdParser parser;
    return parser;
}

sp<Parcel> AtCmdParser::parserAtCmdResponse(const sp<String>& answer) const
{
    return parse(kFields, answer);
}

sp<Parcel> AtCmdParser::parserAtCmdResponse(const char* answer) const
{
    return parse(kFields, answer);
}

sp<Parcel> AtCmdParser::parserAtCmdResponseAsRawStr(const sp<String>& answer) const
{
    return parse(kRawText, answer);
}

sp<Parcel> AtCmdParser::parserAtCmdResponseAsRawStr(const char* answer) const
{
    return parse(kRawText, answer);
}

sp<Parcel> AtCmdParser::parserAtcmdData(bool ok, const sp<String>& data) const
{
    auto parcel = Parcel::obtain();
    parcel->putBoolean(ok);
    if (data) {
        putFields(*parcel, data->view());
    } else {
        parcel->putInt(0);
    }
    parcel->rewind();
    return parcel;
}

sp<Parcel> AtCmdParser::parserAtcmdData(const sp<String>& data) const
{
    auto parcel = Parcel::obtain();
    for (Fields fields(trimmed(data->view())); !fields.atEnd();) {
        const char* begin = fields.next();
        const Field field = fields.take();
        if (field.isNumber) {
            parcel->putInt(field.number);
        } else {
            parcel->putString({begin, field.end});
        }
    }
    parcel->rewind();
    return parcel;
}
