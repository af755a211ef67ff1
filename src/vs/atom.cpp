/// Atoms: small applications inside the modem that collect data.
#include "vs/vs_request.h"

#include <cstddef>
#include <cstring>

using vs::kTag;

namespace {

/// The strings of the record, each up to its end. They are sent without a NUL, and may fill their array.
int addStrings(VornData& request, uint16_t tag, const RadioLoadAtomApplicationType& application)
{
    constexpr size_t kLength = sizeof application.strings[0];
    char texts[kRadioMaxAtomStrings][kLength + 1] = {};
    const char* pointers[kRadioMaxAtomStrings];
    const auto count = cutTo(application.strings, application.stringCount);
    for (uint32_t i = 0; i < count; ++i) {
        std::memcpy(texts[i], application.strings[i], kLength);
        pointers[i] = texts[i];
    }
    return request.addVornTlvArrayStr(tag, static_cast<uint16_t>(count), pointers);
}

/// The record is sent as two fields.
constexpr uint16_t kMaskBytes = offsetof(RadioAtomInfoType, parameterCount);
static_assert(kMaskBytes == 324);

} // namespace

int VornVsClient::loadAtomApplication(const RadioLoadAtomApplicationType& application, void* userData,
                                      RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::LoadAtomApplication);
    request->addVornTlvInt32(256, application.id);
    request->addVornTlvInt32(258, application.version);
    addStrings(*request, 257, application);
    const auto values = cutTo(application.values, application.valueCount);
    request->addVornTlvArrayInt32(259, static_cast<uint16_t>(values), application.values);
    request->addVornTlv(260, sizeof application.block, application.block);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::unloadAtomApplication(int id, void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    auto request = newRequest(VsMessage::UnloadAtomApplication);
    request->addVornTlvInt32(256, id);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::setAtomStatus(int id, int status, int subPolicy, const RadioAtomInfoType& info,
                                void* userData, RadioRequestCallback cb)
{
    logEnter(__func__);
    zorLogD(kTag, "id:%d, status:%d, subPolicy:%d", id, status, subPolicy);
    for (uint32_t i = 0; i < cutTo(info.masks, info.maskCount); ++i) {
        zorLogD(kTag, "atom_mask_config i:%d, id:%d, mask:%d", static_cast<int>(i), info.masks[i].id,
                static_cast<int>(info.masks[i].mask));
    }
    for (uint32_t i = 0; i < cutTo(info.parameters, info.parameterCount); ++i) {
        zorLogD(kTag, "atom_param_config i:%d, id:%d, mask:%d", static_cast<int>(i), info.parameters[i].id,
                static_cast<int>(info.parameters[i].mask));
    }
    auto request = newRequest(VsMessage::SetAtomStatus);
    request->addVornTlvInt32(256, id);
    request->addVornTlvInt32(257, status);
    request->addVornTlvInt32(258, subPolicy);
    request->addVornTlv(259, kMaskBytes, &info.maskCount);
    request->addVornTlv(260, sizeof info - kMaskBytes, &info.parameterCount);
    return send(request, userData, cb, processVoidResponseMsg);
}

int VornVsClient::getAtomData(int type, int option, int* ids, unsigned int count, void* userData,
                              RadioRequestCallback cb)
{
    logEnter(__func__);
    if (!isSendable(ids, count)) {
        return RADIO_APIS_INVALID_PARAMETER;
    }
    auto request = newRequest(VsMessage::GetAtomData);
    request->addVornTlvInt32(256, type);
    request->addVornTlvInt32(257, option);
    request->addVornTlvArrayInt32(258, static_cast<uint16_t>(count), ids);
    return query(request, userData, cb, [](const VornView& in, RadioApisResultType& out) {
        fillBlob(in.bytes(256), out.rsp.atomData);
    });
}
