/// All converters of indications: the first byte chooses one, the others make the message's fields, each from
/// a byte for its kind and tag, two bytes for its length, and its bytes.
#include "radio/indications.h"
#include "vorn/vorn_msg.h"
#include "vs/indications.h"

#include <cstdlib>
#include <span>
#include <vector>

namespace {

using Input = std::span<const uint8_t>;

Input take(Input& input, size_t size)
{
    const Input taken = input.first(std::min(size, input.size()));
    input = input.subspan(taken.size());
    return taken;
}

/// One field, or one array of up to 8 elements; the bytes of what it takes.
void addField(vorn_msg_t* message, Input& input)
{
    const uint8_t kind = take(input, 1)[0];
    const auto tag = static_cast<uint16_t>(256 + (kind & 3));
    const Input length = take(input, 2);
    const Input value = take(input, length.size() == 2 ? size_t{length[0]} + (size_t{length[1]} << 8) : 0);
    // The message library refuses null values; an empty field needs a place to point to.
    const uint8_t nothing = 0;
    const uint8_t* bytes = value.empty() ? &nothing : value.data();
    if ((kind & 4) == 0) {
        vorn_msg_add_tlv(message, tag, static_cast<uint16_t>(value.size()), bytes);
        return;
    }
    const auto count = static_cast<uint16_t>(kind >> 5);
    vorn_msg_add_array(message, tag, count);
    for (uint16_t i = 0; i < count; ++i) {
        vorn_msg_add_idx(message, tag, i, static_cast<uint16_t>(value.size()), bytes);
    }
}

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
    const RpcEventHandler converter = all[take(input, 1)[0] % all.size()];
    vorn_msg_t* message = vorn_msg_init(0x7E01, 1);
    while (!input.empty()) {
        addField(message, input);
    }
    volatile unsigned int result = 0;
    unsigned int sum = 0;
    converter(message, 0, &sum, onEvent);
    result = sum;
    static_cast<void>(result);
    vorn_msg_deinit(message);
    return 0;
}
