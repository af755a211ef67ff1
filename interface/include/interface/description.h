/// What the public headers tell of requests, records and events, as tables.
///
/// The tables are made from radio_apis.json when the library is built, are constant, and live as long as the process.
#pragma once

#include "radio_apis/radio_apis.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace interface {

class Arguments;

/// A number that has a name, as 5 is NR.
struct Value {
    std::string_view name; ///< for texts; commands have it in lower case, with '-' for blanks
    int64_t value;
};

/// The bounds of a number; of texts, bytes and lists how many elements.
struct Range {
    int64_t least;
    int64_t most;
    int64_t multipleOf;
};

/// What an argument or a member is.
struct Meaning {
    std::string_view name;
    std::string_view text; ///< begins with a sentence that stands on its own
    std::string_view unit; ///< empty without one
    std::span<const Value> values;
    std::optional<Range> range;
    bool isSigned;     ///< a signed number in an unsigned word
    bool tellsFailure; ///< not 0: the modem reported a failure
    bool isPrivate;    ///< not for logs
    bool isUnused;     ///< without effect, or never filled
};

enum class Type : uint8_t { Bool, Char, Int8, Uint8, Int16, Uint16, Int32, Uint32, Int64, Uint64, Record };

struct Record;

/// One member of a record.
struct Member {
    Meaning meaning;
    Type type;
    const Record* record;            ///< of Type::Record
    uint32_t offset;                 ///< bytes from the record's start, of any alignment
    std::array<uint16_t, 2> lengths; ///< of an array, or an array of arrays; otherwise 0
    const Member* countedBy;         ///< the member that counts the elements which matter, or null
    bool counts;                     ///< it is such a member of another one
};

struct Record {
    std::string_view name; ///< of the C++ type
    std::string_view text;
    uint32_t size; ///< bytes
    std::span<const Member> members;
};

/// How a value of an argument is given.
enum class Form : uint8_t {
    Number,
    Text,
    List,   ///< numbers, of Type::Uint8 bytes; a parameter behind it counts them
    Record, ///< one
    Records ///< any number of them
};

struct Argument {
    Meaning meaning;
    Form form;
    Type type;            ///< of the number, or of the elements
    const Record* record; ///< of Type::Record
};

/// A header of requests.
struct Domain {
    std::string_view name;  ///< the header's
    std::string_view title; ///< for people
};

struct Request {
    std::string_view name;     ///< get-lte-cell-info
    std::string_view function; ///< radioGetLteCellInfo
    const Domain* domain;
    std::string_view text;    ///< one sentence
    std::string_view details; ///< further ones, or nothing
    std::string_view returns; ///< what the function returns
    std::span<const Argument> arguments;
    const Record* answer; ///< what a success fills; null for nothing
    bool isSupported;     ///< otherwise the library refuses it always
    /// Calls the function.
    int (*call)(Arguments& in, void* userData, RadioRequestCallback callback);
};

struct Event {
    std::string_view name; ///< scene-mode
    RADIO_EVENT_TYPE type;
    std::string_view text;
    const Record* record;
};

/// All of them, in the order of the headers.
std::span<const Domain> domains();
std::span<const Request> requests();
std::span<const Event> events();
std::span<const Record> records();

/// The names of RADIO_APIS_RESULT.
std::span<const Value> results();

// Null when there is none of that name.

/// Understands a function's name, too.
const Request* findRequest(std::string_view name);
const Event* findEvent(std::string_view name);
const Event* findEvent(RADIO_EVENT_TYPE type);
const Record* findRecord(std::string_view name);

} // namespace interface
