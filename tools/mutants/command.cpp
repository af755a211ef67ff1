#include "mutants/command.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace mutants {
namespace {

[[noreturn]] void become(std::vector<std::string>& words, const std::filesystem::path& workingFolder,
                         std::vector<std::string>& environment, int output)
{
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    dup2(nothing, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    for (std::string& variable : environment) {
        putenv(variable.data());
    }
    std::vector<char*> arguments(words.size() + 1); // the last one stays null
    std::ranges::transform(words, arguments.begin(), [](std::string& word) { return word.data(); });
    if (chdir(workingFolder.c_str()) == 0) {
        execvp(arguments[0], arguments.data());
    }
    _exit(127);
}

std::string contentsOf(std::FILE* file)
{
    std::rewind(file);
    std::string contents;
    char block[4096];
    while (const size_t size = std::fread(block, 1, sizeof block, file)) {
        contents.append(block, size);
    }
    return contents;
}

} // namespace

CommandResult run(std::vector<std::string> words, const std::filesystem::path& workingFolder,
                  std::vector<std::string> environment, std::chrono::milliseconds patience)
{
    // A file, not a pipe: what a program leaves behind may hold a pipe open.
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(std::tmpfile(), std::fclose);
    if (!output) {
        throw std::runtime_error("can't make a temporary file");
    }
    const pid_t process = fork();
    if (process == 0) {
        become(words, workingFolder, environment, fileno(output.get()));
    }
    setpgid(process, process); // whoever of the two is first
    pollfd exit{process < 0 ? -1 : static_cast<int>(syscall(SYS_pidfd_open, process, 0)), POLLIN, 0};
    if (exit.fd < 0) {
        throw std::runtime_error("can't start " + words.front());
    }
    const bool isLate = poll(&exit, 1, static_cast<int>(patience.count())) == 0;
    close(exit.fd);
    kill(-process, SIGKILL);
    int status = 0;
    waitpid(process, &status, 0);
    using End = CommandResult::End;
    const End end = isLate ? End::TooLate : WIFEXITED(status) ? End::Exited : End::Killed;
    return {end, WIFEXITED(status) ? WEXITSTATUS(status) : WTERMSIG(status), contentsOf(output.get())};
}

} // namespace mutants
