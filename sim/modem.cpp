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

} // namespace sim
