/// The RF feature file.
#include "at/rf_config_parser.h"
#include "support/device_root.h"
#include "xml.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const test::DeviceRoot root;
    static constexpr std::string_view kWords[] = {"feature", "atcmd", "cmd", "id", "index",     "command",
                                                  "rat-4",   "sar",   "0",   "1",  "4294967296"};
    root.write("my_product/etc/rf_feature_config.xml", fuzz::xmlOf({data, size}, kWords));
    const RfConfigParser parser;
    parser.getAtCmdByFeatureId(1, 0);
    return 0;
}
