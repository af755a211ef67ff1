#include "interface/arguments.h"

#include "interface/names.h"
#include "number.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>

namespace interface {

namespace {

constexpr Range kAnyCount = {0, UINT16_MAX, 1};

Range countOf(const Argument& argument)
{
    return argument.meaning.range.value_or(kAnyCount);
}

bool isBytes(const Argument& argument)
{
    return argument.form == Form::List && argument.type == Type::Uint8;
}

bool isRecords(const Argument& argument)
{
    return argument.form == Form::Record || argument.form == Form::Records;
}

/// Values are words, but for those that begin like a list or a record.
Json valueFromWord(const std::string& where, const std::string& word)
{
    if (!word.starts_with('[') && !word.starts_with('{')) {
        return word;
    }
    Json value = Json::parse(word, nullptr, false);
    return value.is_discarded() ? throw ArgumentError(fmt::format("{}: '{}' is not JSON", where, word))
                                : value;
}

Json listFromWord(const std::string& where, const std::string& word)
{
    if (word.starts_with('[')) {
        return valueFromWord(where, word);
    }
    Json list = Json::array();
    if (word.empty() || word == "-") {
        return list;
    }
    for (size_t begin = 0; begin <= word.size();) {
        const size_t end = std::min(word.find(',', begin), word.size());
        list.push_back(word.substr(begin, end - begin));
        begin = end + 1;
    }
    return list;
}

/// The argument's value from the words that are left; takes those that it uses.
Json takeValue(const Argument& argument, bool isLast, std::span<const std::string>& words)
{
    const std::string name(argument.meaning.name);
    if (words.empty() && !(isRecords(argument) && isLast)) {
        throw ArgumentError(fmt::format("{} is missing ({})", name, formOf(argument)));
    }
    if (isRecords(argument) && isLast) {
        const auto rest = std::exchange(words, {});
        const bool isList = argument.form == Form::Records;
        if (isList && rest.size() == 1 &&
            (rest.front().starts_with('[') || rest.front().find('=') == std::string::npos)) {
            return valueFromWord(name, rest.front());
        }
        Json members = membersFromWords(name, rest);
        return !isList ? members : members.empty() ? Json::array() : Json::array({members});
    }
    const std::string& word = words.front();
    words = words.subspan(1);
    switch (argument.form) {
    case Form::List:
        return isBytes(argument) ? Json(word) : listFromWord(name, word);
    case Form::Record:
    case Form::Records:
        return valueFromWord(name, word);
    case Form::Number:
    case Form::Text:
        break;
    }
    return word;
}

} // namespace

Json membersFromWords(const std::string& where, std::span<const std::string> words)
{
    if (words.size() == 1 && words.front().starts_with('{')) {
        return valueFromWord(where, words.front());
    }
    Json members = Json::object();
    for (const std::string& word : words) {
        const size_t equals = word.find('=');
        if (equals == std::string::npos) {
            throw ArgumentError(fmt::format("{}: '{}' is not MEMBER=VALUE", where, word));
        }
        const std::string key = word.substr(0, equals);
        const std::string place = fmt::format("{}.{}", where, key);
        if (members.contains(key)) {
            throw ArgumentError(fmt::format("{} is given twice", place));
        }
        members[key] = valueFromWord(place, word.substr(equals + 1));
    }
    return members;
}

Arguments Arguments::fromWords(const Request& request, std::span<const std::string> words)
{
    Arguments arguments;
    for (const Argument& argument : request.arguments) {
        const bool isLast = &argument == &request.arguments.back();
        arguments.mValues.push_back(valueOf(argument, takeValue(argument, isLast, words), Files::AreRead));
    }
    if (!words.empty()) {
        throw ArgumentError(fmt::format("'{}' is one argument too many", words.front()));
    }
    return arguments;
}

Arguments Arguments::fromJson(const Request& request, const Json& members)
{
    std::vector<std::string_view> names;
    for (const Argument& argument : request.arguments) {
        names.push_back(argument.meaning.name);
    }
    if (!members.is_object()) {
        throw ArgumentError(fmt::format("the arguments of {} are not a JSON object", request.name));
    }
    for (const auto& [key, ignored] : members.items()) {
        if (std::ranges::find(names, key) == names.end()) {
            throw ArgumentError(
                fmt::format("{} has no argument '{}'{}", request.name, key, suggestion(key, names)));
        }
    }
    Arguments arguments;
    for (const Argument& argument : request.arguments) {
        const auto value = members.find(argument.meaning.name);
        if (value == members.end()) {
            throw ArgumentError(fmt::format("{} is missing ({})", argument.meaning.name, formOf(argument)));
        }
        arguments.mValues.push_back(valueOf(argument, *value, Files::AreTexts));
    }
    return arguments;
}

Arguments::Value Arguments::valueOf(const Argument& argument, const Json& in, Files files)
{
    const std::string where(argument.meaning.name);
    Value value;
    const auto takeRecord = [&](const std::string& place, const Json& record, size_t index) {
        interface::fromJson(place, *argument.record, record,
                            value.bytes.data() + index * argument.record->size, files);
    };
    switch (argument.form) {
    case Form::Number:
        value.number = parseNumber(where, argument.meaning, argument.type, in);
        break;
    case Form::Text:
        if (!in.is_string()) {
            throw ArgumentError(fmt::format("{}: {} is not a text", where, in.dump()));
        }
        value.text = in.get<std::string>();
        checkCount(where, value.text.size(), countOf(argument), "characters");
        break;
    case Form::Record:
        value.bytes.resize(argument.record->size);
        takeRecord(where, in, 0);
        break;
    case Form::Records:
    case Form::List:
        if (isBytes(argument)) {
            value.bytes = bytesFrom(where, in, files);
            value.count = value.bytes.size();
            checkCount(where, value.count, countOf(argument), "bytes");
            value.bytes.resize(std::max<size_t>(value.count, 1));
            break;
        }
        if (!in.is_array()) {
            throw ArgumentError(fmt::format("{}: '{}' is not a list like [1,2]", where,
                                            in.is_string() ? in.get<std::string>() : in.dump()));
        }
        value.count = in.size();
        checkCount(where, value.count, countOf(argument),
                   argument.form == Form::List ? "numbers" : "elements");
        const Meaning element = elementOf(argument.meaning);
        const size_t size = argument.record != nullptr ? argument.record->size : sizeOf(argument.type);
        value.bytes.resize(std::max<size_t>(value.count, 1) * size);
        for (size_t i = 0; i < value.count; ++i) {
            if (argument.form == Form::Records) {
                takeRecord(fmt::format("{}[{}]", where, i), in[i], i);
            } else {
                const uint64_t number = parseNumber(where, element, argument.type, in[i]);
                storeNumber(argument.type, number, value.bytes.data() + i * size);
            }
        }
        break;
    }
    return value;
}

std::string formOf(const Argument& argument)
{
    const Range range = countOf(argument);
    switch (argument.form) {
    case Form::Number:
        break;
    case Form::Text:
        return fmt::format("text of {} characters", countForm(range));
    case Form::List:
        if (isBytes(argument)) {
            return bytesForm(range);
        } else {
            const Meaning element = elementOf(argument.meaning);
            return fmt::format("{} numbers with commas between them, - for none{}{}", countForm(range),
                               element.values.empty() ? "" : "; each: ",
                               element.values.empty() ? "" : numberForm(element, argument.type));
        }
    case Form::Record:
        return "MEMBER=VALUE... or one JSON object";
    case Form::Records:
        return fmt::format("JSON list of {} records", countForm(range));
    }
    return numberForm(argument.meaning, argument.type);
}

} // namespace interface
