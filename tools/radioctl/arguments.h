/// The arguments of a request, from the command line's words.
#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace radioctl {

/// Words that don't make a request; the message tells why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What one argument is, for checks and for help.
struct Argument {
    enum class Kind { Number, Bytes };

    std::string name;
    std::string help; ///< what it means, with its unit
    Kind kind = Kind::Number;
    int64_t lowest = 0;  ///< of a number
    int64_t highest = 0; ///< of a number
    size_t maxBytes = 0; ///< of bytes
    std::string rangeText() const;
};

/// A number of type T, or in a range of its own.
template <typename T>
Argument number(std::string name, std::string help, int64_t lowest = std::numeric_limits<T>::lowest(),
                int64_t highest = std::numeric_limits<T>::max())
{
    return {std::move(name), std::move(help), Argument::Kind::Number, lowest, highest, 0};
}

/// Bytes: hexadecimal digits, or @FILE.
Argument bytes(std::string name, std::string help, size_t maxBytes);

/// The checked values of one call.
class Arguments {
public:
    /// Throws UsageError for a word that does not fit its argument.
    Arguments(const std::vector<Argument>& descriptions, const std::vector<std::string>& words);

    template <typename T = int>
    T number(std::string_view name) const
    {
        return static_cast<T>(find(name).number);
    }
    const std::vector<uint8_t>& bytes(std::string_view name) const { return find(name).bytes; }

private:
    struct Value {
        int64_t number = 0;
        std::vector<uint8_t> bytes;
    };
    static Value parse(const Argument& argument, const std::string& word);
    const Value& find(std::string_view name) const;

    std::map<std::string, Value, std::less<>> mValues;
};

} // namespace radioctl
