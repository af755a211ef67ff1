/// The arguments of one call.
#pragma once

#include "interface/records.h"

#include <cstring>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace interface {

/// The checked values of a call, by the place of the argument in Request::arguments. The types are those of the
/// request's function; the calls made from radio_apis.json are what reads them.
class Arguments {
public:
    /// From a command line's words. A number is decimal, hexadecimal behind 0x, or a name; bytes are hexadecimal
    /// digits or @FILE; a list has commas between its numbers, or is -, or JSON; the last argument takes all words that
    /// are left when it is a record: MEMBER=VALUE... or one JSON object. Throws ArgumentError.
    static Arguments fromWords(const Request& request, std::span<const std::string> words);

    /// From an object with a member for each argument. Throws ArgumentError.
    static Arguments fromJson(const Request& request, const Json& members);

    template <typename T>
    T number(size_t place) const
    {
        return static_cast<T>(mValues[place].number);
    }

    const char* text(size_t place) const { return mValues[place].text.c_str(); }

    template <typename T>
    T record(size_t place) const
    {
        static_assert(std::is_trivially_copyable_v<T>);
        T record;
        std::memcpy(static_cast<void*>(&record), mValues[place].bytes.data(), sizeof record);
        return record;
    }

    template <typename T>
    std::vector<T> records(size_t place) const
    {
        static_assert(std::is_trivially_copyable_v<T>);
        std::vector<T> records(mValues[place].count);
        if (!records.empty()) {
            std::memcpy(static_cast<void*>(records.data()), mValues[place].bytes.data(),
                        records.size() * sizeof(T));
        }
        return records;
    }

    /// The elements, never null: some functions refuse that even for no elements.
    template <typename T>
    T* list(size_t place)
    {
        return reinterpret_cast<T*>(mValues[place].bytes.data());
    }

    template <typename T>
    T count(size_t place) const
    {
        return static_cast<T>(mValues[place].count);
    }

    /// A list of bytes.
    std::span<const uint8_t> bytes(size_t place) const
    {
        return std::span(mValues[place].bytes).first(mValues[place].count);
    }

private:
    struct Value {
        uint64_t number = 0; ///< two's complement
        std::string text;
        std::vector<uint8_t> bytes; ///< of records or elements, room for one at least
        size_t count = 0;
    };

    static Value valueOf(const Argument& argument, const Json& in, Files files);

    std::vector<Value> mValues;
};

/// A record's members from MEMBER=VALUE words, or from one that is a JSON object. Throws ArgumentError.
Json membersFromWords(const std::string& where, std::span<const std::string> words);

} // namespace interface
