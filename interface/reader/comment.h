/// What the comments of the public headers tell: texts for people, and commands for programs among them.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace reader {

/// A header that can't be read as it should be; the message tells where and why.
class HeaderError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// How many, or from where to where.
struct Range {
    int64_t least = 0;
    int64_t most = 0;
    int64_t multipleOf = 1;
};

/// A text without the commands that stood in it, and what these say.
struct Text {
    std::string text;
    std::string unit;
    std::string values; ///< as they are written
    std::string label;
    std::string called;
    std::string record;
    std::string countedBy;
    std::string domain;
    std::optional<Range> range;
    bool isSigned = false;
    bool tellsFailure = false;
    bool isConfidential = false;
    bool isUnused = false;
    bool isUnsupported = false;
};

/// Commands that stand for a text with further commands in it: ALIASES of a Doxyfile.
class Aliases {
public:
    explicit Aliases(const std::string& doxyfile);

    /// The text with all such commands replaced, but for those that Text knows.
    std::string expanded(const std::string& text) const;

private:
    std::map<std::pair<std::string, size_t>, std::string> mTexts; ///< by name and number of arguments
};

struct Comment {
    Text text;
    std::map<std::string, Text> parameters;
    std::string returns;
};

/// `raw` is a comment with its slashes.
Comment parseComment(const std::string& raw, const Aliases& aliases);

/// The first sentence of a text, and the others.
std::pair<std::string, std::string> firstSentence(const std::string& text);

} // namespace reader
