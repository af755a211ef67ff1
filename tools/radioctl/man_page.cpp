// The manual page, from the tables.
#include "radioctl/program.h"

#include <fmt/format.h>

#include <utility>

namespace radioctl {

namespace {

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

std::string requestEntries()
{
    std::string text;
    std::string group;
    for (const Request& request : requests()) {
        if (request.group != group) {
            group = request.group;
            text += fmt::format(".SS {}\n", plain(group));
        }
        const std::string usage = request.usage();
        const size_t firstLine = usage.find('\n');
        text += entry(usage.substr(0, firstLine), request.help);
        if (!request.arguments.empty()) {
            const size_t arguments = usage.find("\n\n", firstLine + 2);
            text += ".RS\n.nf\n" + plain(usage.substr(arguments + 2)) + ".fi\n.RE\n";
        }
    }
    return text;
}

constexpr std::pair<const char*, const char*> kEnvironment[] = {
    {"RADIO_DEVICE_ROOT", "the folder that stands for the device's file system"},
    {"RADIO_VORN_DEVICE", "the device, instead of the one that the device file names; --device goes first"},
    {"RADIO_LOG", "which log lines go to standard error: debug, warn (the default), error or off"},
    {"RADIO_TRACE", "a file to which every message is written; - is standard error"},
    {"RADIO_TRACE_FORMAT", "text, or json for one object per line"},
    {"RADIO_TRACE_PRIVATE", "1: secrets are traced too, not only their lengths"},
};

constexpr std::pair<const char*, const char*> kFiles[] = {
    {"odm/etc/vorn_device_config.xml", "under the device root: the device to open"},
    {"default.prop", "under the device root: properties, key=value, such as host.vorn.timeout_ms"},
};

constexpr std::pair<const char*, const char*> kExitStatus[] = {
    {"0", "success"},
    {"1", "the library refused the request, or the modem reported a failure"},
    {"2", "wrong usage"},
    {"3", "no answer in time"},
};

template <typename Entries>
std::string entries(const Entries& all)
{
    std::string text;
    for (const auto& [what, help] : all) {
        text += entry(what, help);
    }
    return text;
}

} // namespace

std::string manPage()
{
    std::string text =
        ".TH RADIOCTL 1\n"
        ".SH NAME\nradioctl \\- requests to the vendor features of a cellular modem\n"
        ".SH SYNOPSIS\n.B radioctl\n[\\fIOPTION\\fR]... \\fICOMMAND\\fR [\\fIARGUMENT\\fR]...\n"
        ".SH DESCRIPTION\nSends any request of the library to the modem, waits for its answer and "
        "prints it.\n.SH OPTIONS\n";
    for (const OptionText& option : optionTexts()) {
        text += entry(option.name + (option.value.empty() ? "" : " " + option.value), option.help);
    }
    text += ".SH COMMANDS\n";
    for (const SubCommand& command : subCommands()) {
        text += entry(fmt::format("{} {}", command.name, command.arguments), command.help);
    }
    text += entry("REQUEST [ARGUMENT]...", "send one request; the requests are told below");
    text += ".SH REQUESTS\n" + requestEntries();
    text += ".SH EXIT STATUS\n" + entries(kExitStatus);
    text += ".SH ENVIRONMENT\n" + entries(kEnvironment);
    return text + ".SH FILES\n" + entries(kFiles);
}

} // namespace radioctl
