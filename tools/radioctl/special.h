/// What the interface's description can't say: the few requests with words or answers of their own.
#pragma once

#include "interface/arguments.h"
#include "radioctl/options.h"

namespace radioctl {

/// The arguments of a request from its words. Throws UsageError.
interface::Arguments parseArguments(const interface::Request& request, std::span<const std::string> words);

/// `set-ca-status rat enable`
std::string usageOf(const interface::Request& request);

/// All of a request that there is to tell.
std::string helpOf(const interface::Request& request);

/// The words that may stand at the last place behind a request besides those of the description.
Words specialWords(const interface::Request& request);

/// Turns the record of a success into what is to be shown.
void showSpecially(const interface::Request& request, const interface::Arguments& sent, Json& record);

} // namespace radioctl
