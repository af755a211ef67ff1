#include "interface/words.h"

#include "interface/records.h"

#include <fmt/format.h>

namespace interface {

std::vector<std::string> splitWords(std::string_view line, const Variable& variable)
{
    std::vector<std::string> words;
    char quote = '\0';
    bool inWord = false;
    while (!line.empty()) {
        const char c = line.front();
        if (quote == '\0' && c == '#' && !inWord) {
            return words;
        }
        const bool isBlank = c == ' ' || c == '\t' || c == '\r';
        const bool isQuote = c == '"' || c == '\'';
        const bool separates = quote == '\0' && isBlank;
        if (!inWord && !separates) {
            words.emplace_back();
        }
        inWord = !separates;
        if (c == '$' && quote != '\'' && variable) {
            words.back() += variable(line);
            continue;
        }
        line.remove_prefix(1);
        if (quote != '\0' ? c == quote : isQuote) {
            quote = quote != '\0' ? '\0' : c;
        } else if (!separates) {
            words.back() += c;
        }
    }
    if (quote != '\0') {
        throw ArgumentError(fmt::format("{} is not closed", quote));
    }
    return words;
}

} // namespace interface
