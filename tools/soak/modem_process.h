/// A modem-sim of one's own, to be killed at will.
#pragma once

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace soak {

/// A temporary folder, and in it the socket at which a modem-sim listens when it runs.
class ModemProcess {
public:
    /// `program` is modem-sim, `arguments` are added to --listen.
    explicit ModemProcess(std::string program, std::vector<std::string> arguments = {});
    ~ModemProcess();
    ModemProcess(const ModemProcess&) = delete;
    ModemProcess& operator=(const ModemProcess&) = delete;

    /// Returns once it listens. Throws std::runtime_error when it does not.
    void start();

    /// SIGKILL: it can put nothing in order.
    void kill();

    /// SIGTERM; returns its exit status.
    int stop();

    std::string device() const { return "unix:" + socket().string(); }
    std::filesystem::path socket() const { return mFolder / "modem"; }

private:
    int end(int signal);

    const std::string mProgram;
    const std::vector<std::string> mArguments;
    std::filesystem::path mFolder;
    pid_t mProcess = -1;
};

} // namespace soak
