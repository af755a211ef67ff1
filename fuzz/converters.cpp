/// All converters of indications: the first byte chooses one, the others make the message's fields.
#include "input.h"
#include "radio/indications.h"
#include "vs/indications.h"

#include <numeric>

namespace {

using fuzz::Input;

/// The converter with this number, counted over both tables.
RpcEventHandler converter(size_t number)
{
    const size_t vendors = kVendorIndications.size();
    number %= vendors + kRadioIndications.size();
    return number < vendors ? kVendorIndications[number].handler
                            : kRadioIndications[number - vendors].handler;
}

/// Reads the whole record, as a listener would.
void onEvent(RADIO_EVENT_TYPE, void* user, void* data, int length)
{
    const auto* bytes = static_cast<const uint8_t*>(data);
    *static_cast<unsigned int*>(user) += std::accumulate(bytes, bytes + length, 0U);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Input input(data, size);
    if (input.empty()) {
        return 0;
    }
    const RpcEventHandler convert = converter(fuzz::take(input, 1)[0]);
    vorn_msg_t* message = vorn_msg_init(0x7E01, 1);
    fuzz::addFields(message, input);
    unsigned int sum = 0;
    convert(message, 0, &sum, onEvent);
    [[maybe_unused]] const volatile unsigned int result = sum;
    vorn_msg_deinit(message);
    return 0;
}
