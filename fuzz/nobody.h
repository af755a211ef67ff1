/// Whoever is told nothing of what a simulated modem sends.
#pragma once

#include "sim/modem.h"

namespace fuzz {

struct Nobody : sim::Output {
    void answer(sim::ClientId, sim::Message) override {}
    void indicate(sim::Message) override {}
    void disconnect(std::chrono::milliseconds) override {}
};

} // namespace fuzz
