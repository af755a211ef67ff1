#include "interface/names.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <numeric>

namespace interface {

namespace {

/// How many letters are to be put in, taken out, changed or swapped with the next one to make one word of another, and
/// to make it of the front of that.
struct Distance {
    size_t whole;
    size_t front;
};

Distance distance(std::string_view from, std::string_view to)
{
    std::vector<size_t> beforeLast(to.size() + 1);
    std::vector<size_t> last(to.size() + 1);
    std::vector<size_t> current(to.size() + 1);
    std::iota(last.begin(), last.end(), size_t{0});
    for (size_t i = 1; i <= from.size(); ++i) {
        current[0] = i;
        for (size_t j = 1; j <= to.size(); ++j) {
            const size_t changed = last[j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1);
            current[j] = std::min({changed, last[j] + 1, current[j - 1] + 1});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1]) {
                current[j] = std::min(current[j], beforeLast[j - 2] + 1);
            }
        }
        std::swap(beforeLast, last);
        std::swap(last, current);
    }
    return {last[to.size()], *std::ranges::min_element(last)};
}

} // namespace

std::string wordOf(const Value& value)
{
    std::string word(value.name);
    std::ranges::transform(word, word.begin(), [](unsigned char c) {
        return c == ' ' ? '-' : static_cast<char>(std::tolower(c));
    });
    return word;
}

std::string_view nearest(std::string_view word, std::span<const std::string_view> names)
{
    // Of a word of which more is wrong than right nobody knows what it should have been.
    const size_t most = word.size() / 3 + 1;
    constexpr size_t kFront = 1000; // what is meant as a whole goes first
    std::string_view best;
    size_t least = kFront + word.size() / 5 + 1;
    for (const std::string_view name : names) {
        const Distance changes = distance(word, name);
        const size_t rank = changes.whole <= most ? changes.whole : kFront + changes.front;
        if (rank < least) {
            best = name;
            least = rank;
        }
    }
    if (!best.empty() || word.size() < 4) {
        return best;
    }
    const auto longer =
        std::ranges::find_if(names, [&](std::string_view name) { return name.find(word) != name.npos; });
    return longer != names.end() ? *longer : best;
}

std::string suggestion(std::string_view word, std::span<const std::string_view> names)
{
    const std::string_view name = nearest(word, names);
    return name.empty() ? "" : fmt::format(" - did you mean '{}'?", name);
}

} // namespace interface
