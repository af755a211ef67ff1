/// Records as JSON, JSON as records, and help about them: all from one list of a record's members.
#pragma once

#include "radioctl/request.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>
#include <tuple>

namespace radioctl {

struct Undescribed {};

/// The members of a record, in the order in which they are shown; specialised for each record in use.
template <typename Record>
inline constexpr Undescribed kMembers;

template <typename T>
Json toJson(const T& value);

template <typename T>
void fromJson(const std::string& where, const Json& in, T& out);

template <typename T>
std::string formOf();

template <typename T>
std::string membersText(size_t indent);

/// Members of packed records may stand anywhere, and no reference may be bound to such a one. Numbers are
/// copied, therefore; others must not need alignment.
template <typename Record, typename T>
inline constexpr bool kIsReachable = std::is_arithmetic_v<T> || alignof(T) <= alignof(Record);

template <typename Record, typename T>
T load(const Record& record, T Record::*pointer)
{
    const auto* place = reinterpret_cast<const unsigned char*>(&(record.*pointer));
    T value;
    std::memcpy(&value, place, sizeof value);
    return value;
}

template <typename Record, typename T>
void store(Record& record, T Record::*pointer, T value)
{
    auto* place = reinterpret_cast<unsigned char*>(&(record.*pointer));
    std::memcpy(place, &value, sizeof value);
}

/// What the member kinds need of JSON; all throw UsageError, naming `where`.
std::string wordOf(const Json& value);
std::string textFrom(const std::string& where, const Json& value, size_t most);
void checkList(const std::string& where, const Json& value, size_t most);
void checkKeys(const std::string& where, const Json& value, const std::vector<const char*>& known);
std::string textOf(std::string_view bytes);
std::string memberText(size_t indent, const char* name, const std::string& form, const char* help);
Json valueFromWord(const std::string& where, const std::string& word);
Json recordFromWords(const std::string& name, std::span<const std::string> words);

/// The first `count` elements of an array: characters are a text, bytes hexadecimal digits, others a list.
template <typename T, size_t size>
Json arrayToJson(const T (&array)[size], size_t count)
{
    count = std::min(count, size);
    if constexpr (std::is_same_v<T, char>) {
        return textOf({array, strnlen(array, count)});
    } else if constexpr (std::is_same_v<T, uint8_t>) {
        return fmt::format("{:02x}", fmt::join(array, array + count, ""));
    } else {
        Json list = Json::array();
        for (size_t i = 0; i < count; ++i) {
            list.push_back(toJson(array[i]));
        }
        return list;
    }
}

/// The other way round; returns how many elements were given. The others stay as they are.
template <typename T, size_t size>
size_t arrayFromJson(const std::string& where, const Json& in, T (&array)[size])
{
    if constexpr (std::is_same_v<T, char>) {
        const std::string text = textFrom(where, in, size - 1);
        std::ranges::copy(text, array);
        return text.size();
    } else if constexpr (std::is_same_v<T, uint8_t>) {
        const auto bytes = parseBytes(where, wordOf(in), 0, size);
        std::ranges::copy(bytes, array);
        return bytes.size();
    } else {
        checkList(where, in, size);
        for (size_t i = 0; i < in.size(); ++i) {
            fromJson(fmt::format("{}[{}]", where, i), in[i], array[i]);
        }
        return in.size();
    }
}

/// A number, a record, or an array of a fixed size.
template <typename Record, typename T, typename Shown>
struct Member {
    const char* name;
    T Record::*pointer;
    const char* help;

    void addKeys(std::vector<const char*>& keys) const { keys.push_back(name); }

    void show(Json& out, const Record& record) const
    {
        if constexpr (std::is_arithmetic_v<T>) {
            out[name] = static_cast<Shown>(load(record, pointer));
        } else {
            out[name] = toJson(record.*pointer);
        }
    }

    void read(const std::string& where, const Json& in, Record& record) const
    {
        if (!in.contains(name)) {
            return;
        }
        const std::string place = where + "." + name;
        if constexpr (std::is_arithmetic_v<T>) {
            store(record, pointer, static_cast<T>(parseNumber<Shown>(place, wordOf(in[name]))));
        } else {
            fromJson(place, in[name], record.*pointer);
        }
    }

    std::string text(size_t indent) const
    {
        return memberText(indent, name, formOf<Shown>(), help) + membersText<Shown>(indent + 2);
    }
};

/// An array of which another member counts the elements that matter.
template <typename Record, typename Count, typename T>
struct CountedMember {
    const char* name;
    T Record::*pointer;
    const char* countName;
    Count Record::*count;
    const char* help;

    void addKeys(std::vector<const char*>& keys) const
    {
        keys.push_back(name);
        keys.push_back(countName);
    }

    void show(Json& out, const Record& record) const
    {
        out[name] = arrayToJson(record.*pointer, load(record, count));
    }

