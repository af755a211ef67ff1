// The help of a request, from its description.
#include "interface/names.h"
#include "interface/text.h"
#include "number.h"

#include <fmt/format.h>

#include <algorithm>

namespace interface {

namespace {

/// `name  meaning (form)`, with the text behind a column.
std::string described(size_t indent, std::string_view name, std::string_view text, const std::string& form)
{
    const std::string behind = form.empty() ? "" : fmt::format(" ({})", form);
    constexpr size_t kColumn = 18;
    const std::string front =
        fmt::format("{:{}}{:<{}} ", "", indent, name, kColumn - std::min(indent, size_t{8}));
    return wrapped(fmt::format("{}{}{}", front, text, behind), front.size()) + '\n';
}

/// What an answer's numbers mean; their types' ranges go without saying.
std::string answerForm(const Member& member)
{
    const Meaning& meaning = member.meaning;
    if (!meaning.values.empty()) {
        std::vector<std::string> names;
        std::ranges::transform(meaning.values, std::back_inserter(names), [](const Value& value) {
            return fmt::format("{} {}", value.value, value.name);
        });
        return fmt::format("{}", fmt::join(names, ", "));
    }
    const bool hasLimits = member.lengths[0] != 0 || meaning.range;
    return hasLimits && member.record == nullptr ? formOf(member) : std::string(meaning.unit);
}

std::string membersHelp(const Record& record, size_t indent, std::string (*form)(const Member&))
{
    std::string text;
    for (const Member& member : record.members) {
        if (!member.meaning.isUnused) {
            text += described(indent, member.meaning.name, member.meaning.text, form(member));
            text += member.record != nullptr ? membersHelp(*member.record, indent + 2, form) : "";
        }
    }
    return text;
}

std::string argumentsHelp(const Request& request)
{
    std::string text;
    for (const Argument& argument : request.arguments) {
        text += described(2, argument.meaning.name, argument.meaning.text, formOf(argument));
        text += argument.record != nullptr ? membersHelp(*argument.record, 4, formOf) : "";
    }
    return text;
}

std::string numberExample(const Meaning& meaning, Type type)
{
    if (type == Type::Bool) {
        return "on";
    }
    if (!meaning.values.empty()) {
        return wordOf(meaning.values.front());
    }
    const int64_t least = meaning.range ? meaning.range->least : 0;
    const int64_t most = meaning.range ? meaning.range->most : 1;
    return std::to_string(meaning.isUnused ? std::max<int64_t>(least, 0)
                                           : std::clamp<int64_t>(1, least, most));
}

std::string bytesExample(size_t count)
{
    std::string text;
    for (size_t i = 0; i < std::max<size_t>(count, 1); ++i) {
        text += fmt::format("{:02x}", i);
    }
    return text;
}

Json recordExample(const Record& record);

Json memberExample(const Member& member)
{
    const auto least = static_cast<size_t>(member.meaning.range ? member.meaning.range->least : 1);
    const bool isList = member.lengths[0] != 0;
    if (isList && member.lengths[1] == 0 && member.type == Type::Char) {
        return "text";
    }
    if (isList && member.lengths[1] == 0 && member.type == Type::Uint8) {
        return bytesExample(least);
    }
    const Json one = member.type == Type::Record ? recordExample(*member.record)
                     : member.type == Type::Char
                         ? Json("text")
                         : Json(numberExample(elementOf(member.meaning), member.type));
    return isList ? Json::array({one}) : one;
}

/// Two members that are single values, or the first one.
Json recordExample(const Record& record)
{
    constexpr size_t kMost = 2;
    Json members = Json::object();
    for (const bool takesAll : {false, true}) {
        for (const Member& member : record.members) {
            const bool isSingle = member.record == nullptr && member.lengths[0] == 0 && !member.counts;
            if (!member.meaning.isUnused && members.size() < (takesAll ? 1 : kMost) &&
                (isSingle || takesAll)) {
                members[std::string(member.meaning.name)] = memberExample(member);
            }
        }
    }
    return members;
}

std::string membersExample(const Record& record)
{
    std::vector<std::string> words;
    const Json example = recordExample(record);
    for (const auto& [name, value] : example.items()) {
        words.push_back(value.is_string() ? fmt::format("{}={}", name, value.get<std::string>())
                                          : fmt::format("'{}={}'", name, value.dump()));
    }
    return fmt::format("{}", fmt::join(words, " "));
}

std::string argumentExample(const Argument& argument)
{
    const auto& range = argument.meaning.range;
    const auto least = static_cast<size_t>(std::max<int64_t>(range ? range->least : 1, 1));
    switch (argument.form) {
    case Form::Number:
        return numberExample(argument.meaning, argument.type);
    case Form::Text:
        return std::string(argument.meaning.name);
    case Form::Record:
        return membersExample(*argument.record);
    case Form::Records:
        return fmt::format("'{}'", Json::array({recordExample(*argument.record)}).dump());
    case Form::List:
        break;
    }
    if (argument.type == Type::Uint8) {
        return bytesExample(least);
    }
    const Meaning element = elementOf(argument.meaning);
    std::vector<std::string> elements;
    std::ranges::transform(element.values, std::back_inserter(elements), wordOf);
    elements.resize(std::max(least, elements.size()), numberExample(element, argument.type));
    return fmt::format("{}", fmt::join(elements, ","));
}

} // namespace

std::string wrapped(const std::string& text, size_t indent)
{
    constexpr size_t kWidth = 100;
    std::string out;
    size_t column = 0;
    for (size_t begin = 0; begin < text.size();) {
        const size_t end = std::min(text.find(' ', begin), text.size());
        const size_t length = end - begin;
        if (column != 0 && column + length + 1 > kWidth) {
            out += fmt::format("\n{:{}}", "", indent);
            column = indent;
        } else if (begin != 0) {
            out += ' ';
            ++column;
        }
        out += text.substr(begin, length);
        column += length;
        begin = end + 1;
    }
    return out;
}

std::string synopsis(const Request& request)
{
    std::string text(request.name);
    for (const Argument& argument : request.arguments) {
        const bool isRecord = argument.form == Form::Record;
        const bool isRecords = argument.form == Form::Records;
        text += isRecord    ? " [MEMBER=VALUE...]"
                : isRecords ? " JSON"
                            : fmt::format(" {}", argument.meaning.name);
    }
    return text;
}

std::string exampleOf(const Request& request)
{
    std::string line(request.name);
    for (const Argument& argument : request.arguments) {
        line += ' ' + argumentExample(argument);
    }
    return line;
}

std::string helpOf(const Request& request, const std::string& usage, const std::string& moreArguments)
{
    std::string text = usage + "\n\n" + wrapped(std::string(request.text), 0) + '\n';
    if (!request.details.empty()) {
        text += wrapped(std::string(request.details), 0) + '\n';
    }
    if (!request.isSupported) {
        text += "The library does not support it and refuses it always.\n";
    }
    if (!request.arguments.empty()) {
        text += "\nArguments:\n" + argumentsHelp(request) + moreArguments;
    }
    if (request.answer != nullptr) {
        text += fmt::format("\nAnswer ({}):\n", request.answer->name) +
                membersHelp(*request.answer, 2, answerForm);
    }
    text += fmt::format("\nFunction: {} (radio_apis/{}.h)\n", request.function, request.domain->name);
    return text + fmt::format("Example:  radioctl {}\n", exampleOf(request));
}

} // namespace interface
