/// All converters of indications: the first byte chooses one, the others make the message's fields.
#include "input.h"
#include "radio/indications.h"
#include "vs/indications.h"

#include <vector>

namespace {

using fuzz::Input;

std::vector<RpcEventHandler> converters()
{
    std::vector<RpcEventHandler> all;
    for (const rpcEventHandlerMap& row : kVendorIndications) {
        all.push_back(row.handler);
    }
    for (const rpcEventHandlerMap& row : kRadioIndications) {
        all.push_back(row.handler);
    }
    return all;
}

/// Reads the whole record, as a listener would.
void onEvent(RADIO_EVENT_TYPE, void* user, void* data, int length)
{
    auto& sum = *static_cast<unsigned int*>(user);
    for (int i = 0; i < length; ++i) {
        sum += static_cast<const uint8_t*>(data)[i];
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::vector<RpcEventHandler> all = converters();
    Input input(data, size);
    if (input.empty()) {
        return 0;
    }
    const RpcEventHandler converter = all[fuzz::take(input, 1)[0] % all.size()];
    vorn_msg_t* message = vorn_msg_init(0x7E01, 1);
    fuzz::addFields(message, input);
    unsigned int sum = 0;
    converter(message, 0, &sum, onEvent);
    [[maybe_unused]] const volatile unsigned int result = sum;
    vorn_msg_deinit(message);
    return 0;
}
