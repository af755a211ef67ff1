#include "radioctl/batch.h"

#include "radioctl/command.h"
#include "radioctl/print.h"

#include <fmt/format.h>

namespace radioctl {

std::vector<std::string> splitWords(std::string_view line)
{
    std::vector<std::string> words;
    char quote = '\0';
    bool inWord = false;
    for (const char c : line) {
        if (quote != '\0') {
            if (c == quote) {
                quote = '\0';
            } else {
                words.back() += c;
            }
            continue;
        }
        if (c == '#' && !inWord) {
            return words;
        }
        if (c == ' ' || c == '\t' || c == '\r') {
            inWord = false;
            continue;
        }
        if (!inWord) {
            words.emplace_back();
            inWord = true;
        }
        if (c == '"' || c == '\'') {
            quote = c;
        } else {
            words.back() += c;
        }
    }
    if (quote != '\0') {
        throw UsageError(fmt::format("{} is not closed", quote));
    }
    return words;
}

int runBatch(std::istream& input, const std::string& inputName, const Session& session, bool json)
{
    std::string line;
    for (int number = 1; std::getline(input, line); ++number) {
        int status = kExitSuccess;
        try {
            const auto words = splitWords(line);
            if (words.empty()) {
                continue;
            }
            status = parseCommand(words, json)(session);
        } catch (const UsageError& error) {
            fmt::print(stderr, "radioctl: {}\n", error.what());
            status = kExitUsage;
        }
        if (status != kExitSuccess) {
            fmt::print(stderr, "radioctl: stopped at {}:{}\n", inputName, number);
            return status;
        }
    }
    return kExitSuccess;
}

} // namespace radioctl
