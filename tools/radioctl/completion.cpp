// Completion of command lines, from the tables.
#include "radioctl/event.h"
#include "radioctl/program.h"

#include <fmt/format.h>

#include <algorithm>

namespace radioctl {

namespace {

/// What may stand at the first places behind a command.
struct Places {
    std::string command;
    std::vector<std::string> words; ///< one entry for each place, its words with blanks between them
};

std::string joined(const std::vector<std::string>& words)
{
    return fmt::format("{}", fmt::join(words, " "));
}

std::vector<std::string> requestNames()
{
    std::vector<std::string> names;
    std::ranges::transform(requests(), std::back_inserter(names), &Request::name);
    return names;
}

std::vector<Places> allPlaces()
{
    std::vector<std::string> eventNames;
    std::ranges::transform(events(), std::back_inserter(eventNames), &Event::name);
    std::vector<Places> all = {
        {"events", {joined(eventNames)}},
        {"watch", {joined(requestNames())}},
        {"sim", {"state indicate fault-add fault-clear load restart"}},
        {"completion", {"bash zsh"}},
    };
    for (const Request& request : requests()) {
        Places places{request.name(), {}};
        for (const Argument& argument : request.arguments) {
            places.words.push_back(joined(argument.choices));
        }
        if (std::ranges::any_of(places.words, [](const auto& words) { return !words.empty(); })) {
            all.push_back(std::move(places));
        }
    }
    return all;
}

/// `case` branches that set `words` to what may stand at place $place behind $command.
std::string placeBranches()
{
    std::string text;
    for (const Places& places : allPlaces()) {
        for (size_t i = 0; i < places.words.size(); ++i) {
            if (!places.words[i].empty()) {
                text += fmt::format("        {}:{}) words='{}' ;;\n", places.command, i + 1, places.words[i]);
            }
        }
    }
    return text;
}

std::string optionNames(bool takingValues)
{
    std::vector<std::string> names;
    for (const OptionText& option : optionTexts()) {
        if (!takingValues || !option.value.empty()) {
            names.push_back(option.name);
        }
    }
    return fmt::format("{}", fmt::join(names, takingValues ? "|" : " "));
}

std::string commandNames()
{
    std::vector<std::string> names;
    std::ranges::transform(subCommands(), std::back_inserter(names), &SubCommand::name);
    return joined(names) + ' ' + joined(requestNames());
}

/// Within single quotes of a shell, and within a description behind a colon.
std::string quoted(std::string text)
{
    for (size_t at = 0; (at = text.find('\'', at)) != std::string::npos; at += 4) {
        text.replace(at, 1, R"('\'')");
    }
    return text;
}

} // namespace

std::string bashCompletion()
{
    return fmt::format(
        R"(# Completion of radioctl for bash: source it, or put it where bash looks for completions.
_radioctl()
{{
    local current=${{COMP_WORDS[COMP_CWORD]}} command= place=0 words= i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${{COMP_WORDS[i]}} in
        {}) ((++i)) ;;
        -*) ;;
        *) if [ -z "$command" ]; then command=${{COMP_WORDS[i]}}; fi; ((++place)) ;;
        esac
    done
    if [[ $current == -* ]]; then
        words='{} --help'
    elif [ -z "$command" ]; then
        words='{}'
    else
        case $command:$place in
{}        batch:1 | sim:*) COMPREPLY=($(compgen -f -- "$current")); return ;;
        esac
    fi
    COMPREPLY=($(compgen -W "$words" -- "$current"))
}}
complete -F _radioctl radioctl
)",
        optionNames(true), optionNames(false), commandNames(), placeBranches());
}

std::string zshCompletion()
{
    std::string described;
    for (const SubCommand& command : subCommands()) {
        described += fmt::format("        '{}:{}'\n", command.name, quoted(command.help));
    }
    for (const Request& request : requests()) {
        described += fmt::format("        '{}:{}'\n", request.name(), quoted(request.help));
    }
    std::string options;
    for (const OptionText& option : optionTexts()) {
        std::string help = quoted(option.help);
        std::ranges::replace(help, ':', ' '); // it separates there
        options += fmt::format("        '{}[{}]{}' \\\n", option.name, help,
                               option.value.empty() ? "" : ":" + option.value + ":");
    }
    return fmt::format(R"(#compdef radioctl
# Completion of radioctl for zsh: put it as _radioctl into a folder of $fpath.
_radioctl() {{
    local state words_of_place line
    local -a commands=(
{}    )
    _arguments -C \
{}        '1:command:->command' '*::argument:->argument'
    case $state in
    command) _describe command commands ;;
    argument)
        local command=$words[1] place=$((CURRENT - 1)) words=
        case $command:$place in
{}        batch:1 | sim:*) _files; return ;;
        esac
        compadd -- ${{=words}}
        ;;
    esac
}}
_radioctl "$@"
)",
                       described, options, placeBranches());
}

} // namespace radioctl
