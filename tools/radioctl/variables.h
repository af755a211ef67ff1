/// What earlier answers of a batch told, for later lines.
#pragma once

#include "interface/words.h"
#include "radioctl/options.h"

#include <map>
#include <string>
#include <string_view>

namespace radioctl {

class Variables {
public:
    /// Letters, digits and underscores, no digit first.
    static bool isName(std::string_view word);

    void set(const std::string& name, Json record) { mRecords[name] = std::move(record); }

    /// The value that stands behind a dollar sign at the beginning of `text`: $name, $name.member[0].member,
    /// or the same in braces; $$ is a dollar sign. Records and lists come as JSON, all else as text. `text`
    /// loses what was read. Throws UsageError for what isn't there.
    std::string take(std::string_view& text) const;

    /// The words of a line, with the values put in.
    Words split(std::string_view line) const
    {
        return interface::splitWords(line, [this](std::string_view& rest) { return take(rest); });
    }

private:
    std::map<std::string, Json, std::less<>> mRecords;
};

} // namespace radioctl
