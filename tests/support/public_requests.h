/// The requests that the public headers declare.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace test {

/// The functions that take a request callback, but for the registrations.
inline std::set<std::string> publicRequests(const std::filesystem::path& headers)
{
    constexpr std::string_view kBegin = "RADIO_API int ";
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(headers)) {
        std::ifstream file(entry.path());
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        for (size_t at = 0; (at = text.find(kBegin, at)) != std::string::npos; ++at) {
            const std::string declaration = text.substr(at, text.find(';', at) - at);
            const std::string name = declaration.substr(kBegin.size(), declaration.find('(') - kBegin.size());
            if (declaration.find("RadioRequestCallback") != std::string::npos && !name.ends_with("Event")) {
                names.insert(name);
            }
        }
    }
    return names;
}

} // namespace test
