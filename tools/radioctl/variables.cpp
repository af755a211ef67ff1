#include "radioctl/variables.h"

#include "interface/path.h"

#include <fmt/format.h>

namespace radioctl {

bool Variables::isName(std::string_view word)
{
    const bool beginsWell = !word.empty() && (word[0] < '0' || word[0] > '9');
    return beginsWell && !interface::takeName(word).empty() && word.empty();
}

std::string Variables::take(std::string_view& text) const
{
    text.remove_prefix(1);
    if (text.starts_with('$')) {
        text.remove_prefix(1);
        return "$";
    }
    const bool isBraced = text.starts_with('{');
    text.remove_prefix(isBraced ? 1 : 0);
    const std::string_view name = interface::takeName(text);
    const auto found = mRecords.find(name);
    if (found == mRecords.end()) {
        throw UsageError(fmt::format("no earlier line sets '${}'", name));
    }
    const Json& value = interface::follow(found->second, text);
    if (isBraced) {
        if (!text.starts_with('}')) {
            throw UsageError(fmt::format("'${{{}' is not closed", name));
        }
        text.remove_prefix(1);
    }
    return value.is_string() ? value.get<std::string>() : value.dump();
}

} // namespace radioctl
