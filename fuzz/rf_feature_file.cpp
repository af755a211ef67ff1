/// The RF feature file.
#include "at/rf_config_parser.h"
#include "support/device_root.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const test::DeviceRoot root;
    root.write("my_product/etc/rf_feature_config.xml", {reinterpret_cast<const char*>(data), size});
    const RfConfigParser parser;
    parser.getAtCmdByFeatureId(1, 0);
    return 0;
}
