#include "radioctl/batch.h"

#include "radioctl/command.h"
#include "radioctl/print.h"

#include <fmt/format.h>

#include <optional>

namespace radioctl {

namespace {

/// One command, or the assignment of a request's record.
int runLine(const std::vector<std::string>& words, Variables& variables, const Session& session, bool json)
{
    if (words.size() < 2 || words[1] != "=") {
        return parseCommand(words, json)(session);
    }
    if (!Variables::isName(words[0]) || words.size() == 2) {
        throw UsageError("an assignment is NAME = REQUEST ARGUMENT...");
    }
    const RequestCall call = parseRequest(std::span(words).subspan(2));
    const Outcome outcome = session.run(*call.request, call.arguments);
    variables.set(words[0], outcome.record);
    return printOutcome(*call.request, outcome, json);
}

/// Rewrites one line of standard error.
class Progress {
public:
    explicit Progress(size_t lines) : mLines(lines) {}
    ~Progress() { fmt::print(stderr, "\r\033[K"); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void show(size_t line, const std::string& command) const
    {
        // The cursor goes back, so that a message takes the line's place.
        fmt::print(stderr, "\r\033[K{}/{} {}\r", line, mLines, command);
    }

private:
    size_t mLines;
};

size_t countLines(std::istream& input)
{
    size_t lines = 0;
    for (std::string line; std::getline(input, line);) {
        ++lines;
    }
    input.clear();
    input.seekg(0);
    return lines;
}

} // namespace

std::vector<std::string> splitWords(std::string_view line, const Variables* variables)
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
        if (c == '$' && quote != '\'' && variables != nullptr) {
            words.back() += variables->take(line);
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
        throw UsageError(fmt::format("{} is not closed", quote));
    }
    return words;
}

int runBatch(std::istream& input, const BatchOptions& options, const Session& session)
{
    std::optional<Progress> progress;
    if (options.progress) {
        progress.emplace(countLines(input));
    }
    Variables variables;
    std::string line;
    for (size_t number = 1; std::getline(input, line); ++number) {
        int status = kExitSuccess;
        try {
            const auto words = splitWords(line, &variables);
            if (words.empty()) {
                continue;
            }
            if (progress) {
                progress->show(number, words.front());
            }
            status = runLine(words, variables, session, options.json);
        } catch (const UsageError& error) {
            fmt::print(stderr, "radioctl: {}\n", error.what());
            status = kExitUsage;
        }
        if (status != kExitSuccess) {
            fmt::print(stderr, "radioctl: stopped at {}:{}\n", options.inputName, number);
            return status;
        }
    }
    return kExitSuccess;
}

} // namespace radioctl
