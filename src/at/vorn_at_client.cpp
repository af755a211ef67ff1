#include "at/vorn_at_client.h"

#include "at/at_chain_promise.h"
#include "at/at_cmd_parser.h"
#include "at/at_log.h"
#include "mindroid/exception.h"

#include <algorithm>
#include <string_view>

using at::kTag;
using mindroid::Parcel;
using mindroid::sp;

namespace {

constexpr uint16_t kAtMessage = 3;
constexpr uint16_t kAtText = 0x8100;

using Parse = sp<Parcel> (AtCmdParser::*)(const char*) const;

} // namespace

/// A command on its way: a request context that keeps alive what the answer needs.
struct VornAtClient::Command : RadioApisAsyncData {
    Command(VornAtClient* sender, void* user, RadioRequestFunction onResult, ResponseHandler onResponse,
            const sp<AtResponseCallback>& rsp, const sp<RadioApiCallback>& cb = nullptr)
        : RadioApisAsyncData(user, sender, std::move(onResult), nullptr, std::move(onResponse)),
          keptClient(sender),
          slotId(sender->mInstance),
          interpreter(rsp),
          sharedCallback(cb)
    {}

    /// The parsed answer, null when there was no text.
    template <Parse parse>
    sp<Parcel> read(const void* response, const char* direction) const
    {
        const char* text = VornView(static_cast<const vorn_msg_t*>(response)).getVornStr(kAtText);
        if (text == nullptr) {
            return nullptr;
        }
        zorLogD(kTag, "slot %d %s < %s", slotId, direction, text);
        return (AtCmdParser::instance().*parse)(text);
    }

    RADIO_APIS_RESULT interpret(const sp<Parcel>& answer, RadioApisResultType* record) const
    {
        return interpreter ? interpreter->interpret(answer, record) : RADIO_APIS_FAILURE;
    }

    /// What the caller gets.
    struct Outcome {
        RADIO_APIS_RESULT result;
        RadioApisResultType* record;
    };

    /// Has the answer interpreted into `record`. Without the memory for that there is a failure and no record.
    template <Parse parse>
    Outcome outcomeOf(const void* response, const char* direction, RadioApisResultType& record) const
    {
        try {
            const sp<Parcel> answer = read<parse>(response, direction);
            return {answer ? interpret(answer, &record) : RADIO_APIS_FAILURE, &record};
        } catch (const std::bad_alloc&) {
            zorLogE(kTag, "slot %d: no memory to read an answer", slotId);
            return {RADIO_APIS_FAILURE, nullptr};
        }
    }

    /// The handlers of the send operations.
    template <Parse parse>
    static void answerResultCallback(void* response, unsigned int, RadioApisAsyncData* context);
    static void answerSharedCallback(void* response, unsigned int, RadioApisAsyncData* context);
    static void answerInterpreter(void* response, unsigned int, RadioApisAsyncData* context);

    const sp<VornAtClient> keptClient;
    const int slotId;
    const sp<AtResponseCallback> interpreter;
    const sp<RadioApiCallback> sharedCallback;
};

template <Parse parse>
void VornAtClient::Command::answerResultCallback(void* response, unsigned int, RadioApisAsyncData* context)
{
    if (!isValidResponse(kTag, response, context)) {
        return;
    }
    const auto* command = static_cast<Command*>(context);
    ZeroedResult record;
    const Outcome outcome = command->outcomeOf<parse>(response, "receive at", record);
    context->resultCallback(context->userData, outcome.result, outcome.record);
}

void VornAtClient::Command::answerSharedCallback(void* response, unsigned int, RadioApisAsyncData* context)
{
    if (!isValidResponse(kTag, response, context)) {
        return;
    }
    const auto* command = static_cast<Command*>(context);
    ZeroedResult record;
    const Outcome outcome = command->outcomeOf<&AtCmdParser::parserAtCmdResponse>(response, "atcmd", record);
    if (command->sharedCallback) {
        command->sharedCallback->call(context->userData, outcome.result, outcome.record);
    }
}

void VornAtClient::Command::answerInterpreter(void* response, unsigned int, RadioApisAsyncData* context)
{
    if (!isValidResponse(kTag, response, context)) {
        return;
    }
    const auto* command = static_cast<Command*>(context);
    sp<Parcel> answer;
    try {
        answer = command->read<&AtCmdParser::parserAtCmdResponse>(response, "atcmd");
    } catch (const std::bad_alloc&) {
        zorLogE(kTag, "slot %d: no memory to read an answer", command->slotId);
    }
    command->interpret(answer, nullptr);
}

