/// The commands of radioctl, and how a line becomes one.
#pragma once

#include "radioctl/session.h"

#include <functional>
#include <memory>
#include <optional>

namespace radioctl {

/// What a line asks for, and what it leaves for the lines behind it.
struct Line {
    Words words; ///< the command and its arguments
    Options options;
};

/// What the lines of one process share.
class Program {
public:
    /// Runs one command and returns the exit status; whatever goes wrong is printed.
    int run(Words words);

    /// Runs one command of a batch or of events --do; throws what goes wrong.
    int runChecked(const Line& line);

    /// The exit status of `operation`; what it throws is printed as the failure of `name`.
    int guarded(const std::string& name, const Options& options, const std::function<int()>& operation);

    /// The library, opened by the first that needs it. Throws Unreachable.
    Session& session(const Options& options);

    /// The library was released: the next that needs it opens it again.
    void forgetSession() { mSession.reset(); }

    /// Sends a request and remembers its outcome.
    Outcome send(const interface::Request& request, const interface::Arguments& arguments,
                 const Options& options);

    /// Of the last request; nothing before the first.
    const std::optional<Outcome>& lastOutcome() const { return mLast; }
    const interface::Request* lastRequest() const { return mLastRequest; }

    std::string failure; ///< why the last command came to nothing
    int depth = 0;       ///< of batches within each other

private:
    std::unique_ptr<Session> mSession;
    std::optional<Outcome> mLast;
    const interface::Request* mLastRequest = nullptr;
};

struct Command {
    std::string_view name;
    const char* arguments;
    const char* help;
    int (*run)(Program& program, const Line& line);
    /// Its options, for completion and the manual page; null without any.
    std::vector<OptionText> (*options)() = nullptr;
};

/// All commands besides the requests.
std::span<const Command> commands();

/// A checked request. Throws UsageError, with a suggestion for a name that there isn't.
struct RequestCall {
    const interface::Request* request;
    interface::Arguments arguments;
};
RequestCall parseRequest(std::span<const std::string> words);

// The commands of files of their own, for the table.
int runBatch(Program& program, const Line& line);
int runEvents(Program& program, const Line& line);
int runSimulation(Program& program, const Line& line);
int runWatch(Program& program, const Line& line);
std::vector<OptionText> batchOptions();
std::vector<OptionText> eventsOptions();
std::vector<OptionText> watchOptions();

/// A command to the simulated modem, as completion and the manual page show it.
struct SimulationCommand {
    std::string_view name;
    const char* arguments;
    const char* help;
};
std::span<const SimulationCommand> simulationCommands();

} // namespace radioctl
