/// The SIM card: authentication and power.
#include "radio/radio_request.h"

#include <array>

using namespace radio;

namespace {

/// Bytes as a text for the log, up to their first NUL: whoever reads the log must not be misled by control
/// characters.
class LogText {
public:
    explicit LogText(std::span<const uint8_t> bytes)
    {
        const auto end = std::ranges::find(bytes, 0);
        const auto isPrintable = [](uint8_t c) { return c >= ' ' && c <= '~'; };
        std::transform(bytes.begin(), end, mText.begin(),
                       [=](uint8_t c) { return isPrintable(c) ? static_cast<char>(c) : '.'; });
    }

    const char* text() const { return mText.data(); }

private:
    std::array<char, kRadioMaxAuthenticationBytes + 1> mText{};
};

} // namespace

int VornRadioClient::requestIccSimAuthentication(const RadioUimAuthenticateReqInfo& info, void* userData,
                                                 RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", __func__);
    if (info.authDataLen > kRadioMaxAuthenticationBytes) {
        zorLogE(kTag, "invalid paramter found");
        return RADIO_APIS_INVALID_PARAMETER;
    }
    const LogText data(std::span(info.authData).first(info.authDataLen));
    zorLogD(kTag, "requestIccSimAuthentication authdata_len: %d, authdata: %s", info.authDataLen,
            data.text());
    auto request = newRequest(RadioMessage::IccSimAuthentication);
    request->addVornTlvUint8(257, 1);
    request->addVornTlvUint8(256, 0);
    request->addVornTlvUint8(260, 4);
    request->addVornTlvUint16(258, info.authDataLen);
    request->addVornTlv(0x8103, info.authDataLen, info.authData);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        auto& answer = out.rsp.uimAuthentication;
        const uint16_t length = in.getVornUint16Val(257, 0);
        answer.failure = failureOf(in);
        answer.length = fill(answer.content, in.bytes(0x8102), length);
        zorLogD(kTag, "requestIccSimAuthentication respCb vorn_result: %d, rsp_len: %d",
                static_cast<int>(in.getResult()), length);
        const LogText content(std::span(answer.content).first(answer.length));
        zorLogD(kTag, "requestIccSimAuthentication respCb auth_content: %s", content.text());
    });
}

int VornRadioClient::setUimPower(const char* method, uint8_t on, void* userData, RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter", method);
    auto request = newRequest(RadioMessage::SetUimPower);
    request->addVornTlvUint8(256, 1);
    request->addVornTlvUint8(257, on);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornRadioClient::setUimPowerUp(void* userData, RadioRequestCallback cb)
{
    return setUimPower(__func__, 1, userData, cb);
}

int VornRadioClient::setUimPowerDown(void* userData, RadioRequestCallback cb)
{
    return setUimPower(__func__, 0, userData, cb);
}
