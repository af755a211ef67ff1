/// The simulated modem: messages in, messages out, no threads, time passed in.
#pragma once

#include "sim/scenario.h"
#include "vorn/vorn_msg.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace sim {

struct Fault;
struct Indication;
struct ScenarioData;

using TimePoint = std::chrono::steady_clock::time_point;

struct MessageDeleter {
    void operator()(vorn_msg_t* message) const { vorn_msg_deinit(message); }
};
using Message = std::unique_ptr<vorn_msg_t, MessageDeleter>;

/// One of the programs connected to the modem. The embedded link has one, a socket may have several.
using ClientId = uint32_t;

/// What the modem puts on its links. Called from within Modem's functions only.
class Output {
public:
    virtual ~Output() = default;

    /// An answer for one client.
    virtual void answer(ClientId client, Message message) = 0;

    /// An indication for every client; which of them want it is decided there.
    virtual void indicate(Message message) = 0;

    /// The modem drops its links. They can be opened again after `downFor`.
    virtual void disconnect(std::chrono::milliseconds downFor) = 0;
};

/// A modem with the state of up to three slots. Not thread-safe: its owner calls it from one thread at a
/// time.
class Modem {
public:
    Modem(const Scenario& scenario, Output& output);
    ~Modem();

    /// Takes one request. Its answer may come at once, later, twice or never, as the scenario's faults have
    /// it. Indications that it causes follow the answer.
    void receive(ClientId client, const vorn_msg_t& request, TimePoint now);

    /// When advance() has something to do next; nothing when it has not.
    std::optional<TimePoint> nextDeadline() const;

    /// Does what has become due.
    void advance(TimePoint now);

    /// Forgets what is still to be answered and ends the periodic reports that the client asked for: its link
    /// is gone. The state of the modem stays.
    void forget(ClientId client);

    /// A command to the simulation itself, not to the modem. The answer holds "ok", and "error" when that is
    /// false; when the error is a name of a message or a fault's action that does not exist, also "known", the list
    /// of those that do.
    ///   {"command": "state"}                         adds "slots": what each slot of the modem is like
    ///   {"command": "fault-add", "fault": FAULT}     a fault as scenarios write it
    ///   {"command": "fault-clear"}
    ///   {"command": "indicate", "message": NAME, "slot": N, "fields": {NAME: VALUE...} or "value": NUMBER,
    ///    "times": N}                                 an indication as scenarios write it, right now
    ///   {"command": "restart"}                       drops the links; all but the NV items starts anew
    ///   {"command": "load", "scenario": SCENARIO}    everything starts anew, links stay
    nlohmann::json control(const nlohmann::json& command, TimePoint now);

    /// The same with JSON texts.
    std::string control(const std::string& command, TimePoint now);

private:
    struct State;
    struct DueAnswer;

    void load(ScenarioData scenario);

    /// Puts an answer on its way, or what a fault makes of it.
    void send(DueAnswer due, const std::optional<Fault>& fault, TimePoint now);
    void deliver(const DueAnswer& due);
    void follow(const DueAnswer& due, TimePoint now);
    void indicate(const Indication& indication);
    void disconnect(std::chrono::milliseconds downFor);
    void restart(std::chrono::milliseconds downFor);

    std::unique_ptr<State> mState;
};

} // namespace sim
