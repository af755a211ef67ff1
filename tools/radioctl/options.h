/// What stands in front of, behind and between the words of a command.
#pragma once

#include "interface/names.h"
#include "interface/records.h"

#include <CLI/CLI.hpp>

#include <chrono>
#include <span>
#include <string>
#include <vector>

namespace radioctl {

using interface::Json;
using UsageError = interface::ArgumentError;
using Words = std::vector<std::string>;

/// Exit statuses.
inline constexpr int kExitSuccess = 0;
inline constexpr int kExitFailure = 1;
inline constexpr int kExitUsage = 2;
inline constexpr int kExitTimeout = 3;
inline constexpr int kExitUnreachable = 4;

struct Options {
    std::string device; ///< empty: what the device file names
    std::string log;    ///< empty: what RADIO_LOG says
    unsigned instance = 0;
    unsigned timeout = 10000; ///< ms
    bool json = false;
    bool explain = false; ///< units and names in JSON
    bool raw = false;     ///< numbers alone in texts
    bool trace = false;   ///< to standard error
    bool version = false;
};

/// Adds radioctl's own options. What is none of them is left to the command, wherever it stands.
void addOptions(CLI::App& app, Options& options);

/// Takes the options out of a line's words, which keep the command and its arguments; what isn't given stays as in
/// `options`. Throws UsageError.
Options takeOptions(Words& words, Options options);

/// Parses the words behind a command's name with the options that it defines in `app`. False when they ask for help,
/// which is printed then. Throws UsageError.
bool parseCommandOptions(CLI::App& app, const Words& words);

/// An option as pages and completions show it.
struct OptionText {
    std::string name;
    std::string value; ///< what it takes; empty for a flag
    std::string help;
};

std::vector<OptionText> optionTexts(const CLI::App& app);
std::vector<OptionText> globalOptionTexts();

/// Throws UsageError when a word looks like an option and is none, with a suggestion among `known`.
void refuseUnknownOptions(std::span<const std::string> words, std::span<const std::string_view> known = {});

} // namespace radioctl
