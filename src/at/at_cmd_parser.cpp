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

constexpr char kTag[] = "AtCmdParser";
constexpr std::string_view kLineEnd = "\r\n";

/// Calls `use` with each line of `text`; empty ones too.
template <typename Use>
void splitLines(std::string_view text, Use use)
{
    for (;;) {
        const size_t end = text.find(kLineEnd);
        use(text.substr(0, end));
        if (end == std::string_view::npos) {
            return;
        }
        text.remove_prefix(end + kLineEnd.size());
    }
}

/// Calls `use` with each piece of `text` between commas; empty pieces too.
template <typename Use>
void splitFields(std::string_view text, Use use)
{
    const char* begin = text.data();
    const char* const end = begin + text.size();
    for (const char* at = begin; at != end; ++at) {
        if (*at == ',') {
            use(std::string_view(begin, static_cast<size_t>(at - begin)));
            begin = at + 1;
        }
    }
    use(std::string_view(begin, static_cast<size_t>(end - begin)));
}

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
    lines.framed = answer.starts_with(kLineEnd);
    bool first = true;
    splitLines(answer, [&](std::string_view line) {
        const bool keep = first ? !lines.framed : !line.empty();
        first = false;
        if (!keep) {
            return;
        }
        if (lines.count < lines.kept.size()) {
            lines.kept[lines.count] = line;
        }
        ++lines.count;
    });
    return lines;
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
    const size_t begin = text.find_first_not_of(kWhiteSpace);
    if (begin == std::string_view::npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(kWhiteSpace) - begin + 1);
}

void putField(Parcel& parcel, std::string_view field)
{
    if (const auto number = mindroid::Integer::tryParse(field)) {
        parcel.putByte(AtCmdParser::kInteger);
        parcel.putInt(*number);
    } else {
        parcel.putByte(AtCmdParser::kString);
        parcel.putString(field);
    }
}

/// The number of fields goes first. One look at the text counts them and finds the ends of the first ones, which in
/// most answers are all.
void putFields(Parcel& parcel, std::string_view data)
{
    data = trimmed(data);
    std::array<const char*, 32> ends;
    size_t commas = 0;
    for (const char& character : data) {
        if (character == ',') {
            if (commas < ends.size()) {
                ends[commas] = &character;
            }
            ++commas;
        }
    }
    parcel.putInt(static_cast<int32_t>(commas) + 1);
    const size_t found = std::min(commas, ends.size());
    for (size_t i = 0; i < found; ++i) {
        const auto size = static_cast<size_t>(ends[i] - data.data());
        putField(parcel, data.substr(0, size));
        data.remove_prefix(size + 1);
    }
    splitFields(data, [&](std::string_view field) { putField(parcel, field); });
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
    Log::d(kTag, "%s put false", form.name);
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
    Log::d(kTag, "%s length = %lu", form.name,
           static_cast<unsigned long>(lines.count + (lines.framed ? 1 : 0)));
    if (lines.count == 1 || lines.count == 2) {
        Log::d(kTag, "parserAtCmdResponse %.*s", static_cast<int>(line[0].size()), line[0].data());
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
        Log::e(kTag, "parserAtCmdResponse not support length = %lu", static_cast<unsigned long>(lines.count));
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
        Log::e(kTag, "%s meet exception = %s", form.name, exception.what());
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
    splitFields(trimmed(data->view()), [&](std::string_view field) {
        if (const auto number = mindroid::Integer::tryParse(field)) {
            parcel->putInt(*number);
        } else {
            parcel->putString(field);
        }
    });
    parcel->rewind();
    return parcel;
}
