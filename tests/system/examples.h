/// A command line for every request.
#pragma once

#include <fstream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

struct Example {
    std::string line;
    std::string record; ///< members of the answer's record; empty: it is enough that there is an answer
};

inline std::vector<Example> readExamples(const std::string& path)
{
    constexpr char kComment[] = "# ";
    std::vector<Example> examples;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        const size_t end = line.find(kComment);
        const size_t length = line.find_last_not_of(' ', end == std::string::npos ? end : end - 1) + 1;
        if (end != 0 && length != 0) {
            examples.push_back(
                {line.substr(0, length), end == std::string::npos ? "" : line.substr(end + 2)});
        }
    }
    return examples.empty() ? throw std::runtime_error("no examples in " + path) : examples;
}

/// At least one for each request; getters after what they read.
inline const std::vector<Example> kExamples = readExamples(DEVICE_ROOT "/../every-request.txt");
