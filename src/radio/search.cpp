/// Which networks and cells the modem avoids, and what it does out of service.
#include "radio/radio_request.h"

#include <array>
#include <string>

using namespace radio;

namespace {

/// MCC and MNC as the modem reads them; more than six characters are cut.
std::string plmnText(const char* method, int mcc, int mnc, bool mncThreeDigits)
{
    constexpr size_t kMostCharacters = 6;
    const size_t width = mncThreeDigits ? 3 : 2;
    std::string digits = std::to_string(mnc);
    digits.insert(0, width - std::min(digits.size(), width), '0');
    std::string text = (std::to_string(mcc) + digits).substr(0, kMostCharacters);
    zorLogD(kTag, "%s - plmn_str=%s, len=%d", method, text.c_str(), static_cast<int>(text.size()));
    return text;
}

/// As on the wire.
struct ForbiddenTai {
    std::array<char, 8> plmn;
    uint16_t code;
};
static_assert(sizeof(ForbiddenTai) == 10);

/// The modem's sets of radio access technologies, of which callers number the first two.
uint8_t ratSetOf(int rat)
{
    constexpr uint8_t kSets[] = {4, 128};
    return rat == 0 || rat == 1 ? kSets[rat] : static_cast<uint8_t>(rat);
}

} // namespace

int VornRadioClient::performPlmnUnblock(RadioPlmnBlockInfo info, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    const std::string plmn = plmnText(__func__, info.mcc, info.mnc, info.mncThreeDigits != 0);
    const uint8_t ratSet = ratSetOf(info.rat);
    const auto type = static_cast<uint8_t>(info.type);
    auto request = newRequest(RadioMessage::PerformPlmnUnblock);
    request->addVornTlv(256, static_cast<uint16_t>(plmn.size()), plmn.data());
    request->addVornTlv(257, sizeof ratSet, &ratSet);
    request->addVornTlv(258, sizeof type, &type);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornRadioClient::clearForbiddenTai(int /*option*/, int mcc, int mnc, bool mncThreeDigits, int code,
                                       int type, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    ForbiddenTai tai{{}, static_cast<uint16_t>(code)};
    std::ranges::copy(plmnText(__func__, mcc, mnc, mncThreeDigits), tai.plmn.begin());
    const auto listType = static_cast<uint8_t>(type);
    auto request = newRequest(RadioMessage::ClearForbiddenTai);
    request->addVornTlv(256, sizeof listType, &listType);
    request->addVornTlv(257, sizeof tai, &tai);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornRadioClient::configCellBarringParam(unsigned int threshold, unsigned int watchPeriod,
                                            unsigned int barringTime, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d threshold=%d watchPeriod=%d barringTime=%d", __func__, mInstance,
            static_cast<int>(threshold), static_cast<int>(watchPeriod), static_cast<int>(barringTime));
    auto request = newRequest(RadioMessage::ConfigCellBarringParam);
    request->addVornTlvUint8(256, static_cast<uint8_t>(threshold));
    request->addVornTlvUint16(257, static_cast<uint16_t>(watchPeriod));
    request->addVornTlvUint32(258, barringTime);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        out.rsp.cellBarring.failure = failureOf(in);
    });
}

int VornRadioClient::setOosSnifferCfg(const RadioOosCfgInfo& info, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    auto request = newRequest(RadioMessage::SetOosSnifferCfg);
    uint16_t tag = 256;
    for (const int32_t value : {info.p7, info.p8, info.p9, info.p10, info.p11}) {
        request->addVornTlvUint8(tag++, static_cast<uint8_t>(value));
    }
    return send(request, userData, cb, processVoidResponseMsg);
}
