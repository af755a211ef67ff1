#include "mutants/mutant.h"

#include "mutants/tokens.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <iterator>
#include <set>

namespace mutants {
namespace {

using Names = std::set<std::string_view>;

/// Calls that the tests are not to notice: lines of the log, and room that is made early.
const Names kUnnoticed = {"zorLogD",  "zorLogW", "zorLogE", "__android_log_print", "logInstance",
                          "logEnter", "dump",    "reserve", "static_assert"};

/// The order of their arguments does not matter, or they are no calls.
const Names kNoCalls = {"min",    "max",   "if",     "for",    "while",
                        "switch", "catch", "sizeof", "return", "decltype"};

const Names kNoExpressions = {"return", "break",   "continue",  "throw",    "using",     "if",
                              "for",    "while",   "switch",    "case",     "default",   "else",
                              "do",     "goto",    "typedef",   "const",    "constexpr", "static",
                              "auto",   "struct",  "class",     "enum",     "try",       "catch",
                              "public", "private", "protected", "template", "operator",  "static_cast"};

const Names kAssignments = {"=", "+=", "-=", "*=", "/=", "%=", "|=", "&=", "^=", "<<=", ">>=", "++", "--"};

class Finder {
public:
    explicit Finder(std::string_view source) : mSource(source), mTokens(tokensOf(source)), mCode(codeBraces())
    {}

    std::vector<Mutant> all()
    {
        for (size_t i = 1; i + 1 < mTokens.size(); ++i) {
            if (const size_t end = unnoticedEnd(i); end != i) {
                i = end;
                continue;
            }
            swapArguments(i);
            moveConstant(i);
            turnComparison(i);
            callSibling(i);
            dropStatement(i);
        }
        return std::move(mMutants);
    }

private:
    const Token& token(size_t index) const
    {
        static const Token nothing{Token::Kind::Sign, "", 0, false};
        return index < mTokens.size() ? mTokens[index] : nothing;
    }

    std::string_view text(size_t first, size_t end) const
    {
        const Token& last = token(end - 1);
        return mSource.substr(token(first).at, last.at + last.text.size() - token(first).at);
    }

    void change(Kind kind, size_t first, size_t end, std::string replacement)
    {
        mMutants.push_back({kind, token(first).at, text(first, end).size(), std::move(replacement)});
    }

    /// The template's angle brackets have no blank before them, and comparisons do.
    bool opensTemplate(size_t i) const
    {
        return token(i).is("<") && !token(i).isSpaced && token(i - 1).isName();
    }

    size_t behindTemplate(size_t i) const
    {
        int depth = 0;
        for (; i < mTokens.size(); ++i) {
            depth += token(i).is("<") ? 1 : token(i).is(">") ? -1 : token(i).is(">>") ? -2 : 0;
            if (depth <= 0) {
                return i + 1;
            }
        }
        return i;
    }

    /// The index of the last token of what is passed over as a whole; `i` when nothing is.
    size_t unnoticedEnd(size_t i) const
    {
        const bool isAttribute = token(i).is("[") && token(i + 1).is("[");
        if (isAttribute || (token(i).is("(") && kUnnoticed.contains(token(i - 1).text))) {
            return std::max(i, token(i).partner);
        }
        if (token(i).is("template") && token(i + 1).is("<")) {
            return behindTemplate(i + 1) - 1;
        }
        return opensTemplate(i) ? behindTemplate(i) - 1 : i;
    }

    /// For each token: whether the innermost brackets around it are the braces of statements.
    std::vector<bool> codeBraces() const
    {
        static const Names kBeforeCode = {")",     "]",        "else",     "do",     "try",
                                          "const", "noexcept", "override", "mutable"};
        static const Names kBetweenStatements = {";", "{", "}", ":"};
        std::vector<bool> inCode(mTokens.size());
        std::vector<bool> open = {false};
        for (size_t i = 0; i < mTokens.size(); ++i) {
            if (token(i).is("{")) {
                const std::string_view before = token(i - 1).text;
                const bool isResult = i > 1 && token(i - 2).is("->");
                open.push_back(kBeforeCode.contains(before) || isResult ||
                               (open.back() && kBetweenStatements.contains(before)));
            } else if (token(i).is("(") || token(i).is("[")) {
                open.push_back(false);
            }
            inCode[i] = open.back();
            if ((token(i).is("}") || token(i).is(")") || token(i).is("]")) && open.size() > 1) {
                open.pop_back();
            }
        }
        return inCode;
    }

    /// One argument, as the tokens from `first` to before `end`.
    struct Argument {
        size_t first;
        size_t end;
    };

    std::vector<Argument> argumentsOf(size_t bracket) const
    {
        const size_t end = token(bracket).partner;
        std::vector<Argument> all;
        size_t first = bracket + 1;
        for (size_t i = first; i <= end; ++i) {
            if (i == end || token(i).is(",")) {
                all.push_back({first, i});
                first = i + 1;
            } else if (opensTemplate(i)) {
                i = behindTemplate(i) - 1;
            } else if (token(i).partner > i) {
                i = token(i).partner;
            }
        }
        return all;
    }

    /// Whether this declares a parameter: a type and a name, or a type alone.
    bool isParameter(const Argument& argument) const
    {
        size_t end = argument.end;
        while (end > argument.first && !token(end - 1).is("=")) {
            --end;
        }
        end = end > argument.first ? end - 1 : argument.end;
        if (end - argument.first < 2) {
            return false;
        }
        const auto endsType = [&](size_t i) {
            return token(i).isName() ||
                   (!token(i).isSpaced && (token(i).is("*") || token(i).is("&") || token(i).is(">")));
        };
        return endsType(end - 1) && endsType(end - 2);
    }

