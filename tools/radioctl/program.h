/// What radioctl itself understands: its options and its commands besides the requests.
#pragma once

#include "radioctl/session.h"

#include <CLI/CLI.hpp>

#include <span>
#include <string>
#include <vector>

namespace radioctl {

struct Options {
    SessionOptions session;
    unsigned timeout = 10000; ///< ms
    bool json = false;
    std::vector<std::string> words; ///< the command and its arguments
};

/// Adds radioctl's own options. What is none of them is left to the command, wherever it stands.
void addOptions(CLI::App& app, Options& options);

struct SubCommand {
    const char* name;
    const char* arguments;
    const char* help;
};

std::span<const SubCommand> subCommands();

/// An option as pages and completions show it.
struct OptionText {
    std::string name;
    std::string value; ///< what it takes; empty for a flag
    std::string help;
};

std::vector<OptionText> optionTexts();

/// Completion of the command line for bash and zsh, made from the tables of requests and events.
std::string bashCompletion();
std::string zshCompletion();

/// The manual page, in roff.
std::string manPage();

} // namespace radioctl
