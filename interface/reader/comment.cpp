#include "comment.h"

#include <fmt/format.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <regex>
#include <sstream>

namespace reader {

namespace {

/// The commands that are taken out of texts; every other one is an alias.
const std::map<std::string, std::function<void(Text&, const std::string&)>>& textCommands()
{
    static const std::map<std::string, std::function<void(Text&, const std::string&)>> commands = {
        {"unit", [](Text& text, const std::string& value) { text.unit = value; }},
        {"values", [](Text& text, const std::string& value) { text.values = value; }},
        {"label", [](Text& text, const std::string& value) { text.label = value; }},
        {"called", [](Text& text, const std::string& value) { text.called = value; }},
        {"record", [](Text& text, const std::string& value) { text.record = value; }},
        {"countedby", [](Text& text, const std::string& value) { text.countedBy = value; }},
        {"domain", [](Text& text, const std::string& value) { text.domain = value; }},
        {"signed", [](Text& text, const std::string&) { text.isSigned = true; }},
        {"failure", [](Text& text, const std::string&) { text.tellsFailure = true; }},
        {"confidential", [](Text& text, const std::string&) { text.isConfidential = true; }},
        {"unused", [](Text& text, const std::string&) { text.isUnused = true; }},
        {"range",
         [](Text& text, const std::string& value) {
             static const std::regex form(R"((-?\d+) to (-?\d+)(?:, multiple of (\d+))?)");
             std::smatch match;
             if (!std::regex_match(value, match, form)) {
                 throw HeaderError(
                     fmt::format("'{}' is no range like '0 to 15' or '4 to 64, multiple of 4'", value));
             }
             text.range = {std::stoll(match[1]), std::stoll(match[2]),
                           match[3].matched ? std::stoll(match[3]) : 1};
         }},
    };
    return commands;
}

/// A command at a place of a text, with what stands in its braces.
struct Command {
    size_t begin;
    size_t end;
    std::string name;
    std::string argument;
    bool hasArgument;
};

std::optional<Command> findCommand(const std::string& text, size_t from)
{
    static const std::regex form(R"(\\([a-z]+))");
    std::smatch match;
    if (!std::regex_search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), match, form)) {
        return std::nullopt;
    }
    Command command{from + static_cast<size_t>(match.position()), 0, match[1], "", false};
    command.end = command.begin + static_cast<size_t>(match.length());
    if (command.end < text.size() && text[command.end] == '{') {
        const size_t close = text.find('}', command.end);
        if (close == std::string::npos) {
            throw HeaderError(fmt::format("\\{}{{ is not closed", command.name));
        }
        command.argument = text.substr(command.end + 1, close - command.end - 1);
        command.hasArgument = true;
        command.end = close + 1;
    }
    return command;
}

std::string replaced(std::string text, std::string_view what, std::string_view with)
{
    for (size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
        text.replace(at, what.size(), with);
    }
    return text;
}

/// The parts between the commas, but for those behind a backslash.
std::vector<std::string> argumentsOf(const Command& command)
{
    std::vector<std::string> arguments;
    if (command.hasArgument) {
        std::istringstream parts(replaced(command.argument, "\\,", "\x01"));
        for (std::string part; std::getline(parts, part, ',');) {
            part.erase(0, part.find_first_not_of(' '));
            arguments.push_back(replaced(part, "\x01", ","));
        }
    }
    return arguments;
}

/// Blanks and the punctuation that commands left behind.
std::string tidied(std::string text)
{
    text = std::regex_replace(text, std::regex(R"(\s+)"), " ");
    text = std::regex_replace(text, std::regex(R"( ([.,;:]))"), "$1");
    text = std::regex_replace(text, std::regex(R"([,;:]+([.,;:]))"), "$1");
    text = std::regex_replace(text, std::regex(R"(^[ .,;:]+|[ ,;:]+$)"), "");
    return text;
}

