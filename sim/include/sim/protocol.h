/// The catalogue of messages: every message between the library and the modem, read from
/// protocol/messages.json.
///
/// A row there:
///   {"id": "0x3895", "name": "SetSarState", "kind": "request", "request": [FIELD...], "response":
///   [FIELD...]}
///   {"id": "0x7E07", "name": "HyperUplinkStateInd", "kind": "indication", "indication": [FIELD...]}
/// and a field, in wire order:
///   {"tag": 256, "name": "source", "type": "int32"}
/// Types are int8 uint8 int16 uint16 int32 uint32 str raw, and the arrays int32[] uint8[] str[] rec[]. "size"
/// is the exact number of bytes of a raw field or of each rec[] element, "min" and "max" bound the bytes of a
/// raw or str field, "maxCount" the elements of an array. "optional" fields may be absent, "private" ones are
/// never shown, a "key" tells which of several settings of one kind is meant. Field 0, the result, is part of
/// every response and not listed. Rows may share an id: their requests differ in their fields.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

enum class FieldKind { Int8, Uint8, Int16, Uint16, Int32, Uint32, String, Raw, Record };

struct FieldSpec {
    uint16_t tag = 0;
    std::string name;
    FieldKind kind = FieldKind::Raw;
    bool isArray = false;
    bool isOptional = false;
    bool isPrivate = false;
    bool isKey = false;
    size_t minLength = 0; ///< bytes of the value, or of each element of an array
    size_t maxLength = 0;
    size_t maxCount = 0; ///< elements of an array
};

enum class MessageKind { Request, Indication };

struct MessageSpec {
    uint16_t id = 0;
    std::string name;
    MessageKind kind = MessageKind::Request;
    std::vector<FieldSpec> request;
    std::vector<FieldSpec> response; ///< what the modem sends: the answer without field 0, or the indication
    std::string note;
};

/// Whether a field of this kind is a number, of `minLength` bytes then.
bool isNumber(FieldKind kind);
bool isSigned(FieldKind kind);

class Protocol {
public:
    /// The catalogue compiled into the library.
    static const Protocol& instance();

    /// Reads a catalogue; throws std::runtime_error that names the faulty row.
    explicit Protocol(std::string_view json);

    const std::vector<MessageSpec>& messages() const { return mMessages; }

    /// The rows of an id, in catalogue order; none when the id is unknown.
    std::span<const MessageSpec> byId(uint16_t id) const;

    /// A row by its name, or by its id written as a number ("0x3895", "53"); null when there is none.
    const MessageSpec* find(std::string_view nameOrId) const;

    /// The names of all messages of a kind, in catalogue order.
    std::vector<std::string> namesOf(MessageKind kind) const;

    /// Every tag that stands in any request or response, field 0 included, ascending.
    const std::vector<uint16_t>& tags() const { return mTags; }

private:
    std::vector<MessageSpec> mMessages; ///< sorted by id, rows of one id in catalogue order
    std::vector<uint16_t> mTags;
};

} // namespace sim
