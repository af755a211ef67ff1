// The help of a request, from its description.
#include "interface/names.h"
#include "interface/text.h"

#include <fmt/format.h>

#include <algorithm>

namespace interface {

namespace {

/// `name  meaning (form)`, with the text behind a column.
std::string described(size_t indent, std::string_view name, std::string_view text, const std::string& form)
{
    constexpr size_t kColumn = 18;
    const std::string front =
        fmt::format("{:{}}{:<{}} ", "", indent, name, kColumn - std::min(indent, size_t{8}));
    return wrapped(fmt::format("{}{} ({})", front, text, form), front.size()) + '\n';
}

std::string membersHelp(const Record& record, size_t indent)
{
    std::string text;
    for (const Member& member : record.members) {
        if (!member.meaning.isUnused) {
            text += described(indent, member.meaning.name, member.meaning.text, formOf(member));
            text += member.record != nullptr ? membersHelp(*member.record, indent + 2) : "";
        }
    }
    return text;
}

std::string argumentsHelp(const Request& request)
{
    std::string text;
    for (const Argument& argument : request.arguments) {
        text += described(2, argument.meaning.name, argument.meaning.text, formOf(argument));
        text += argument.record != nullptr ? membersHelp(*argument.record, 4) : "";
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

/// The first members that are plain numbers.
std::string membersExample(const Record& record)
{
    std::vector<std::string> words;
    for (const Member& member : record.members) {
        const bool isPlain = member.record == nullptr && member.lengths[0] == 0 && !member.counts;
        if (isPlain && !member.meaning.isUnused && words.size() < 2) {
            words.push_back(
                fmt::format("{}={}", member.meaning.name, numberExample(member.meaning, member.type)));
        }
    }
    return fmt::format("{}", fmt::join(words, " "));
}

std::string argumentExample(const Argument& argument)
{
    const auto& range = argument.meaning.range;
    const auto least = static_cast<size_t>(std::max<int64_t>(range ? range->least : 1, 1));
    std::string element;
    switch (argument.form) {
    case Form::Number:
        return numberExample(argument.meaning, argument.type);
    case Form::Text:
        return std::string(argument.meaning.name);
    case Form::Record:
    case Form::Records:
        return membersExample(*argument.record);
    case Form::List:
        break;
    }
    if (argument.type == Type::Uint8) {
        for (size_t i = 0; i < least; ++i) {
            element += fmt::format("{:02x}", i);
        }
        return element;
    }
    Meaning meaning = argument.meaning;
    meaning.range.reset();
    for (size_t i = 0; i < std::max(least, meaning.values.size()); ++i) {
        const bool isNamed = i < meaning.values.size();
        element += (i != 0 ? "," : "") +
                   (isNamed ? wordOf(meaning.values[i]) : numberExample(meaning, argument.type));
    }
    return element;
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
        text += fmt::format("\nAnswer ({}):\n", request.answer->name) + membersHelp(*request.answer, 2);
    }
    text += fmt::format("\nFunction: {} (radio_apis/{}.h)\n", request.function, request.domain->name);
    return text + fmt::format("Example:  radioctl {}\n", exampleOf(request));
}

} // namespace interface
