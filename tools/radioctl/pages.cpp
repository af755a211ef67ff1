// Completion of command lines and the manual page, from the description and the commands' own tables.
#include "radioctl/help.h"

#include "radioctl/program.h"
#include "radioctl/special.h"

#include <fmt/format.h>

#include <algorithm>

namespace radioctl {

namespace {

using interface::Argument;
using interface::Request;

template <typename Table>
std::string namesIn(const Table& table)
{
    return fmt::format("{}", fmt::join(interface::namesOf(table), " "));
}

std::string optionNames(const std::vector<OptionText>& options, bool takingValues, const char* separator)
{
    Words names;
    for (const OptionText& option : options) {
        if (!takingValues || !option.value.empty()) {
            names.push_back(option.name);
        }
    }
    return fmt::format("{}", fmt::join(names, separator));
}

/// What may stand at a place behind a command.
struct Place {
    std::string pattern; ///< COMMAND:PLACE, * for any place
    std::string words;
};

std::string wordsFor(const Argument& argument)
{
    Words words;
    std::ranges::transform(argument.meaning.values, std::back_inserter(words), interface::wordOf);
    if (argument.type == interface::Type::Bool) {
        words = {"on", "off"};
    }
    return fmt::format("{}", fmt::join(words, " "));
}

std::vector<Place> allPlaces()
{
    std::vector<Place> places = {
        {"events:*", namesIn(interface::events())}, {"watch:1", namesIn(interface::requests())},
        {"help:1", namesIn(interface::requests())}, {"sim:1", namesIn(simulationCommands())},
        {"sim:*", "--value --times --slot"},        {"completion:1", "bash zsh"}};
    for (const Request& request : interface::requests()) {
        for (size_t i = 0; i < request.arguments.size(); ++i) {
            const std::string words = wordsFor(request.arguments[i]);
            if (!words.empty()) {
                places.push_back({fmt::format("{}:{}", request.name, i + 1), words});
            }
        }
        if (const Words words = specialWords(request); !words.empty()) {
            places.push_back({fmt::format("{}:2", request.name), words.front()});
        }
    }
    return places;
}

/// `case` branches that set `words` to what may stand at place $place behind $command.
std::string placeBranches()
{
    std::string text;
    for (const Place& place : allPlaces()) {
        text += fmt::format("        {}) words='{}' ;;\n", place.pattern, place.words);
    }
    return text;
}

/// `case` branches that set `options` to those of $command.
std::string optionBranches()
{
    std::string text;
    for (const Command& command : commands()) {
        if (command.options != nullptr) {
            text += fmt::format("    {}) options='{}' ;;\n", command.name,
                                optionNames(command.options(), false, " "));
        }
    }
    return text;
}

/// All options of radioctl and its commands that take a value.
std::string optionsWithValues()
{
    std::string names = optionNames(globalOptionTexts(), true, "|");
    for (const Command& command : commands()) {
        if (command.options != nullptr) {
            names += '|' + optionNames(command.options(), true, "|");
        }
    }
    return names;
}

constexpr char kDevices[] = "embedded embedded: unix:";

std::string replaced(std::string text, std::string_view what, std::string_view with)
{
    for (size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
        text.replace(at, what.size(), with);
    }
    return text;
}

/// A text within single quotes of a shell.
std::string quoted(std::string_view text)
{
    return replaced(std::string(text), "'", R"('\'')");
}

/// The same where zsh would take brackets and colons for more.
std::string zshText(std::string_view text)
{
    std::string out;
    for (const char c : quoted(text)) {
        out += (c == ':' || c == '[' || c == ']') ? fmt::format("\\{}", c) : std::string(1, c);
    }
    return out;
}

/// A text that roff shows as it stands.
std::string plain(std::string_view text)
{
    std::string out;
    for (const char c : text) {
        if ((c == '.' || c == '\'') && (out.empty() || out.back() == '\n')) {
            out += "\\&";
        }
        out += c == '\\' ? "\\e" : c == '-' ? "\\-" : std::string(1, c);
    }
    return out;
}

std::string entry(std::string_view what, std::string_view help)
{
    return fmt::format(".TP\n.B {}\n{}\n", plain(what), plain(help));
}

std::string optionEntries(const std::vector<OptionText>& options)
{
    std::string text;
    for (const OptionText& option : options) {
        text += entry(option.name + (option.value.empty() ? "" : " " + option.value), option.help);
    }
    return text;
}

std::string requestEntries()
{
    std::string text;
    for (const interface::Domain& domain : interface::domains()) {
        text += fmt::format(".SS {}\n", plain(domain.title));
        for (const Request& request : interface::requests()) {
            if (request.domain == &domain) {
                const std::string help = helpOf(request);
                text += entry(usageOf(request), request.text) + ".RS\n.nf\n" +
                        plain(help.substr(help.find("\n\n", help.find("\n\n") + 2) + 2)) + ".fi\n.RE\n";
            }
        }
    }
    return text;
}

struct Entry {
    const char* what;
    const char* help;
};

constexpr Entry kEnvironment[] = {
    {"RADIO_DEVICE_ROOT", "the folder that stands for the device's file system"},
    {"RADIO_VORN_DEVICE", "the device, instead of the one that the device file names; --device goes first"},
    {"RADIO_LOG", "which log lines go to standard error: debug, warn, error or off (the default)"},
    {"RADIO_TRACE", "a file to which every message is written; - is standard error"},
    {"RADIO_TRACE_FORMAT", "text, or json for one object per line"},
    {"RADIO_TRACE_PRIVATE", "1: secrets are traced too, not only their lengths"},
};

constexpr Entry kFiles[] = {
    {"odm/etc/vorn_device_config.xml", "under the device root: the device to open"},
    {"default.prop", "under the device root: properties, key=value, such as host.vorn.timeout_ms"},
};

constexpr Entry kExitStatuses[] = {
    {"0", "success"},
    {"1",
     "the library refused the request, the modem reported a failure, or a batch expected something else"},
    {"2", "wrong usage"},
    {"3", "no answer in time"},
    {"4", "the modem can't be reached"},
};

std::string entries(std::span<const Entry> all)
{
    std::string text;
    for (const Entry& one : all) {
        text += entry(one.what, one.help);
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
    local current=${{COMP_WORDS[COMP_CWORD]}} command= place=0 words= options= i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${{COMP_WORDS[i]}} in
        {}) ((++i)) ;;
        -*) ;;
        *) if [ -z "$command" ]; then command=${{COMP_WORDS[i]}}; else ((++place)); fi ;;
        esac
    done
    case $command in
{}    esac
    ((++place))
    case ${{COMP_WORDS[COMP_CWORD - 1]}} in
    --device) COMPREPLY=($(compgen -W '{}' -- "$current")); return ;;
    --junit | --log) COMPREPLY=($(compgen -f -- "$current")); return ;;
    esac
    if [[ $current == -* ]]; then
        words="{} --help $options"
    elif [ -z "$command" ]; then
        words='{} {}'
    else
        case $command:$place in
{}        batch:1) COMPREPLY=($(compgen -f -- "$current")); return ;;
        esac
        case $command in sim) COMPREPLY=($(compgen -f -W "$words" -- "$current")); return ;; esac
    fi
    COMPREPLY=($(compgen -W "$words" -- "$current"))
}}
complete -F _radioctl radioctl
)",
        optionsWithValues(), optionBranches(), kDevices, optionNames(globalOptionTexts(), false, " "),
        namesIn(commands()), namesIn(interface::requests()), placeBranches());
}

