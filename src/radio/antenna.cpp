/// What a car kit's booster needs to know of the transmitters.
#include "radio/radio_request.h"

using namespace radio;

namespace {

constexpr char kFunction[] = "VornGetAtc";

/// As on the wire.
struct CarkitQuery {
    uint16_t band;
    uint8_t rat;
    uint8_t zero;
};
static_assert(sizeof(CarkitQuery) == 4);

/// The modem tells two kinds of radio access technology apart.
uint8_t ratCodeOf(int radioTech)
{
    constexpr uint8_t kUnknown = 255;
    switch (radioTech) {
    case 6:
    case 7:
        return 1;
    case 2:
    case 5:
        return 0;
    default:
        return kUnknown;
    }
}

void deliverCarkit(const VornView& in, int radioTech, int uiBand, void* userData, RadioRequestCallback cb)
{
    ZeroedResult record;
    auto& carkit = record.rsp.txCarkit;
    const auto data = in.bytes(0x8100);
    carkit.failure = failureOf(in);
    carkit.length = fill(carkit.data, data);
    zorLogD(kTag, "VornRadioClient enter. getBandsTxNum radioTech = %d, uiBand = %d, msg_len=%d", radioTech,
            uiBand, static_cast<int>(data.size()));
    RadioRequestFunction{cb}(userData, RADIO_APIS_SUCCESS, &record);
}

} // namespace

int VornRadioClient::getTxCarkit(int radioTech, int uiBand, int subband, int /*option*/, void* userData,
                                 RadioRequestCallback cb)
{
    zorLogD(kTag, "%s -VornVsClient enter. radioTech=%d, uiBand=%d, subband=%d, slotId=%d", __func__,
            radioTech, uiBand, subband, mInstance);
    const CarkitQuery carkit{static_cast<uint16_t>(uiBand), ratCodeOf(radioTech), 0};
    auto request = newRequest(RadioMessage::GetTxCarkit);
    request->addVornTlvUint32(256, 0);
    request->addVornTlv(257, sizeof kFunction, kFunction);
    request->addVornTlv(0x8102, sizeof carkit, &carkit);
    // As a query, but for the arguments that the log shows; they still fit a handler without a heap of its
    // own.
    const auto handler = [cb, radioTech, uiBand](void* response, unsigned int, RadioApisAsyncData* context) {
        if (isValidResponse(kTag, response, context)) {
            deliverCarkit(VornView(static_cast<vorn_msg_t*>(response)), radioTech, uiBand, context->userData,
                          cb);
        }
    };
    return send(request, userData, nullptr, handler);
}
