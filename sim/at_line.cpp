#include "at_line.h"

#include <algorithm>

namespace sim {
namespace {

constexpr size_t kMaxLength = 4096;
constexpr std::string_view kPrefix = "AT";
constexpr std::string_view kExtendedMarks = "+*%^$#";

bool isCapital(char c)
{
    return c >= 'A' && c <= 'Z';
}
bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}
char capital(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::optional<AtParameter> parseParameter(std::string_view piece)
{
    const auto quotes = std::ranges::count(piece, '"');
    if (quotes == 0) {
        return AtParameter{std::string(piece), false};
    }
    if (quotes != 2 || piece.front() != '"' || piece.back() != '"') {
        return std::nullopt;
    }
    return AtParameter{std::string(piece.substr(1, piece.size() - 2)), true};
}

/// The position of the next comma outside quotes, or the end.
size_t endOfParameter(std::string_view text)
{
    bool quoted = false;
    for (size_t i = 0; i < text.size(); ++i) {
        quoted ^= text[i] == '"';
        if (text[i] == ',' && !quoted) {
            return i;
        }
    }
    return text.size();
}

std::optional<std::vector<AtParameter>> parseParameters(std::string_view text)
{
    std::vector<AtParameter> parameters;
    while (true) {
        const size_t end = endOfParameter(text);
        auto parameter = parseParameter(text.substr(0, end));
        if (!parameter) {
            return std::nullopt;
        }
        parameters.push_back(std::move(*parameter));
        if (end == text.size()) {
            return parameters;
        }
        text.remove_prefix(end + 1);
    }
}

std::optional<AtLine> parseBasic(std::string_view text)
{
    const std::string_view digits = text.substr(1);
    if (!isCapital(text.front()) || !std::ranges::all_of(digits, isDigit)) {
        return std::nullopt;
    }
    AtLine line{std::string(1, text.front()), AtForm::Execute, {}};
    if (!digits.empty()) {
        line.parameters.push_back({std::string(digits), false});
    }
    return line;
}

std::optional<AtLine> parseExtended(std::string_view text)
{
    const auto isNameLetter = [](char c) { return isCapital(c) || isDigit(c) || c == '_'; };
    const auto end = std::find_if_not(text.begin() + 1, text.end(), isNameLetter);
    AtLine line{std::string(text.begin(), end), AtForm::Execute, {}};
    const std::string_view rest = text.substr(line.name.size());
    if (line.name.size() < 2) {
        return std::nullopt;
    }
    if (rest.empty()) {
        return line;
    }
    if (rest == "?" || rest == "=?") {
        line.form = rest == "?" ? AtForm::Query : AtForm::Test;
        return line;
    }
    auto parameters = rest.front() == '=' ? parseParameters(rest.substr(1)) : std::nullopt;
    if (!parameters) {
        return std::nullopt;
    }
    line.form = AtForm::Set;
    line.parameters = std::move(*parameters);
    return line;
}

} // namespace

std::optional<std::string> normalizeAt(std::string_view command)
{
    while (command.ends_with('\r') || command.ends_with('\n')) {
        command.remove_suffix(1);
    }
    if (command.size() > kMaxLength) {
        return std::nullopt;
    }
    std::string normalized;
    bool quoted = false;
    for (const char c : command) {
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') {
            return std::nullopt;
        }
        quoted ^= c == '"';
        if (quoted) {
            normalized += c;
        } else if (c != ' ') {
            normalized += capital(c);
        }
    }
    return quoted ? std::nullopt : std::optional(normalized);
}

std::optional<AtLine> parseAt(std::string_view normalized)
{
    if (!normalized.starts_with(kPrefix)) {
        return std::nullopt;
    }
    normalized.remove_prefix(kPrefix.size());
    if (normalized.empty()) {
        return AtLine{};
    }
    return kExtendedMarks.find(normalized.front()) != std::string_view::npos ? parseExtended(normalized)
                                                                             : parseBasic(normalized);
}

} // namespace sim
