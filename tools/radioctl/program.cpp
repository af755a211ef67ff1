#include "radioctl/program.h"

#include <fmt/format.h>

namespace radioctl {

namespace {

constexpr SubCommand kSubCommands[] = {
    {"list", "", "tell all requests"},
    {"batch", "FILE", "run the commands in FILE, one per line; - is standard input"},
    {"events", "[NAMES]", "print events as they come; events --help tells their names"},
    {"watch", "REQUEST [ARGS]", "send one request again and again and show its answer; watch --help"},
    {"sim", "COMMAND", "command the simulated modem; sim --help"},
    {"completion", "bash|zsh", "print the completion of command lines for that shell"},
    {"man", "", "print the manual page"},
};

constexpr char kExitStatus[] =
    "Exit status: 0 success, 1 refused or failed, 2 wrong usage, 3 no answer in time.";

std::string footer()
{
    std::string text = "\nCommands:\n";
    const auto add = [&](std::string_view usage, std::string_view help) {
        text += fmt::format("  {:<23} {}\n", usage, help);
    };
    for (const SubCommand& command : kSubCommands) {
        add(fmt::format("{} {}", command.name, command.arguments), command.help);
    }
    add("REQUEST [ARGS]", "send one request and print its answer");
    add("REQUEST --help", "tell its arguments");
    return text + "\n" + kExitStatus;
}

} // namespace

void addOptions(CLI::App& app, Options& options)
{
    app.add_option("--device", options.session.device,
                   "embedded, embedded:SCENARIO.json or unix:PATH (default: what the device file names)")
        ->type_name("DEVICE");
    app.add_option("--instance", options.session.instance, "the modem instance, 0 to 2")
        ->type_name("N")
        ->check(CLI::Range(0, 2));
    app.add_option("--timeout", options.timeout, "how long to wait for an answer, in ms (default 10000)")
        ->type_name("MS")
        ->check(CLI::Range(1, 3600000));
    app.add_flag("--json", options.json, "print one JSON object per answer");
    app.add_flag("--trace", options.session.trace, "show every message on standard error");
    app.footer(footer());
    app.allow_extras();
    app.set_help_flag();
}

std::span<const SubCommand> subCommands()
{
    return kSubCommands;
}

std::vector<OptionText> optionTexts()
{
    CLI::App app;
    Options options;
    addOptions(app, options);
    std::vector<OptionText> texts;
    for (const CLI::Option* option : app.get_options()) {
        const bool isFlag = option->get_items_expected_max() == 0;
        texts.push_back({option->get_name(),
                         isFlag ? "" : option->get_type_name().substr(0, option->get_type_name().find(':')),
                         option->get_description()});
    }
    return texts;
}

} // namespace radioctl
