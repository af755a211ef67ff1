/// The file that names the modem's device.
#include "channel/vorn_channel_client.h"
#include "support/device_root.h"
#include "xml.h"

#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const test::DeviceRoot root;
    static constexpr std::string_view kWords[] = {"vorn_device_config", "platform", "name", "vorn_device",
                                                  "workbench",          "embedded", "other"};
    root.write("odm/etc/vorn_device_config.xml", fuzz::xmlOf({data, size}, kWords));
    char name[VornChannelClient::kDeviceNameSize];
    if (VornChannelClient::parseVornDeviceName("workbench", name) &&
        std::memchr(name, '\0', sizeof name) == nullptr) {
        std::abort();
    }
    return 0;
}
