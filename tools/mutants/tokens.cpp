#include "mutants/tokens.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace mutants {
namespace {

bool isBlank(char c)
{
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}

bool isWordCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

/// Takes tokens off the source, from its begin to its end.
class Reader {
public:
    explicit Reader(std::string_view source) : mSource(source) {}

    std::vector<Token> all()
    {
        while (skipUnseen(), mAt < mSource.size()) {
            const size_t begin = mAt;
            const Token::Kind kind = take();
            const bool isSpaced = begin == 0 || isBlank(mSource[begin - 1]);
            mTokens.push_back({kind, mSource.substr(begin, mAt - begin), begin, isSpaced});
            pair();
        }
        return std::move(mTokens);
    }

private:
    std::string_view rest() const { return mSource.substr(mAt); }

    void moveTo(size_t place) { mAt = std::min(place, mSource.size()); }

    /// Behind the next `end`.
    void moveBehind(std::string_view end)
    {
        const size_t found = mSource.find(end, mAt);
        moveTo(found == std::string_view::npos ? mSource.size() : found + end.size());
    }

    void skipUnseen()
    {
        while (mAt < mSource.size()) {
            if (isBlank(mSource[mAt])) {
                ++mAt;
            } else if (rest().starts_with("//")) {
                moveBehind("\n");
            } else if (rest().starts_with("/*")) {
                moveBehind("*/");
            } else if (mSource[mAt] == '#') {
                do {
                    moveBehind("\n");
                } while (mSource.substr(0, mAt).ends_with("\\\n"));
            } else {
                return;
            }
        }
    }

    Token::Kind take()
    {
        if (rest().starts_with("R\"")) {
            const size_t bracket = mSource.find('(', mAt);
            const auto delimiter = mSource.substr(mAt + 2, bracket - mAt - 2);
            moveBehind(")" + std::string(delimiter) + '"');
            return Token::Kind::Text;
        }
        const char first = mSource[mAt];
        if (first == '"' || first == '\'') {
            for (++mAt; mAt < mSource.size() && mSource[mAt] != first; ++mAt) {
                mAt += mSource[mAt] == '\\' ? 1 : 0;
            }
            moveTo(mAt + 1);
            return Token::Kind::Text;
        }
        if (isWordCharacter(first)) {
            const bool isNumber = std::isdigit(static_cast<unsigned char>(first)) != 0;
            const auto belongs = [=](char c) {
                return isWordCharacter(c) || (isNumber && (c == '.' || c == '\''));
            };
            while (mAt < mSource.size() && belongs(mSource[mAt])) {
                ++mAt;
            }
            return isNumber ? Token::Kind::Number : Token::Kind::Name;
        }
        static constexpr std::string_view kSigns[] = {
            "<=>", "<<=", ">>=", "...", "->*", "::", "->", "<=", ">=", "==", "!=", "&&", "||",
            "++",  "--",  "+=",  "-=",  "*=",  "/=", "%=", "|=", "&=", "^=", "<<", ">>"};
        const auto* sign = std::ranges::find_if(kSigns, [&](auto text) { return rest().starts_with(text); });
        mAt += sign == std::end(kSigns) ? 1 : sign->size();
        return Token::Kind::Sign;
    }

    void pair()
    {
        Token& last = mTokens.back();
        const size_t index = mTokens.size() - 1;
        if (last.is("(") || last.is("[") || last.is("{")) {
            mOpen.push_back(index);
        } else if ((last.is(")") || last.is("]") || last.is("}")) && !mOpen.empty()) {
            last.partner = mOpen.back();
            mTokens[mOpen.back()].partner = index;
            mOpen.pop_back();
        }
    }

    std::string_view mSource;
    size_t mAt = 0;
    std::vector<Token> mTokens;
    std::vector<size_t> mOpen;
};

} // namespace

std::vector<Token> tokensOf(std::string_view source)
{
    return Reader(source).all();
}

} // namespace mutants
