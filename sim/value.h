/// What the fields of a message carry, apart from any message, and its forms: in a message and in JSON.
#pragma once

#include "json_node.h"
#include "sim/modem.h"
#include "sim/protocol.h"

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <string_view>
#include <variant>
#include <vector>

namespace sim {

using Bytes = std::vector<uint8_t>;

/// The bytes of a field; of each element when the field is an array.
using Value = std::variant<Bytes, std::vector<Bytes>>;

/// A number as the modem's fields and blocks hold it: little-endian.
template <std::integral Number>
Bytes toBytes(Number number)
{
    Bytes bytes;
    for (size_t i = 0; i < sizeof(Number); ++i) {
        bytes.push_back(static_cast<uint8_t>(static_cast<uint64_t>(number) >> (8 * i)));
    }
    return bytes;
}

/// The number at an offset; bytes that are not there count as zero.
template <std::integral Number>
Number toNumber(const Bytes& bytes, size_t offset = 0)
{
    uint64_t number = 0;
    for (size_t i = 0; i < sizeof(Number) && offset + i < bytes.size(); ++i) {
        number |= static_cast<uint64_t>(bytes[offset + i]) << (8 * i);
    }
    return static_cast<Number>(number);
}

template <std::integral Number>
void append(Bytes& block, Number number)
{
    const Bytes bytes = toBytes(number);
    block.insert(block.end(), bytes.begin(), bytes.end());
}

inline void append(Bytes& block, const Bytes& more)
{
    block.insert(block.end(), more.begin(), more.end());
}

/// Two lower-case digits per byte.
std::string hexDigits(const Bytes& bytes);

/// A row of 32-bit words, negative ones in two's complement.
Bytes wordBlock(std::initializer_list<int64_t> words);

/// The fields of one message by tag.
class Fields {
public:
    void set(uint16_t tag, Value value) { mValues[tag] = std::move(value); }
    void setText(uint16_t tag, std::string_view text); ///< with a terminating NUL

    template <std::integral Number>
    void setNumber(uint16_t tag, Number number)
    {
        set(tag, toBytes(number));
    }

    /// Reading what is not there gives zero, no bytes, no elements.
    const Value* find(uint16_t tag) const;
    const Bytes& bytes(uint16_t tag) const;
    const std::vector<Bytes>& elements(uint16_t tag) const;
    std::string_view text(uint16_t tag) const; ///< up to the first NUL

    template <std::integral Number>
    Number number(uint16_t tag) const
    {
        return toNumber<Number>(bytes(tag));
    }

    auto begin() { return mValues.begin(); }
    auto end() { return mValues.end(); }
    auto begin() const { return mValues.begin(); }
    auto end() const { return mValues.end(); }
    size_t size() const { return mValues.size(); }

private:
    std::map<uint16_t, Value> mValues;
};

/// A message with these fields; null when they don't fit into one.
Message makeMessage(const vorn_msg_hdr_t& header, const Fields& fields);

/// The request that a text names. Throws ScenarioError when there is none.
const MessageSpec& requestFromJson(const JsonNode& node);

/// A field's value from JSON: numbers, texts, raw bytes as hexadecimal digits, arrays as lists of these.
/// Throws ScenarioError when it does not suit the field.
Value valueFromJson(const JsonNode& node, const FieldSpec& spec);

/// The fields of a message. `Partial` ones may lack any field, others only the optional ones.
enum class Extent { Whole, Partial };
Fields fieldsFromJson(JsonNode node, const std::vector<FieldSpec>& specs, Extent extent = Extent::Whole);

/// The reverse. Private contents and bytes that don't have the field's width are given by their length.
nlohmann::json valueToJson(const Value& value, const FieldSpec& spec);
nlohmann::json fieldsToJson(const Fields& fields, const std::vector<FieldSpec>& specs);

} // namespace sim