Text takeCommands(std::string text)
{
    Text out;
    for (size_t from = 0;;) {
        const auto command = findCommand(text, from);
        if (!command) {
            break;
        }
        const auto known = textCommands().find(command->name);
        if (known == textCommands().end()) {
            throw HeaderError(fmt::format("there is no command \\{}", command->name));
        }
        known->second(out, command->argument);
        const bool isShown = command->name == "label";
        const std::string rest = isShown ? command->argument : "";
        text.replace(command->begin, command->end - command->begin, rest);
        from = command->begin + rest.size();
    }
    out.text = tidied(text);
    return out;
}

std::string withoutSlashes(const std::string& raw)
{
    static const std::regex front(R"(^\s*///<? ?)");
    std::istringstream lines(raw);
    std::string text;
    for (std::string line; std::getline(lines, line);) {
        text += std::regex_replace(line, front, "") + '\n';
    }
    return text;
}

} // namespace

Aliases::Aliases(const std::string& doxyfile)
{
    std::ifstream file(doxyfile);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    static const std::regex form(R"re("(\w+)(?:\{(\d)\})?=([^"]*)")re");
    const size_t begin = text.find("ALIASES");
    if (begin == std::string::npos) {
        throw HeaderError(doxyfile + " has no ALIASES");
    }
    for (std::sregex_iterator at(text.begin() + static_cast<std::ptrdiff_t>(begin), text.end(), form), end;
         at != end; ++at) {
        const std::string name = (*at)[1];
        if (!textCommands().contains(name)) {
            mTexts[{name, (*at)[2].matched ? std::stoul((*at)[2]) : 0}] = (*at)[3];
        }
    }
}

std::string Aliases::expanded(const std::string& text) const
{
    std::string out = text;
    for (size_t from = 0;;) {
        const auto command = findCommand(out, from);
        if (!command) {
            return out;
        }
        std::vector<std::string> arguments = argumentsOf(*command);
        auto alias = mTexts.find({command->name, arguments.size()});
        if (alias == mTexts.end() && command->hasArgument) {
            arguments = {command->argument};
            alias = mTexts.find({command->name, 1});
        }
        if (alias == mTexts.end()) {
            from = command->end;
            continue;
        }
        std::string with = replaced(alias->second, "^^", "\n");
        for (size_t i = 0; i < arguments.size(); ++i) {
            with = replaced(with, fmt::format("\\{}", i + 1), arguments[i]);
        }
        out.replace(command->begin, command->end - command->begin, with);
        from = command->begin; // what came in may hold aliases itself
    }
}

Comment parseComment(const std::string& raw, const Aliases& aliases)
{
    Comment comment;
    const std::string bare = withoutSlashes(raw);
    comment.text.isUnsupported = bare.find("\\unsupported") != std::string::npos;
    std::istringstream lines(aliases.expanded(bare));
    std::string description;
    std::string returns;
    std::map<std::string, std::string> parameters;
    std::string* current = &description;
    static const std::regex parameter(R"(@param (\w+)(.*))");
    static const std::regex returned(R"(@return(.*))");
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (std::regex_match(line, match, parameter)) {
            current = &parameters[match[1]];
            *current = match[2];
        } else if (std::regex_match(line, match, returned)) {
            current = &returns;
            *current = match[1];
        } else if (line != "@file") {
            *current += '\n' + line;
        }
    }
    const bool isUnsupported = comment.text.isUnsupported;
    comment.text = takeCommands(description);
    comment.text.isUnsupported = isUnsupported;
    comment.returns = takeCommands(returns).text;
    for (const auto& [name, text] : parameters) {
        comment.parameters[name] = takeCommands(text);
    }
    return comment;
}

std::pair<std::string, std::string> firstSentence(const std::string& text)
{
    static const std::regex form(R"((.*?\.) (?=[A-Z`0-9])(.*))");
    std::smatch match;
    return std::regex_match(text, match, form) ? std::pair(match.str(1), match.str(2)) : std::pair(text, "");
}

} // namespace reader