std::string zshCompletion()
{
    std::string described;
    const auto describe = [&](std::string_view name, std::string_view help) {
        described += fmt::format("        '{}:{}'\n", name, zshText(help));
    };
    for (const Command& command : commands()) {
        describe(command.name, command.help);
    }
    for (const Request& request : interface::requests()) {
        describe(request.name, request.text);
    }
    std::string options;
    for (const OptionText& option : globalOptionTexts()) {
        const std::string devices =
            option.name == "--device" ? fmt::format("({})", replaced(kDevices, ":", "\\:")) : "";
        options += fmt::format("        '{}[{}]{}' \\\n", option.name, zshText(option.help),
                               option.value.empty() ? "" : fmt::format(":{}:{}", option.value, devices));
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
        local command=$words[1] place=$((CURRENT - 1)) words= options=
        case $command in
{}        esac
        case $command:$place in
{}        batch:1) _files; return ;;
        esac
        compadd -- ${{=words}} ${{=options}}
        case $command in sim) _files ;; esac
        ;;
    esac
}}
_radioctl "$@"
)",
                       described, options, optionBranches(), placeBranches());
}

std::string manPage()
{
    std::string text =
        ".TH RADIOCTL 1\n"
        ".SH NAME\nradioctl \\- requests to the vendor features of a cellular modem\n"
        ".SH SYNOPSIS\n.B radioctl\n[\\fIOPTION\\fR]... \\fICOMMAND\\fR [\\fIARGUMENT\\fR]...\n"
        ".SH DESCRIPTION\nSends any request of the library to the modem, waits for its answer and "
        "prints it.\n.SH OPTIONS\n";
    text += optionEntries(globalOptionTexts()) + ".SH COMMANDS\n";
    for (const Command& command : commands()) {
        text += entry(fmt::format("{} {}", command.name, command.arguments), command.help);
        if (command.options != nullptr) {
            text += ".RS\n" + optionEntries(command.options()) + ".RE\n";
        }
    }
    text += entry("REQUEST [ARGUMENT]...", "send one request; the requests are told below");
    for (const SimulationCommand& command : simulationCommands()) {
        text += entry(fmt::format("sim {} {}", command.name, command.arguments), command.help);
    }
    text += ".SH REQUESTS\n" + requestEntries();
    text += ".SH EXIT STATUS\n" + entries(kExitStatuses);
    text += ".SH ENVIRONMENT\n" + entries(kEnvironment);
    return text + ".SH FILES\n" + entries(kFiles);
}

} // namespace radioctl
