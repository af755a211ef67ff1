#include "sim/modem.h"

#include "modem_state.h"

namespace sim {

Modem::Modem(const Scenario& scenario, Output& output) : mState(std::make_unique<State>(scenario, output)) {}

Modem::~Modem() = default;

void Modem::receive(ClientId client, const vorn_msg_t& request, TimePoint now)
{
    mState->receive(client, request, now);
}

std::optional<TimePoint> Modem::nextDeadline() const
{
    return mState->nextDeadline();
}

void Modem::advance(TimePoint now)
{
    mState->advance(now);
}

void Modem::forget(ClientId client)
{
    mState->forget(client);
}

nlohmann::json Modem::control(const nlohmann::json& command, TimePoint now)
{
    return mState->control(command, now);
}

std::string Modem::control(const std::string& command, TimePoint now)
{
    nlohmann::json answer;
    try {
        answer = mState->control(nlohmann::json::parse(command), now);
    } catch (const nlohmann::json::exception& error) {
        answer = {{"ok", false}, {"error", error.what()}};
    }
    return answer.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace sim
