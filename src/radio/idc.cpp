/// Coexistence in the device.
#include "radio/radio_request.h"

#include <array>

using namespace radio;

namespace {

/// As on the wire.
struct IdcEntry {
    uint8_t f0;
    uint8_t zero;
    uint16_t f3;
    int32_t f1;
    int32_t f2;
};
static_assert(sizeof(IdcEntry) == 12);
using IdcTable = std::array<IdcEntry, kRadioMaxIdcOffsets>;
static_assert(sizeof(IdcTable) == 240);

} // namespace

int VornRadioClient::setIdcOffset(int rat, int offset, const std::vector<RadioIdcOffsetConfig>& configs,
                                  void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    if (!hasThresholds(rat)) {
        return RADIO_APIS_NOT_SUPPORTED;
    }
    IdcTable table{};
    const size_t count = std::min(configs.size(), table.size());
    std::transform(configs.begin(), configs.begin() + static_cast<std::ptrdiff_t>(count), table.begin(),
                   [](const RadioIdcOffsetConfig& config) {
                       return IdcEntry{static_cast<uint8_t>(config.f0), 0, static_cast<uint16_t>(config.f3),
                                       config.f1, config.f2};
                   });
    auto request = newRequest(RadioMessage::SetRatThresholds);
    request->addVornTlvUint8(256, static_cast<uint8_t>(rat));
    request->addVornTlvInt16(257, static_cast<int16_t>(offset));
    request->addVornTlv(0x8102, sizeof table, &table);
    return send(request, userData, cb, processVoidResponseMsg);
}
