#include "radioctl/options.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>

namespace radioctl {

namespace {

void parse(CLI::App& app, Words words)
{
    std::ranges::reverse(words); // as CLI11 wants them
    try {
        app.parse(std::move(words));
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
    }
}

} // namespace

void addOptions(CLI::App& app, Options& options)
{
    app.add_option("--device", options.device,
                   "embedded, embedded:SCENARIO.json or unix:PATH (default: what the device file names)")
        ->type_name("DEVICE");
    app.add_option("--instance", options.instance, "the modem instance, 0 to 2")
        ->type_name("N")
        ->check(CLI::Range(0, 2));
    app.add_option("--timeout", options.timeout, "how long to wait for an answer, in ms (default 10000)")
        ->type_name("MS")
        ->check(CLI::Range(1, 3600000));
    app.add_flag("--json", options.json, "print one JSON object per answer");
    app.add_flag("--explain", options.explain, "with --json: add units and the names of values");
    app.add_flag("--raw", options.raw, "print numbers alone, without units and names");
    app.add_flag("--trace", options.trace, "show every message on standard error");
    app.add_option("--log-level", options.log, "show the library's log lines from this level on")
        ->type_name("LEVEL")
        ->check(CLI::IsMember({"debug", "warn", "error", "off"}));
    app.add_flag("--version", options.version, "tell the version");
    app.allow_extras();
    app.set_help_flag();
}

Options takeOptions(Words& words, Options options)
{
    CLI::App app;
    addOptions(app, options);
    parse(app, std::move(words));
    words = app.remaining();
    return options;
}

bool parseCommandOptions(CLI::App& app, const Words& words)
{
    const auto asksForHelp = [](const std::string& word) { return word == "--help" || word == "-h"; };
    if (std::ranges::any_of(words, asksForHelp)) {
        fmt::print("{}", app.help());
        return false;
    }
    std::vector<std::string> names;
    std::ranges::transform(optionTexts(app), std::back_inserter(names), &OptionText::name);
    const std::vector<std::string_view> known(names.begin(), names.end());
    if (!app.get_allow_extras()) {
        for (const std::string& word : words) {
            const std::string name = word.substr(0, word.find('='));
            if (std::ranges::find(known, name) == known.end()) {
                refuseUnknownOptions(std::span(&name, 1), known);
            }
        }
    }
    parse(app, {words.begin() + 1, words.end()});
    return true;
}

std::vector<OptionText> optionTexts(const CLI::App& app)
{
    std::vector<OptionText> texts;
    for (const CLI::Option* option : app.get_options()) {
        if (option->get_name().starts_with("--")) {
            const bool isFlag = option->get_items_expected_max() == 0;
            const std::string type = option->get_type_name();
            texts.push_back({option->get_name(), isFlag ? "" : type.substr(0, type.find(':')),
                             option->get_description()});
        }
    }
    return texts;
}

std::vector<OptionText> globalOptionTexts()
{
    CLI::App app;
    Options options;
    addOptions(app, options);
    return optionTexts(app);
}

void refuseUnknownOptions(std::span<const std::string> words, std::span<const std::string_view> known)
{
    const auto isOption = [](const std::string& word) {
        return word.starts_with("--") && word.size() > 2 &&
               std::isalpha(static_cast<unsigned char>(word[2])) != 0;
    };
    const auto found = std::ranges::find_if(words, isOption);
    if (found == words.end()) {
        return;
    }
    const auto global = globalOptionTexts();
    std::vector<std::string_view> names(known.begin(), known.end());
    std::ranges::transform(global, std::back_inserter(names), &OptionText::name);
    throw UsageError(fmt::format("there is no option '{}'{}", *found, interface::suggestion(*found, names)));
}

} // namespace radioctl