    void swapArguments(size_t i)
    {
        const bool isCall = token(i).is("(") && token(i).partner > i + 1 &&
                            (token(i - 1).isName() || (token(i - 1).is(">") && !token(i).isSpaced)) &&
                            !kNoCalls.contains(token(i - 1).text);
        const auto arguments = isCall ? argumentsOf(i) : std::vector<Argument>();
        if (std::ranges::any_of(arguments, [&](const auto& argument) { return isParameter(argument); })) {
            return;
        }
        for (size_t k = 1; k < arguments.size(); ++k) {
            const auto [first, firstEnd] = arguments[k - 1];
            const auto [second, secondEnd] = arguments[k];
            const auto one = text(first, firstEnd);
            const auto other = text(second, secondEnd);
            const bool isForLog = one == "__func__" || other == "__func__";
            if (one != other && !isForLog) {
                change(Kind::Arguments, first, secondEnd, fmt::format("{}, {}", other, one));
            }
        }
    }

    /// Sizes of arrays, and of what is named so.
    bool isRoom(size_t i) const
    {
        const bool declaresArray = token(i - 1).is("[") && token(i + 1).is("]") && token(i - 2).isName() &&
                                   (token(i - 3).isName() || token(i - 3).is(">") || token(i - 3).is("*"));
        return declaresArray || (token(i - 1).is("=") && token(i - 2).text.ends_with("Size"));
    }

    void moveConstant(size_t i)
    {
        if (token(i).kind != Token::Kind::Number || i < 3 || isRoom(i)) {
            return;
        }
        std::string_view digits = token(i).text;
        const bool isHex = digits.starts_with("0x");
        digits.remove_prefix(isHex ? 2 : 0);
        uint64_t value = 0;
        const auto [end, error] =
            std::from_chars(digits.data(), digits.data() + digits.size(), value, isHex ? 16 : 10);
        const std::string_view suffix(end, digits.data() + digits.size());
        if (error != std::errc() || suffix.find_first_not_of("uUlL") != std::string_view::npos) {
            return;
        }
        const auto written = [&](uint64_t number) {
            return fmt::format("{}{}", isHex ? fmt::format("0x{:X}", number) : fmt::to_string(number),
                               suffix);
        };
        change(Kind::Constant, i, i + 1, written(value + 1));
        if (value > 0) {
            change(Kind::Constant, i, i + 1, written(value - 1));
        }
    }

    void turnComparison(size_t i)
    {
        static constexpr std::pair<std::string_view, std::string_view> kTurned[] = {
            {"<", "<="}, {"<", ">="}, {"<=", "<"}, {"<=", ">"},  {">", ">="},
            {">", "<="}, {">=", ">"}, {">=", "<"}, {"==", "!="}, {"!=", "=="}};
        if (!token(i).isSpaced || !token(i + 1).isSpaced) {
            return;
        }
        for (const auto& [sign, turned] : kTurned) {
            if (token(i).is(sign)) {
                change(Kind::Comparison, i, i + 1, std::string(turned));
            }
        }
    }

    /// Whether `&Class::method` stands here.
    bool namesMethod(size_t i) const
    {
        return token(i).is("&") && token(i + 1).isName() && token(i + 2).is("::") && token(i + 3).isName() &&
               (token(i + 4).is(",") || token(i + 4).is(")"));
    }

    void callSibling(size_t i)
    {
        if (!namesMethod(i)) {
            return;
        }
        Names siblings;
        for (size_t k = 0; k < mTokens.size(); ++k) {
            if (namesMethod(k) && token(k + 1).is(token(i + 1).text) && !token(k + 3).is(token(i + 3).text)) {
                siblings.insert(token(k + 3).text);
            }
        }
        for (const std::string_view sibling : siblings) {
            change(Kind::Sibling, i + 3, i + 4, std::string(sibling));
        }
    }

    /// Behind names, calls and elements, as in `a::b->c(d)[e]`.
    size_t behindChain(size_t i) const
    {
        for (;; ++i) {
            if (opensTemplate(i)) {
                i = behindTemplate(i) - 1;
            } else if ((token(i).is("(") || token(i).is("[")) && token(i).partner > i) {
                i = token(i).partner;
            } else {
                const bool joins = token(i).is("::") || token(i).is(".") || token(i).is("->");
                const bool isNext = token(i).isName() && !token(i - 1).isName() && !token(i - 1).is(">");
                if (!joins && !isNext) {
                    return i;
                }
            }
        }
    }

    void dropStatement(size_t i)
    {
        static const Names kBefore = {";", "{", "}", ":", ")", "else"};
        if (!mCode[i] || !kBefore.contains(token(i - 1).text) || kNoExpressions.contains(token(i).text)) {
            return;
        }
        const bool isChain = token(i).isName();
        const bool isOther = token(i).is("*") || token(i).is("++") || token(i).is("--");
        if (!isChain && !isOther) {
            return;
        }
        if (isChain) {
            const size_t end = behindChain(i);
            const bool isCall = token(end).is(";") && token(end - 1).is(")");
            if (!isCall && !kAssignments.contains(token(end).text)) {
                return;
            }
        }
        size_t end = i;
        bool isNoticed = true;
        while (end < mTokens.size() && !token(end).is(";")) {
            isNoticed = isNoticed && !kUnnoticed.contains(token(end).text);
            end = token(end).partner > end ? token(end).partner + 1 : end + 1;
        }
        if (isNoticed) {
            change(Kind::Statement, i, end, "");
        }
    }

    std::string_view mSource;
    std::vector<Token> mTokens;
    std::vector<bool> mCode;
    std::vector<Mutant> mMutants;
};

} // namespace

std::vector<Mutant> mutantsOf(std::string_view source)
{
    return Finder(source).all();
}

} // namespace mutants
