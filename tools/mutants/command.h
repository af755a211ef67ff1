/// Other programs.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace mutants {

struct CommandResult {
    enum class End { Exited, Killed, TooLate } end;
    int status; ///< exit status, or the signal
    std::string output;

    bool isGood() const { return end == End::Exited && status == 0; }
};

/// Runs a program, without a shell, and whatever it starts: nothing of it is left when this returns. `environment` is
/// added to this process's.
CommandResult run(std::vector<std::string> words, const std::filesystem::path& workingFolder,
                  std::vector<std::string> environment = {},
                  std::chrono::milliseconds patience = std::chrono::hours(1));

} // namespace mutants
