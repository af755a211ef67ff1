#include "interface/records.h"

#include "interface/names.h"
#include "number.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace interface {

namespace {

/// An element of a member's array: an array itself, or a single value.
struct Elements {
    const Member& member;
    size_t depth; ///< so many of the member's lengths are behind us

    bool areArrays() const { return depth + 1 < member.lengths.size() && member.lengths[depth + 1] != 0; }
    bool areTexts() const { return member.type == Type::Char && !areArrays(); }
    bool areBytes() const { return member.type == Type::Uint8 && !areArrays(); }
    size_t count() const { return member.lengths[depth]; }
    Range range() const
    {
        return depth == 0 && member.meaning.range ? *member.meaning.range
                                                  : Range{0, static_cast<int64_t>(count()), 1};
    }
    size_t size() const
    {
        const size_t one = member.type == Type::Record ? member.record->size : sizeOf(member.type);
        return areArrays() ? one * member.lengths[depth + 1] : one;
    }
};

bool isArray(const Member& member)
{
    return member.lengths[0] != 0;
}

/// The modem's characters might mean something to a terminal, or be no valid JSON.
std::string printable(const uint8_t* data, size_t count)
{
    std::string text;
    for (const uint8_t* at = data; at != data + count && *at != 0; ++at) {
        text +=
            *at >= ' ' && *at <= '~' ? std::string(1, static_cast<char>(*at)) : fmt::format("\\x{:02x}", *at);
    }
    return text;
}

Json arrayToJson(const Elements& elements, const uint8_t* data, size_t count)
{
    const Member& member = elements.member;
    if (elements.areTexts()) {
        return printable(data, count);
    }
    if (elements.areBytes()) {
        return fmt::format("{:02x}", fmt::join(data, data + count, ""));
    }
    Json list = Json::array();
    for (size_t i = 0; i < count; ++i) {
        const uint8_t* element = data + i * elements.size();
        if (elements.areArrays()) {
            const Elements inner{member, elements.depth + 1};
            list.push_back(arrayToJson(inner, element, inner.count()));
        } else {
            list.push_back(member.type == Type::Record ? toJson(*member.record, element)
                                                       : loadNumber(member.meaning, member.type, element));
        }
    }
    return list;
}

/// How many elements of an array matter.
size_t countedElements(const Member& member, const uint8_t* record)
{
    const size_t most = member.lengths[0];
    if (member.countedBy == nullptr) {
        return most;
    }
    uint64_t count = 0;
    std::memcpy(&count, record + member.countedBy->offset, sizeOf(member.countedBy->type));
    return std::min<uint64_t>(count, most);
}

std::string given(const Json& value)
{
    return value.is_string() ? value.get<std::string>() : value.dump();
}

std::vector<uint8_t> readFile(const std::string& where, const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    if (std::filesystem::is_directory(name)) {
        throw ArgumentError(fmt::format("{}: {} is a directory, not a file", where, name));
    }
    if (!file) {
        throw ArgumentError(fmt::format("{}: can't read {}", where, name));
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string textFrom(const std::string& where, const Json& in, size_t most)
{
    if (!in.is_string()) {
        throw ArgumentError(fmt::format("{}: {} is not a text", where, given(in)));
    }
    auto text = in.get<std::string>();
    checkCount(where, text.size(), {0, static_cast<int64_t>(most), 1}, "characters");
    return text;
}

void checkList(const std::string& where, const Json& in, const Range& range)
{
    if (!in.is_array()) {
        throw ArgumentError(fmt::format("{}: '{}' is not a list like [1,2]", where, given(in)));
    }
    checkCount(where, in.size(), range, "elements");
}

/// Returns how many elements were given.
size_t arrayFromJson(const std::string& where, const Elements& elements, const Json& in, uint8_t* data,
                     Files files)
{
    const Member& member = elements.member;
    if (elements.areTexts()) {
        const std::string text = textFrom(where, in, elements.count() - 1);
        std::ranges::copy(text, data);
        return text.size();
    }
    if (elements.areBytes()) {
        const auto bytes = bytesFrom(where, in, files);
        checkCount(where, bytes.size(), elements.range(), "bytes");
        std::ranges::copy(bytes, data);
        return bytes.size();
    }
    checkList(where, in, elements.range());
    const Meaning meaning = elementOf(member.meaning);
    for (size_t i = 0; i < in.size(); ++i) {
        const std::string place = fmt::format("{}[{}]", where, i);
        uint8_t* element = data + i * elements.size();
        if (elements.areArrays()) {
            arrayFromJson(place, {member, elements.depth + 1}, in[i], element, files);
        } else if (member.type == Type::Record) {
            fromJson(place, *member.record, in[i], element, files);
        } else {
            storeNumber(member.type, parseNumber(place, meaning, member.type, in[i]), element);
        }
    }
    return in.size();
}

std::vector<std::string_view> memberNames(const Record& record)
{
    std::vector<std::string_view> names;
    std::ranges::transform(record.members, std::back_inserter(names),
                           [](const Member& member) { return member.meaning.name; });
    return names;
}

void checkMembers(const std::string& where, const Record& record, const Json& in)
{
    const auto names = memberNames(record);
    if (!in.is_object()) {
        throw ArgumentError(
            fmt::format("{}: '{}' is not a record like {{\"{}\":1}}", where, given(in), names.front()));
    }
    for (const auto& [key, ignored] : in.items()) {
        if (std::ranges::find(names, key) == names.end()) {
            throw ArgumentError(fmt::format("{} has no member '{}'; it has {}{}", where, key,
                                            fmt::join(names, ", "), suggestion(key, names)));
        }
    }
}

Json explanation(const Meaning& meaning, const Json& number)
{
    Json told = Json::object();
    const auto value =
        std::ranges::find_if(meaning.values, [&](const Value& known) { return number == known.value; });
    if (value != meaning.values.end()) {
        told["name"] = value->name;
    }
    if (!meaning.unit.empty()) {
        told["unit"] = meaning.unit;
    }
    return told;
}

std::string arrayForm(const Elements& elements)
{
    const Member& member = elements.member;
    if (elements.areTexts()) {
        return fmt::format("text of at most {} characters", elements.count() - 1);
    }
    if (elements.areBytes()) {
        return bytesForm(elements.range());
    }
    const std::string element = elements.areArrays() ? arrayForm({member, elements.depth + 1})
                                : member.type == Type::Record
                                    ? "record"
                                    : numberForm(elementOf(member.meaning), member.type);
    return fmt::format("list of {}, each: {}", countForm(elements.range()), element);
}

} // namespace

std::vector<uint8_t> bytesFrom(const std::string& where, const Json& in, Files files)
{
    const std::string text = given(in);
    if (files == Files::AreRead && text.starts_with('@')) {
        return readFile(where, text.substr(1));
    }
    std::vector<uint8_t> bytes;
    for (size_t at = 0; at < text.size(); at += 2) {
        uint8_t byte = 0;
        const char* end = text.data() + std::min(at + 2, text.size());
        const auto [stop, error] = std::from_chars(text.data() + at, end, byte, 16);
        if (text.size() % 2 != 0 || error != std::errc() || stop != end) {
            throw ArgumentError(fmt::format("{}: '{}' is not pairs of hexadecimal digits", where, text));
        }
        bytes.push_back(byte);
    }
    return bytes;
}

std::string bytesForm(const Range& range)
{
    const std::string multiple =
        range.multipleOf == 1 ? "" : fmt::format(", a multiple of {}", range.multipleOf);
    return fmt::format("{} bytes as hexadecimal digits or @FILE{}", countForm(range), multiple);
}

Json toJson(const Record& record, const void* data)
{
    const auto* bytes = static_cast<const uint8_t*>(data);
    Json out = Json::object();
    for (const Member& member : record.members) {
        const uint8_t* place = bytes + member.offset;
        if (member.meaning.isUnused) {
            continue;
        }
        Json& value = out[std::string(member.meaning.name)];
        if (isArray(member)) {
            value = arrayToJson({member, 0}, place, countedElements(member, bytes));
        } else {
            value = member.type == Type::Record ? toJson(*member.record, place)
                                                : loadNumber(member.meaning, member.type, place);
        }
    }
    return out;
}

Json explanations(const Record& record, const Json& shown)
{
    Json out = Json::object();
    for (const Member& member : record.members) {
        const std::string name(member.meaning.name);
        if (!shown.contains(name)) {
            continue;
        }
        const Json& value = shown[name];
        Json told;
        if (member.type != Type::Record) {
            told = explanation(member.meaning, value);
        } else if (isArray(member)) {
            for (const Json& element : value) {
                told.push_back(explanations(*member.record, element));
            }
        } else {
            told = explanations(*member.record, value);
        }
        if (!told.empty()) {
            out[name] = std::move(told);
        }
    }
    return out;
}

bool tellsFailure(const Record& record, const void* data)
{
    const auto* bytes = static_cast<const uint8_t*>(data);
    return std::ranges::any_of(record.members, [&](const Member& member) {
        const uint8_t* place = bytes + member.offset;
        if (member.type == Type::Record) {
            return !isArray(member) && tellsFailure(*member.record, place);
        }
        return member.meaning.tellsFailure && loadNumber(member.meaning, member.type, place) != 0;
    });
}

void fromJson(const std::string& where, const Record& record, const Json& in, void* data, Files files)
{
    checkMembers(where, record, in);
    auto* bytes = static_cast<uint8_t*>(data);
    // Counts that are given come last: they may be wrong by intent, which is for the library to notice.
    for (const bool counts : {false, true}) {
        for (const Member& member : record.members) {
            const auto value = in.find(member.meaning.name);
            if (value == in.end() || member.counts != counts) {
                continue;
            }
            const std::string place = fmt::format("{}.{}", where, member.meaning.name);
            uint8_t* at = bytes + member.offset;
            if (isArray(member)) {
                const size_t count = arrayFromJson(place, {member, 0}, *value, at, files);
                if (member.countedBy != nullptr) {
                    storeNumber(member.countedBy->type, count, bytes + member.countedBy->offset);
                }
            } else if (member.type == Type::Record) {
                fromJson(place, *member.record, *value, at, files);
            } else {
                storeNumber(member.type, parseNumber(place, member.meaning, member.type, *value), at);
            }
        }
    }
}

std::string explained(const Meaning& meaning, const Json& number)
{
    const Json told = explanation(meaning, number);
    if (told.contains("name")) {
        return fmt::format("{} ({})", told["name"].get<std::string>(), number.dump());
    }
    return fmt::format("{}{}{}", number.dump(), meaning.unit.empty() ? "" : " ", meaning.unit);
}

std::string formOf(const Member& member)
{
    return isArray(member)               ? arrayForm({member, 0})
           : member.type == Type::Record ? "record"
                                         : numberForm(member.meaning, member.type);
}

} // namespace interface
