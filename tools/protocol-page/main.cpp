/// protocol-page: docs/protocol.md, from the catalogue of messages.
#include "sim/protocol.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace {

using namespace sim;

constexpr char kHead[] = R"(# Messages

Every message between the library and the modem, from `protocol/messages.json`; `protocol-page` prints this page.

A message has an id, a transaction, a slot bit (1, 2, 4 for the slots 0, 1, 2) and fields, each with a tag. Numbers are
little-endian; `str` ends with a NUL; `rec` is a record of so many bytes. `[]` marks arrays. Every answer carries the
modem's 32-bit result in field 0, which is not listed: 0 is success. *Optional* fields may be absent, *private* ones are
never traced, a *key* tells which of several settings of one kind is meant. Requests of one id differ in their fields.
)";

std::string typeName(const FieldSpec& field)
{
    switch (field.kind) {
    case FieldKind::Int8:
    case FieldKind::Int16:
    case FieldKind::Int32:
        return fmt::format("int{}", 8 * field.maxLength);
    case FieldKind::Uint8:
    case FieldKind::Uint16:
    case FieldKind::Uint32:
        return fmt::format("uint{}", 8 * field.maxLength);
    case FieldKind::String:
        return "str";
    case FieldKind::Raw:
        return "raw";
    case FieldKind::Record:
        return "rec";
    }
    return "";
}

std::string lengths(const FieldSpec& field)
{
    if (isNumber(field.kind)) {
        return "";
    }
    const bool isBounded = field.maxLength < UINT16_MAX; // what a field can hold at all
    if (!isBounded) {
        return field.minLength == 0 ? "" : fmt::format(" of at least {} bytes", field.minLength);
    }
    if (field.minLength == field.maxLength) {
        return fmt::format(" of {} bytes", field.maxLength);
    }
    return field.minLength == 0 ? fmt::format(" of at most {} bytes", field.maxLength)
                                : fmt::format(" of {} to {} bytes", field.minLength, field.maxLength);
}

std::string fieldText(const FieldSpec& field)
{
    std::string text = fmt::format("{} `{}` {}{}{}", field.tag, field.name, typeName(field),
                                   field.isArray ? "[]" : "", lengths(field));
    text += field.isArray && field.maxCount != UINT16_MAX ? fmt::format(", at most {}", field.maxCount) : "";
    text += field.isOptional ? ", *optional*" : "";
    text += field.isPrivate ? ", *private*" : "";
    text += field.isKey ? ", *key*" : "";
    return text;
}

std::string fieldTexts(const std::vector<FieldSpec>& fields)
{
    std::string text;
    for (const FieldSpec& field : fields) {
        text += (text.empty() ? "" : "<br>") + fieldText(field);
    }
    return text;
}

void printMessages(MessageKind kind, std::string_view title, std::string_view columns)
{
    const auto columnCount = static_cast<size_t>(std::ranges::count(columns, '|')) - 1;
    fmt::print("\n## {}\n\n{}\n|", title, columns);
    for (size_t i = 0; i < columnCount; ++i) {
        fmt::print("---|");
    }
    fmt::print("\n");
    for (const MessageSpec& message : Protocol::instance().messages()) {
        if (message.kind != kind) {
            continue;
        }
        const std::string note = message.note.empty() ? "" : "<br>" + message.note;
        fmt::print("| 0x{:04X} | `{}`{} |", message.id, message.name, note);
        if (kind == MessageKind::Request) {
            fmt::print(" {} |", fieldTexts(message.request));
        }
        fmt::print(" {} |\n", fieldTexts(message.response));
    }
}

} // namespace

int main()
{
    fmt::print("{}", kHead);
    printMessages(MessageKind::Request, "Requests", "| id | name | request | answer |");
    printMessages(MessageKind::Indication, "Indications", "| id | name | fields |");
}
