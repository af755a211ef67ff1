#include "channel/device_path.h"

#ifdef RADIO_HOST_DEVICE_ROOT
#include <cstdlib>
#endif

std::string devicePath(const char* absolutePath)
{
#ifdef RADIO_HOST_DEVICE_ROOT
    if (const char* root = std::getenv("RADIO_DEVICE_ROOT")) {
        return std::string(root) + absolutePath;
    }
#endif
    return absolutePath;
}