    void read(const std::string& where, const Json& in, Record& record) const
    {
        if (in.contains(name)) {
            const size_t given = arrayFromJson(where + "." + name, in[name], record.*pointer);
            store(record, count, static_cast<Count>(given));
        }
        if (in.contains(countName)) { // perhaps wrong by intent: it is for the library to check
            store(record, count, parseNumber<Count>(where + "." + countName, wordOf(in[countName])));
        }
    }

    std::string text(size_t indent) const
    {
        return memberText(indent, name, formOf<T>(), help) + membersText<T>(indent + 2) +
               memberText(indent, countName, formOf<Count>(), "as many as are given, unless told");
    }
};

template <typename Record, typename T>
constexpr auto member(const char* name, T Record::*pointer, const char* help = "")
{
    static_assert(kIsReachable<Record, T>);
    return Member<Record, T, T>{name, pointer, help};
}

/// An unsigned word in which the modem carries a signed number.
template <typename Record>
constexpr auto signedMember(const char* name, uint32_t Record::*pointer, const char* help = "")
{
    return Member<Record, uint32_t, int32_t>{name, pointer, help};
}

template <typename Record, typename Count, typename T>
constexpr auto countedMember(const char* name, T Record::*pointer, const char* countName,
                             Count Record::*count, const char* help = "")
{
    static_assert(kIsReachable<Record, T>);
    return CountedMember<Record, Count, T>{name, pointer, countName, count, help};
}

template <typename T>
Json toJson(const T& value)
{
    if constexpr (std::is_arithmetic_v<T>) {
        return value;
    } else if constexpr (std::is_array_v<T>) {
        return arrayToJson(value, std::extent_v<T>);
    } else {
        Json out = Json::object();
        std::apply([&](const auto&... members) { (members.show(out, value), ...); }, kMembers<T>);
        return out;
    }
}

template <typename T>
void fromJson(const std::string& where, const Json& in, T& out)
{
    if constexpr (std::is_arithmetic_v<T>) {
        out = parseNumber<T>(where, wordOf(in));
    } else if constexpr (std::is_array_v<T>) {
        arrayFromJson(where, in, out);
    } else {
        std::vector<const char*> known;
        std::apply([&](const auto&... members) { (members.addKeys(known), ...); }, kMembers<T>);
        checkKeys(where, in, known);
        std::apply([&](const auto&... members) { (members.read(where, in, out), ...); }, kMembers<T>);
    }
}

/// How a value is written.
template <typename T>
std::string formOf()
{
    if constexpr (std::is_arithmetic_v<T>) {
        return rangeText(std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max());
    } else if constexpr (std::is_array_v<T>) {
        using Element = std::remove_extent_t<T>;
        constexpr size_t size = std::extent_v<T>;
        if constexpr (std::is_same_v<Element, char>) {
            return fmt::format("text of at most {} characters", size - 1);
        } else if constexpr (std::is_same_v<Element, uint8_t>) {
            return fmt::format("hexadecimal digits or @FILE, at most {} bytes", size);
        } else {
            return fmt::format("list of at most {}, each: {}", size, formOf<Element>());
        }
    } else {
        return "record";
    }
}

/// The members of a record, or of an array's records, one per line; nothing when there are none.
template <typename T>
std::string membersText(size_t indent)
{
    std::string text;
    if constexpr (std::is_class_v<std::remove_all_extents_t<T>>) {
        std::apply([&](const auto&... members) { ((text += members.text(indent)), ...); },
                   kMembers<std::remove_all_extents_t<T>>);
    }
    return text;
}

/// A record of the library as an argument: what isn't given is zero.
template <typename T>
Argument record(const std::string& name, std::string help)
{
    const auto parse = [=](std::span<const std::string> words) -> std::any {
        T value{};
        fromJson(name, recordFromWords(name, words), value);
        return value;
    };
    return {name, std::move(help), "MEMBER=VALUE... or one JSON object", parse, true, membersText<T>(4)};
}

/// A std::vector of records: one JSON list.
template <typename T>
Argument recordList(const std::string& name, std::string help, size_t most)
{
    const auto parse = [=](std::span<const std::string> words) -> std::any {
        const Json list = valueFromWord(name, words.front());
        checkList(name, list, most);
        std::vector<T> values(list.size());
        for (size_t i = 0; i < values.size(); ++i) {
            fromJson(fmt::format("{}[{}]", name, i), list[i], values[i]);
        }
        return values;
    };
    return {name,  std::move(help), fmt::format("JSON list of at most {} records", most),
            parse, false,           membersText<T>(4)};
}

/// How a request shows the member of the result record that it fills.
template <typename T>
auto show(T Rsp::*pointer)
{
    return [=](const Rsp& rsp) { return toJson(rsp.*pointer); };
}

template <>
inline constexpr auto kMembers<RadioModemVerdict> =
    std::tuple{member("failure", &RadioModemVerdict::failure)};

template <uint32_t capacity>
inline constexpr auto kMembers<RadioBlob<capacity>> =
    std::tuple{member("length", &RadioBlob<capacity>::length),
               countedMember("data", &RadioBlob<capacity>::data, "length", &RadioBlob<capacity>::length)};

} // namespace radioctl
