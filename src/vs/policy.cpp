/// Which indications the modem sends, and how many it sent.
#include "vs/vs_request.h"

using vs::kTag;

namespace {

/// At most 9 characters, and always an end.
void fillText(std::span<const uint8_t> from, uint8_t length, char (&to)[10], uint8_t& toLength)
{
    toLength = static_cast<uint8_t>(std::min<size_t>(length, sizeof to - 1));
    copyBytes(from, 0, {reinterpret_cast<uint8_t*>(to), toLength});
}

void fillPolicy(std::span<const uint8_t> from, RadioPolicyConfig& to)
{
    RadioPolicyConfig wire{};
    copyBytes(from, 0, {reinterpret_cast<uint8_t*>(&wire), sizeof wire});
    to.indication = wire.indication;
    to.enabled = wire.enabled;
    to.interval = wire.interval;
    to.threshold = wire.threshold;
    fillText({reinterpret_cast<const uint8_t*>(wire.text1), sizeof wire.text1}, wire.length1, to.text1,
             to.length1);
    fillText({reinterpret_cast<const uint8_t*>(wire.text2), sizeof wire.text2}, wire.length2, to.text2,
             to.length2);
}

/// Element `index` of a list that begins with its count; shorter than a whole one, or empty, where the block
/// ends.
std::span<const uint8_t> entryAt(std::span<const uint8_t> list, size_t index, size_t size)
{
    const size_t begin = std::min(list.size(), sizeof(uint32_t) + index * size);
    return list.subspan(begin, std::min(size, list.size() - begin));
}

} // namespace

int VornVsClient::setModemIndicationPolicy(const RadioPolicyConfigListType& policies, void* userData,
                                           RadioRequestCallback cb)
{
    zorLogD(kTag, "%s - enter. slotId=%d", __func__, mInstance);
    auto request = newRequest(VsMessage::SetModemIndicationPolicy);
    request->addVornTlv(256, sizeof policies, &policies);
    return send(request, userData, cb, onVoidResponse("setModemIndicationPolicy cb enter"));
}

int VornVsClient::getModemIndicationPolicy(void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return query(newRequest(VsMessage::GetModemIndicationPolicy), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     zorLogD(kTag, "getModemIndicationPolicy cb enter");
                     const auto block = in.bytes(256);
                     auto& list = out.rsp.indicationPolicy;
                     list.count = std::min(numberAt<uint32_t>(block, 0), kRadioMaxPolicies);
                     zorLogD(kTag, "getModemIndicationPolicy modem indication policy len:%d",
                             static_cast<int>(list.count));
                     for (uint32_t i = 0; i < list.count; ++i) {
                         fillPolicy(entryAt(block, i, sizeof(RadioPolicyConfig)), list.policies[i]);
                     }
                 });
}

int VornVsClient::getIndicationReportRecords(void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    return query(newRequest(VsMessage::GetIndicationReportRecords), userData, cb,
                 [](const VornView& in, RadioApisResultType& out) {
                     zorLogD(kTag, "getIndicationReportRecords cb enter");
                     const auto block = in.bytes(256);
                     auto& list = out.rsp.indicationReports;
                     list.count = std::min(numberAt<uint32_t>(block, 0), kRadioMaxReportRecords);
                     zorLogD(kTag, "modem indication policy len:%d", static_cast<int>(list.count));
                     for (uint32_t i = 0; i < list.count; ++i) {
                         const auto record = entryAt(block, i, sizeof(RadioIndicationReport));
                         list.records[i] = {numberAt<uint32_t>(record, 0), numberAt<uint32_t>(record, 4)};
                     }
                 });
}

int VornVsClient::setIndicationConfig(int type, const RadioIndicationConfigListType& configs, void* userData,
                                      RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::SetIndicationConfig);
    request->addVornTlvInt32(256, type);
    addRecords(*request, 257, configs.configs, configs.count);
    return send(request, userData, cb, processVoidResponseMsg);
}