VornAtClient::VornAtClient(bool, int slotId) : VornClient(kTag, slotId, nullptr, 0) {}

int VornAtClient::sendCommand(const char* cmd, std::unique_ptr<Command> command)
{
    auto request = newRequest(kAtMessage);
    request->addVornTlvStr(kAtText, cmd);
    return sendComplete(*request, std::move(command));
}

int VornAtClient::sendAtCommand(const char* cmd, void* userData, RadioRequestCallback cb,
                                const sp<AtResponseCallback>& rsp)
{
    zorLogD(kTag, "%s - enter. slotId=%d cmd %s", __func__, mInstance, cmd);
    constexpr auto handler = &Command::answerResultCallback<&AtCmdParser::parserAtCmdResponse>;
    return sendCommand(cmd, std::make_unique<Command>(this, userData, cb, handler, rsp));
}

int VornAtClient::sendAtCommand(const char* cmd, void* userData, const sp<RadioApiCallback>& cb,
                                const sp<AtResponseCallback>& rsp)
{
    zorLogD(kTag, "slotId %d atcmd > %s", mInstance, cmd);
    // Without a result callback in the context the handler sees refused messages too: the shared callback is
    // called whatever happens.
    return sendCommand(
        cmd, std::make_unique<Command>(this, userData, nullptr, &Command::answerSharedCallback, rsp, cb));
}

int VornAtClient::sendAtCommand(const char* cmd, void* userData, const sp<AtResponseCallback>& rsp)
{
    zorLogD(kTag, "slotId %d atcmd > %s", mInstance, cmd);
    return sendCommand(cmd,
                       std::make_unique<Command>(this, userData, nullptr, &Command::answerInterpreter, rsp));
}

int VornAtClient::sendAtCommandRspRawStr(const char* cmd, void* userData, RadioRequestCallback cb,
                                         const sp<AtResponseCallback>& rsp)
{
    zorLogD(kTag, "%s - enter. slotId=%d cmd %s", __func__, mInstance, cmd);
    constexpr auto handler = &Command::answerResultCallback<&AtCmdParser::parserAtCmdResponseAsRawStr>;
    return sendCommand(cmd, std::make_unique<Command>(this, userData, cb, handler, rsp));
}

int VornAtClient::sendSetter(const char* cmd, void* userData, RadioRequestCallback cb)
{
    return sendAtCommand(cmd, userData, cb, mindroid::make<AtResponseCallback>(completeWithResultVoid));
}

int VornAtClient::sendSetters(const std::vector<std::string>& commands, void* userData,
                              RadioRequestCallback cb)
{
    const auto chain = mindroid::make<AtChain>();
    for (const std::string& command : commands) {
        chain->add(command.c_str(), completeWithResultVoid);
    }
    chain->start(this, userData, cb);
    return RADIO_APIS_SUCCESS;
}

int VornAtClient::sendQuery(const char* cmd, void* userData, RadioRequestCallback cb,
                            AtResponseCallback::Function interpreter)
{
    return sendAtCommand(cmd, userData, cb, mindroid::make<AtResponseCallback>(std::move(interpreter)));
}

bool VornAtClient::isPlainText(const char* method, const char* text)
{
    const auto isPlain = [](unsigned char c) { return c >= ' ' && c != 0x7F && c != '"'; };
    if (text != nullptr && std::ranges::all_of(std::string_view(text), isPlain)) {
        return true;
    }
    zorLogE(kTag, "%s: the text is missing, or holds a control character or a double quote", method);
    return false;
}

RADIO_APIS_RESULT VornAtClient::completeWithResultVoid(const sp<Parcel>& answer, RadioApisResultType*)
{
    try {
        return answer->getBoolean() ? RADIO_APIS_SUCCESS : RADIO_APIS_FAILURE;
    } catch (const mindroid::Exception&) {
        return RADIO_APIS_FAILURE;
    }
}

RADIO_APIS_RESULT VornAtClient::completeWithoutResultCheck(const sp<Parcel>&, RadioApisResultType*)
{
    return RADIO_APIS_SUCCESS;
}
