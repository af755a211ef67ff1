// The antennas.

#include "requests.h"

namespace sim {
namespace {

/// The band asked for in 16 bits, and the number of transmitters that serve it.
Answer getCarkit(Slot& slot, const Request& request)
{
    constexpr uint8_t kUnknownRat = 255;
    const Bytes& query = request.fields.bytes(0x8102);
    if (toNumber<uint8_t>(query, 2) == kUnknownRat) {
        return {ModemResult::NotSupported};
    }
    const auto band = toNumber<uint16_t>(query);
    uint8_t transmitters = 1;
    for (const Cell* cell : {slot.camped(), slot.lteCell()}) {
        if (cell != nullptr && cell->band == band) {
            transmitters = cell->txAntennas;
        }
    }
    Bytes data = toBytes(band);
    append(data, transmitters);
    Answer answer;
    answer.fields.set(0x8100, std::move(data));
    return answer;
}

} // namespace

Domain antennaRequests()
{
    static constexpr MessageRow messages[] = {
        {"GetTxCarkit", getCarkit},
    };
    return {messages};
}

} // namespace sim
