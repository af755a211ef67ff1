#include "soak/modem_process.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace soak {

ModemProcess::ModemProcess(std::string program, std::vector<std::string> arguments)
    : mProgram(std::move(program)), mArguments(std::move(arguments))
{
    std::string name = std::filesystem::temp_directory_path() / "modem-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("can't make a temporary folder");
    }
    mFolder = name;
}

ModemProcess::~ModemProcess()
{
    kill();
    std::error_code ignored;
    std::filesystem::remove_all(mFolder, ignored);
}

void ModemProcess::start()
{
    std::vector<std::string> words = {mProgram, "--quiet", "--listen", device()};
    words.insert(words.end(), mArguments.begin(), mArguments.end());
    std::vector<char*> arguments(words.size() + 1); // the last one stays null
    std::ranges::transform(words, arguments.begin(), [](std::string& word) { return word.data(); });

    int output[2];
    if (pipe(output) != 0) {
        throw std::runtime_error("can't make a pipe");
    }
    mProcess = fork();
    if (mProcess == 0) {
        dup2(output[1], STDOUT_FILENO);
        close(output[0]);
        close(output[1]);
        execv(mProgram.c_str(), arguments.data());
        _exit(127);
    }
    close(output[1]);
    // Its first line says that it listens.
    char c = '\0';
    while (c != '\n' && read(output[0], &c, 1) == 1) {
    }
    close(output[0]);
    if (c != '\n') {
        throw std::runtime_error(mProgram + " does not start");
    }
}

void ModemProcess::kill()
{
    end(SIGKILL);
}

int ModemProcess::stop()
{
    return end(SIGTERM);
}

int ModemProcess::end(int signal)
{
    int status = 0;
    if (mProcess > 0) {
        ::kill(mProcess, signal);
        waitpid(mProcess, &status, 0);
        mProcess = -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace soak
