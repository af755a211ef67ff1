/// The file that names the modem's device.
#include "channel/vorn_channel_client.h"
#include "support/device_root.h"

#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const test::DeviceRoot root;
    root.write("odm/etc/vorn_device_config.xml", {reinterpret_cast<const char*>(data), size});
    char name[VornChannelClient::kDeviceNameSize];
    if (VornChannelClient::parseVornDeviceName("workbench", name) &&
        std::memchr(name, '\0', sizeof name) == nullptr) {
        std::abort();
    }
    return 0;
}
