/// XML documents out of a fuzzer's bytes. The library that reads them is not built by us, so that what happens in it
/// gives the fuzzer no hint: the documents are well-formed from the start, of the words that their reader looks for.
#pragma once

#include "input.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fuzz {

/// What begins as a document stays as it is. Otherwise each byte opens or closes an element, or gives it an attribute
/// or text, which is one of the words or comes out of the bytes.
inline std::string xmlOf(Input input, std::span<const std::string_view> words)
{
    if (!input.empty() && input.front() == '<') {
        return {input.begin(), input.end()};
    }
    const auto word = [&](size_t choice) { return std::string(words[choice % words.size()]); };
    const auto value = [&] {
        const uint8_t choice = input.empty() ? 0 : take(input, 1)[0];
        const Input bytes = take(input, choice < 128 ? 0 : choice - 127);
        std::string text = choice < 128 ? word(choice) : std::string(bytes.begin(), bytes.end());
        std::ranges::replace_if(
            text, [](char c) { return c == '<' || c == '&' || c == '"' || c == 0; }, '.');
        return text;
    };
    std::string text;
    std::vector<std::string> open;
    bool inTag = false;
    while (!input.empty() || !open.empty()) {
        const uint8_t choice = input.empty() ? 3 : take(input, 1)[0];
        if (inTag && choice % 4 == 1) {
            text += " " + word(choice / 4) + "=\"" + value() + "\"";
            continue;
        }
        text += std::exchange(inTag, false) ? ">" : "";
        if (choice % 4 == 0) {
            open.push_back(word(choice / 4));
            text += "<" + open.back();
            inTag = true;
        } else if (choice % 4 == 2 && !open.empty()) {
            text += value();
        } else if (!open.empty()) {
            text += "</" + open.back() + ">";
            open.pop_back();
        }
    }
    return text;
}

} // namespace fuzz
